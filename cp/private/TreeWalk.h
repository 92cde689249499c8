// Walks a folder and everything below it by descriptors: names are only ever looked up in a folder
// that is open, and links are entries like files, so a link put in a folder's place while the walk
// runs leads nowhere. Two descriptors are open at any depth and nothing recurses, so a tree may be
// thousands of levels deep. Used for removing, locking and copying; FolderWalk, which only looks
// for names, has a way of its own that neither sorts nor stops, and shares the steps below.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "cp/private/FileDescriptor.h"

namespace Corvaldine::CP::Private {

/// One entry of a folder and its node flags (Catalogue.h), of which the folder bit is used.
struct childItem {
    std::string name;
    std::uint16_t nodeFlags = 0;
};
/// In the order of the names' bytes.
using childArray = std::vector<childItem>;

/// Is this entry of an open folder a folder itself? `kind` is what the folder says (DT_DIR and its
/// like); only where it says nothing is the entry asked. A link is none.
[[nodiscard]] bool is_folder(int folder, const char* name, unsigned char kind);

/// `children` := the folder's entries without "." and ".."; false when it can't be read.
[[nodiscard]] bool list_children(int folder, childArray& children);

/// Opens a folder; closed when it is none. A link is not followed.
[[nodiscard]] FileDescriptor open_folder(int folder, const char* name);

/// What is done on the way. Each answers whether the walk goes on.
class TreeVisitor {
  public:
    virtual ~TreeVisitor() = default;
    /// A folder below `parent` is entered; `folder` is open on it.
    virtual bool enter(int parent, const char* name, int folder);
    /// An entry that is no folder.
    virtual bool entry(int parent, const char* name) = 0;
    /// Everything in this folder was visited. The first folder is left too, as the last.
    virtual bool leave(int folder);
    /// The same folder, seen from the one above. Not for the first folder.
    virtual bool left(int parent, const char* name);
};

/// Visits everything below the folder; children before their parents, in the order of their names.
/// Stops with false at the first failure, of the walk or the visitor.
[[nodiscard]] bool walk_tree(FileDescriptor folder, TreeVisitor& visitor);

/// Removes a folder with everything in it; stops at the first entry that can't be removed, which
/// stays with its parents and later siblings. A folder that can't be listed is not touched, nor is
/// a link. False when not everything is gone.
[[nodiscard]] bool remove_tree(const std::string& path);

/// Clears an unfinished copy away as far as it can be: write-protected folders in it are ours and
/// are made writable first, and what is locked is unlocked.
void discard_tree(const std::string& path);

/// Which file or folder an open descriptor is.
struct NodeIdentity {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    [[nodiscard]] bool operator==(const NodeIdentity&) const = default;
};
[[nodiscard]] bool identify(int node, NodeIdentity& identity);

/// Opens the folder above; closed when that isn't the expected one.
[[nodiscard]] FileDescriptor open_parent(int folder, const NodeIdentity& expected);

} // namespace Corvaldine::CP::Private
