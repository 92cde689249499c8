// Three trees side by side: the installed copy as it lies, the old version and the new one as the
// patch has them. One row for each path that any of them knows. Used by CopyCheck and UpdatePlan.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "patcher/format/Manifest.h"
#include "tools/patchTree/TreeReader.h"

namespace tools {

class TreeJoin {
  public:
    /// Indices into the lists, -1 for none.
    struct Row {
        std::int32_t copy = -1;
        std::int32_t before = -1;
        std::int32_t after = -1;
        std::int32_t special = -1; ///< of the copy's pipes, sockets and devices
        /// Beyond the old version, and no matter of the new one: what somebody put there.
        bool isExtra() const { return before < 0 && after < 0; }
        /// Part of the old version only.
        bool isDropped() const { return before >= 0 && after < 0; }
    };

    /// Both must outlive this and keep their entries.
    TreeJoin(const Tree& copy, const patch::Manifest& manifest);

    const Tree& tree() const { return m_copy; }
    const patch::Manifest& manifest() const { return m_manifest; }

    /// In the order of their paths.
    const std::vector<Row>& rows() const { return m_rows; }
    std::string_view path(const Row& row) const;
    /// Null for none.
    const patch::Entry* copy(const Row& row) const;
    const EntryStatus* status(const Row& row) const;
    const patch::Entry* before(const Row& row) const;
    const patch::NewEntry* after(const Row& row) const;

    /// A folder that the new version drops but that holds extras, so that it stays.
    bool staysForExtras(const Row& row) const;

    /// Files whose digest is needed to tell whether the copy is one of the two versions.
    std::vector<std::uint32_t> filesToRead() const;

  private:
    void join();
    void findFoldersOfExtras();

    const Tree& m_copy;
    const patch::Manifest& m_manifest;
    std::vector<Row> m_rows;
    std::vector<bool> m_holdsExtras; // by row
};

} // namespace tools
