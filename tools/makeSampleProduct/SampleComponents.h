// The sample product's companion components, which lie beside the installer on the disk image: the
// add-in for Word, the Spotlight importer, the Services application and the content files that the
// rules name. Used by the program makeSampleComponents; the same arguments always give the same
// trees.
#pragma once

#include <filesystem>
#include <string>

namespace tools {

struct SampleComponents {
    std::filesystem::path disk;       ///< where the installer's bundle lies
    std::filesystem::path importers;  ///< the folder in that bundle for Spotlight importers
    std::filesystem::path executable; ///< becomes the program of each bundle
    std::string version;              ///< "21.0.0.19023"
};

/// Makes them anew. Throws std::filesystem::filesystem_error or std::runtime_error naming the path
/// that could not be written.
void makeSampleComponents(const SampleComponents& components);

} // namespace tools
