// An installed copy, read as a whole, with what a patch means for it. Used by Update. Only looks.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "tools/applyPatch/CopyCheck.h"
#include "tools/applyPatch/TreeJoin.h"
#include "tools/applyPatch/UpdatePlan.h"
#include "tools/files/Progress.h"

namespace tools {

class Examination {
  public:
    struct Needs {
        int folder;       ///< the copy
        std::string path; ///< for messages
        const patch::Manifest& manifest;
        Progress& progress;
        /// Where it is only to be looked, folders that are closed to this user and of no concern to
        /// the patch are passed over.
        bool passesClosedFolders;
    };

    /// Reads every file that the patch knows. Throws FileError, ApplyError and Interrupted.
    explicit Examination(const Needs& needs);
    Examination(const Examination&) = delete;
    Examination& operator=(const Examination&) = delete;

    /// The copy is the new version, and there is nothing left to be done to it.
    bool isNewVersion() const {
        return m_check.hasNewContent && (!m_plan || m_plan->changesNothing());
    }
    bool applies() const { return m_plan && !isNewVersion(); }
    const std::vector<Difference>& differences() const { return m_check.differences; }

    /// Where the patch applies.
    const UpdatePlan& plan() const { return *m_plan; }
    /// Of the copy's own folder, which has no entry.
    const Metadata& top() const { return m_topMetadata; }
    std::uint64_t bytesRead() const { return m_bytesRead; }

  private:
    void refuseWhatCantBeRead(const Needs& needs) const;
    void read(const Needs& needs);

    EntryStatus m_top;
    Metadata m_topMetadata;
    Tree m_tree;
    TreeJoin m_join;
    CopyCheck m_check;
    std::optional<UpdatePlan> m_plan;
    std::uint64_t m_bytesRead = 0;
};

} // namespace tools
