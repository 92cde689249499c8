#include "cp/private/TreeWalk.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <memory>
#include <sys/stat.h>

#include "cp/private/Catalogue.h"
#include "cp/private/NodeLock.h"

namespace Corvaldine::CP::Private {

namespace {

struct CloseDirectory {
    void operator()(DIR* directory) const { ::closedir(directory); }
};

struct Level {
    childArray children;
    std::size_t next = 0;
    NodeIdentity identity;
};

bool makeLevel(int folder, Level& level) {
    return identify(folder, level.identity) && list_children(folder, level.children);
}

class Removal : public TreeVisitor {
  public:
    bool entry(int parent, const char* name) override { return ::unlinkat(parent, name, 0) == 0; }
    bool left(int parent, const char* name) override {
        return ::unlinkat(parent, name, AT_REMOVEDIR) == 0;
    }
};

// Nothing of an unfinished copy keeps it from being cleared away: neither its permissions nor its
// locked flags.
class Discarding : public Removal {
  public:
    bool enter(int, const char*, int folder) override {
        unlock(folder, ".");
        return ::fchmod(folder, S_IRWXU) == 0;
    }
    bool entry(int parent, const char* name) override {
        if (Removal::entry(parent, name))
            return true;
        unlock(parent, name);
        return Removal::entry(parent, name);
    }
    static void unlock(int folder, const char* name) {
        static_cast<void>(set_locked(open_node(folder, name, false), false));
    }
};

bool removeTree(const std::string& path, TreeVisitor& removal) {
    return walk_tree(open_folder(AT_FDCWD, path.c_str()), removal) && ::rmdir(path.c_str()) == 0;
}

// With a separator at the end the system would follow a link.
std::string withoutTrailingSeparators(std::string path) {
    while (path.size() > 1 && path.back() == '/')
        path.pop_back();
    return path;
}

} // namespace

bool TreeVisitor::enter(int, const char*, int) {
    return true;
}

bool TreeVisitor::leave(int) {
    return true;
}

bool TreeVisitor::left(int, const char*) {
    return true;
}

bool is_folder(int folder, const char* name, unsigned char kind) {
    if (kind != DT_UNKNOWN)
        return kind == DT_DIR;
    struct stat status{};
    return ::fstatat(folder, name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode);
}

bool list_children(int folder, childArray& children) {
    children.clear();
    FileDescriptor own(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!own.isOpen())
        return false;
    const std::unique_ptr<DIR, CloseDirectory> directory(::fdopendir(own.number()));
    if (!directory)
        return false;
    // The directory stream owns it from here on.
    own.release();
    for (;;) {
        errno = 0;
        // The stream is this call's own, so no other thread reads it.
        const dirent* entry = ::readdir(directory.get()); // NOLINT(concurrency-mt-unsafe)
        if (entry == nullptr)
            break;
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0)
            continue;
        const std::uint16_t flags =
            is_folder(folder, entry->d_name, entry->d_type) ? kNodeIsDirectory : 0;
        children.push_back({entry->d_name, flags});
    }
    if (errno != 0)
        return false;
    std::sort(children.begin(), children.end(),
              [](const childItem& a, const childItem& b) { return a.name < b.name; });
    return true;
}

FileDescriptor open_folder(int folder, const char* name) {
    return FileDescriptor(::openat(folder, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
}

bool identify(int node, NodeIdentity& identity) {
    struct stat status{};
    if (::fstat(node, &status) != 0)
        return false;
    identity = {.device = static_cast<std::uint64_t>(status.st_dev),
                .inode = static_cast<std::uint64_t>(status.st_ino)};
    return true;
}

FileDescriptor open_parent(int folder, const NodeIdentity& expected) {
    FileDescriptor parent = open_folder(folder, "..");
    NodeIdentity identity;
    if (!parent.isOpen() || !identify(parent.number(), identity) || identity != expected)
        return {};
    return parent;
}

bool walk_tree(FileDescriptor folder, TreeVisitor& visitor) {
    std::vector<Level> levels(1);
    if (!folder.isOpen() || !makeLevel(folder.number(), levels.back()))
        return false;
    for (;;) {
        Level& level = levels.back();
        if (level.next == level.children.size()) {
            if (!visitor.leave(folder.number()))
                return false;
            levels.pop_back();
            if (levels.empty())
                return true;
            folder = open_parent(folder.number(), levels.back().identity);
            const std::string& name = levels.back().children[levels.back().next - 1].name;
            if (!folder.isOpen() || !visitor.left(folder.number(), name.c_str()))
                return false;
            continue;
        }
        const childItem& child = level.children[level.next++];
        if ((child.nodeFlags & kNodeIsDirectory) == 0) {
            if (!visitor.entry(folder.number(), child.name.c_str()))
                return false;
            continue;
        }
        FileDescriptor below = open_folder(folder.number(), child.name.c_str());
        if (!below.isOpen() || !visitor.enter(folder.number(), child.name.c_str(), below.number()))
            return false;
        folder = std::move(below);
        levels.emplace_back();
        if (!makeLevel(folder.number(), levels.back()))
            return false;
    }
}

bool remove_tree(const std::string& path) {
    Removal removal;
    return removeTree(withoutTrailingSeparators(path), removal);
}

void discard_tree(const std::string& path) {
    Discarding discarding;
    const std::string tree = withoutTrailingSeparators(path);
    Discarding::unlock(AT_FDCWD, tree.c_str());
    ::chmod(tree.c_str(), S_IRWXU);
    removeTree(tree, discarding);
}

} // namespace Corvaldine::CP::Private
