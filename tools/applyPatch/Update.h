// One run over an installed copy: checks it against the patch, builds the new version beside it,
// exchanges the two and removes the old one; or only looks. Used by applyPatch's main.
//
// At every moment either the old version or the new one is there as a whole. What a broken run
// leaves beside the copy the next one takes away, or finishes; docs/reliability.md goes through
// every state.
#pragma once

#include <optional>
#include <string>

#include "patcher/format/PatchFile.h"
#include "tools/applyPatch/ApplyError.h"
#include "tools/applyPatch/Examination.h"
#include "tools/applyPatch/InstalledCopy.h"
#include "tools/files/Complaints.h"
#include "tools/files/Progress.h"

namespace tools {

class Update {
  public:
    struct Needs {
        const patch::PatchReader& patch;
        const InstalledCopy& copy;
        Progress& progress;
        Complaints& complaints; ///< differences, and what went wrong behind the new version's back
    };

    explicit Update(Needs needs) : m_needs(needs) {}

    /// Makes the copy the new version and says so on standard output. Throws ApplyError, FileError
    /// and Interrupted; the copy is then as it was.
    [[nodiscard]] Ending apply();
    /// Whether it would, as far as the copy itself is concerned. Changes nothing.
    [[nodiscard]] Ending tryOut();
    /// Whether the copy is the new version. Changes nothing.
    [[nodiscard]] Ending verify();

  private:
    enum class Purpose { changing, looking };
    Examination examined(const HeldFolder& folder, Purpose purpose);
    HeldFolder openedToLook() const;
    Ending reportDifferences(const Examination& examination);

    /// Locks the copy, after what an earlier run left was finished or taken away.
    HeldFolder recovered();
    std::optional<HeldFolder> putInPlace();
    bool isNewVersion(const HeldFolder& folder);
    void removeLeftovers(uid_t owner);
    void removeLeftover(const std::string& name, uid_t owner);

    HeldFolder madeBuildingPlace();
    HeldFolder lockedBuildingPlace();
    void build(const Examination& examination, const HeldFolder& copy, const HeldFolder& building);
    /// Answers the name that the old version has now.
    const std::string& exchanged(const HeldFolder& copy, const HeldFolder& building);
    const std::string& renamedBoth();
    void renameInParent(const std::string& from, const std::string& to);
    void removeOld(const HeldFolder& old, const std::string& name);
    /// What can't be removed is a complaint: the copy is whole without it.
    void removeBeside(const HeldFolder& folder, const std::string& name);
    std::string versionText() const;

    Needs m_needs;
    bool m_leavesBuilding = false; // it is needed to finish
};

} // namespace tools
