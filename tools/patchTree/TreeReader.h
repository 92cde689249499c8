// Reads a folder with all that is in it as the patch format describes trees. Used by makePatch for
// the two versions and by applyPatch for an installed copy. Changes nothing, follows no link.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <sys/stat.h>

#include "patcher/format/Manifest.h"
#include "tools/files/StatusTimes.h"

namespace tools {

/// What the system knows of an entry beyond what a patch says of it.
struct EntryStatus {
    dev_t device = 0;
    ino_t inode = 0;
    nlink_t names = 0;
    uid_t owner = 0;
    gid_t group = 0;
    timespec modified{};
    timespec changed{};     ///< the status; later than any change of content or status
    std::uint64_t room = 0; ///< bytes it takes on disk
};

EntryStatus entryStatus(const struct stat& status);
patch::Time patchTime(const timespec& time);

struct Tree {
    /// Sorted as patch::pathOrder says. Folders have their attributes; files have neither digest
    /// nor attributes until they are asked for.
    std::vector<patch::Entry> entries;
    std::vector<EntryStatus> statuses; ///< one for each entry

    /// Pipes, sockets and devices, which no patch knows, in order.
    struct Special {
        std::string path;
        EntryStatus status;
    };
    std::vector<Special> specials;
    /// Folders that this user can't look into, with the error; they stand among the entries.
    struct Closed {
        std::uint32_t entry;
        int error;
    };
    std::vector<Closed> closed;
};

class TreeReader {
  public:
    /// Called with the bytes that were read just now, from any thread; what it throws ends the
    /// reading.
    using Told = std::function<void(std::uint64_t bytes)>;

    /// `top` stays open while this is used and is not closed by it.
    explicit TreeReader(int top) : m_top(top) {}

    /// All that is below the top, without the top itself. Throws FileError with the path from the
    /// top on, ENAMETOOLONG or EFBIG for what is beyond the patch format's bounds.
    Tree list() const;

    /// Adds digest and attributes of the chosen entries, all of which are files; on all cores.
    /// Throws FileError, with ESTALE for a file that is another one or changed since the list.
    void addDigests(Tree& tree, const std::vector<std::uint32_t>& chosen,
                    const Told& told = {}) const;

    /// The same for all files.
    void addDigests(Tree& tree, const Told& told = {}) const;

  private:
    int m_top;
};

/// The attributes of an open file or folder that belong to a tree, sorted by name.
std::vector<patch::Attribute> treeAttributes(int file);

} // namespace tools
