// What becomes of each entry when a copy that has passed its check is updated: how its content
// comes about, and which owner, permissions, times and attributes it gets. Touches no file. Made by
// Update, carried out by TreeBuilder.
//
// Where the copy's permissions are the old version's they become the new one's, else they stay as
// somebody set them. Of the attributes those go that the old version has and the new one has not,
// and those come that the new one has changed; all others stay.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "tools/applyPatch/TreeJoin.h"

namespace tools {

/// What the new entry gets besides its content.
struct Metadata {
    uid_t owner = 0;
    gid_t group = 0;
    std::uint16_t mode = 0;
    timespec modified{};
    std::vector<patch::Attribute> attributes;
};

enum class Step : std::uint8_t {
    folder,  ///< a new folder
    keep,    ///< the copy's own entry `base` under one more name
    copy,    ///< a new file with the content of the copy's file `base`
    content, ///< a new file, by the patch's method
    link,    ///< a new symbolic link
};

struct PlannedEntry {
    std::uint32_t row; ///< of the join
    Step step;
    /// Index in the copy's tree, or in its specials where the row is one; -1 for none.
    std::int32_t base = -1;
};

class UpdatePlan {
  public:
    /// `join` must outlive this; `top` is the copy's own folder.
    UpdatePlan(const TreeJoin& join, const EntryStatus& top);

    const TreeJoin& join() const { return m_join; }
    /// In the order of their paths.
    const std::vector<PlannedEntry>& entries() const { return m_entries; }
    std::string_view path(const PlannedEntry& entry) const { return m_join.path(rowOf(entry)); }
    const patch::NewEntry* wanted(const PlannedEntry& entry) const {
        return m_join.after(rowOf(entry));
    }

    /// Of anything but a pipe, socket or device.
    Metadata metadata(const PlannedEntry& entry) const { return metadata(rowOf(entry)); }

    /// The copy's file that holds the content of an old entry, by its index.
    std::uint32_t fileOf(std::uint32_t oldEntry) const { return m_copyOfOld[oldEntry]; }

    /// Nothing would be other than it is.
    bool changesNothing() const { return m_changesNothing; }

    /// What making it takes: bytes of the volume, in blocks of `block` bytes, and new entries.
    struct Room {
        std::uint64_t bytes = 0;
        std::uint64_t entries = 0;
    };
    Room room(std::uint64_t block) const;
    /// Bytes of new files, for the progress.
    std::uint64_t bytesToMake() const;

  private:
    const TreeJoin::Row& rowOf(const PlannedEntry& entry) const { return m_join.rows()[entry.row]; }
    PlannedEntry planned(const TreeJoin::Row& row) const;
    PlannedEntry fromCopy(const TreeJoin::Row& row, std::int32_t base) const;
    Metadata metadata(const TreeJoin::Row& row) const;
    Metadata ofCopy(std::int32_t entry) const;
    const EntryStatus& folderAbove(std::string_view path) const;
    bool isAsBefore(const TreeJoin::Row& row, const Metadata& metadata) const;
    std::uint64_t sizeOf(const PlannedEntry& entry) const;

    const TreeJoin& m_join;
    EntryStatus m_top;
    std::vector<std::uint32_t> m_copyOfOld;
    std::vector<PlannedEntry> m_entries;
    bool m_changesNothing = true;
};

} // namespace tools
