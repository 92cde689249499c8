// What the sample product and its disk image have in common: bundles with a program, and the
// content files of the categories. For the two makers of samples alone.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace tools {

struct SampleBundle {
    std::string_view path; ///< relative to the folder it is made in
    std::string_view name; ///< of its program
    std::string_view identifier;
    std::string_view type;
};

/// Makes the bundle in `folder`; `executable` becomes its program.
void makeSampleBundle(const SampleBundle& bundle, const std::filesystem::path& folder,
                      const std::filesystem::path& executable, std::string_view version);

/// Makes "Penmark", the add-in for each generation of Word, in `folder`.
void makeAddIns(const std::filesystem::path& folder, const std::filesystem::path& executable,
                std::string_view version);

/// Makes "Product-Support/Content.bundle" in `folder`. In an update (release 1) Medicine has one
/// filter more, one less and an edited one.
void makeContentBundle(const std::filesystem::path& folder, int release);

/// The third number of a version, "21.0.1.19108": 0 for a first release, 1 for its first update.
int releaseOf(std::string_view version);

} // namespace tools
