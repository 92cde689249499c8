// A small installed copy that patches are applied to by the real code of applyPatch, and what has
// to hold whatever the patch says: nothing outside the copy is touched, the copy is the old version
// or the one that the patch describes, and nothing lies beside it. Anything else ends the process.
// Used by the fuzz targets of applyPatch and by what makes their seeds.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include "patcher/format/Manifest.h"
#include "patcher/format/PatchFile.h"
#include "tests/support/TemporaryFolder.h"

namespace fuzz {

/// Writes the copy as it is installed, without what its user put into it.
void writeInstalled(const std::filesystem::path& folder);

/// The content of a file of the copy; none where there is no such file.
std::optional<std::string> installedContent(const std::string& path);

/// The key of the samples and tests, with which seeds are signed and patches of the targets.
const patch::Seed& key();

/// The bytes of a patch file, signed, with these bytes as its manifest and its data, whatever they
/// are.
patch::Bytes sealed(patch::View manifest, patch::View data);

class ApplyStage {
  public:
    ApplyStage();

    /// Applies the bytes as a patch file, and judges.
    void apply(patch::Bytes file);

  private:
    struct Listing;
    void restore();
    void judge(bool succeeded, const patch::Manifest* manifest);
    void requireNew(const Listing& now, const patch::Manifest& manifest) const;
    std::string copy() const { return m_folder.path("place/copy"); }

    tests::TemporaryFolder m_folder;
    std::vector<patch::Entry> m_before;
    std::vector<patch::Entry> m_outside;
};

} // namespace fuzz
