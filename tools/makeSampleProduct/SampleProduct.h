// The sample product: a tree of files of every kind that a real product brings, so that the
// installer has something real to install. A version whose third number is not 0 is an update:
// files of every kind differ, so that there is something real to update to. Used by the program
// makeSampleProduct; the same arguments always give the same tree.
#pragma once

#include <filesystem>
#include <string>

namespace tools {

struct SampleProduct {
    std::filesystem::path executable; ///< becomes the application's program
    std::filesystem::path icon;       ///< an .icns file; may be missing
    std::string version;              ///< "21.0.0.19023"
};

/// Makes the folder `top` with the product in it. Throws std::filesystem::filesystem_error or
/// std::runtime_error naming the path that could not be written.
void makeSampleProduct(const SampleProduct& product, const std::filesystem::path& top);

} // namespace tools
