#include "cp/private/_CNativeDir.h"

#include <filesystem>
#include <sys/stat.h>
#include <system_error>

#include "cp/CDir.h"
#include "cp/CFSRefConverter.h"
#include "cp/CFileUtils.h"
#include "cp/private/CopyFile.h"
#include "cp/private/NodeLock.h"
#include "cp/private/PathConversion.h"
#include "cp/private/TreeWalk.h"

namespace Corvaldine::CP::Private {

namespace {

class Locking : public TreeVisitor {
  public:
    explicit Locking(bool lock) : m_lock(lock) {}

    bool entry(int parent, const char* name) override {
        struct stat status{};
        if (::fstatat(parent, name, &status, AT_SYMLINK_NOFOLLOW) != 0)
            return false;
        // Only files have the flag; links, pipes and devices are passed by.
        return !S_ISREG(status.st_mode) || set_locked(open_node(parent, name, false), m_lock);
    }

    bool leave(int folder) override { return set_locked(open_node(folder, ".", false), m_lock); }

  private:
    bool m_lock;
};

bool lockTree(const CPath& path, bool lock) {
    const auto text = system_path(path);
    if (!text)
        return false;
    Locking locking(lock);
    // The path itself may be a link to the folder.
    FileDescriptor folder(::open(text->c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return walk_tree(std::move(folder), locking);
}

// Open to everyone as far as the user's mask allows.
bool makeFolder(const std::string& path) {
    return ::mkdir(path.c_str(), S_IRWXU | S_IRWXG | S_IRWXO) == 0;
}

bool isLink(const CPath& path) {
    const auto text = system_path(path);
    std::error_code error;
    return text && std::filesystem::is_symlink(*text, error);
}

} // namespace

bool _CNativeDir::copy(const CPath& src, const CPath& dst) const {
    const auto from = system_path(src);
    const auto to = system_path(dst);
    return from && to && copy_file(*from, *to, kCopyAll | kCopyRecursive);
}

bool _CNativeDir::create(const CPath& path) const {
    CPath parent = path;
    parent.as_item(CPath::item_parent);
    CFSRefConverter converter(parent);
    const FSRef& folder = converter;
    CPath name;
    path.get_item(CPath::item_name, name);
    const auto text = system_path(name);
    return text && makeFolder(folder.path + "/" + *text);
}

bool _CNativeDir::create_in_parent(const CPath& path) const {
    const auto text = system_path(path);
    return text && makeFolder(*text);
}

DirectoryLock _CNativeDir::get_native_lock_implementation() const {
    return &lockTree;
}

bool _CNativeDir::_remove_directory(const CPath& path) {
    const auto text = system_path(path);
    return text && remove_tree(*text);
}

bool lock_portably(const CPath& path, bool lock) {
    for (const CPath& entry : CDir(path)) {
        if (isLink(entry))
            continue;
        if (entry.is_directory() ? !lock_portably(entry, lock) : !CFileUtils::lock(entry, lock))
            return false;
    }
    return CFileUtils::lock(path, lock);
}

} // namespace Corvaldine::CP::Private
