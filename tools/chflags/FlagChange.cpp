#include "tools/chflags/FlagChange.h"

#include <deque>
#include <vector>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>

#include "tools/files/Descriptor.h"
#include "tools/files/FolderEntries.h"
#include "tools/files/Folders.h"

namespace tools {

void FlagChange::apply(const std::string& path) {
    try {
        change(AT_FDCWD, path.c_str());
    } catch (const std::exception& error) {
        m_complaints.about(path, error);
    }
}

void FlagChange::applyToTree(const std::string& path) {
    try {
        if (change(AT_FDCWD, path.c_str()))
            walk(path);
    } catch (const std::exception& error) {
        m_complaints.about(path, error);
    }
}

void FlagChange::walk(const std::string& path) {
    const Descriptor top(
        checked(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)));
    FolderDescriptors descriptors(top.number());
    std::deque<Folder> folders(1); // addresses stay
    std::vector<const Folder*> pending{&folders.front()};
    while (!pending.empty()) {
        const Folder& folder = *pending.back();
        pending.pop_back();
        try {
            FolderEntries entries(descriptors.of(folder));
            while (const auto entry = entries.next()) {
                try {
                    if (change(entries.descriptor(), entry->name)) {
                        folders.push_back({&folder, entry->name});
                        pending.push_back(&folders.back());
                    }
                } catch (const std::exception& error) {
                    m_complaints.about(path + '/' + folder.pathOf(entry->name), error);
                }
            }
        } catch (const std::exception& error) {
            m_complaints.about(
                folder.parent == nullptr ? path : path + '/' + folder.parent->pathOf(folder.name),
                error);
        }
    }
}

bool FlagChange::change(int folder, const char* name) {
    struct statx status{};
    checked(::statx(folder, name, AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, STATX_TYPE, &status));
    const bool isFolder = S_ISDIR(status.stx_mode);
    const bool wanted = m_to == To::immutable;
    // Most file systems tell here, so that nothing has to be opened.
    const bool isTold = (status.stx_attributes_mask & STATX_ATTR_IMMUTABLE) != 0;
    if (isTold && ((status.stx_attributes & STATX_ATTR_IMMUTABLE) != 0) == wanted)
        return isFolder;
    // Opening a device or a pipe may do things; they carry no flags.
    const bool hasFlags = isFolder || S_ISREG(status.stx_mode);
    const Descriptor file(
        hasFlags ? ::openat(folder, name, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC) : -1);
    int flags = 0;
    if (!file.isOpen() || ::ioctl(file.number(), FS_IOC_GETFLAGS, &flags) != 0) {
        if (!wanted && !isTold)
            return isFolder; // as far as anybody can tell, none is set
        throw std::system_error(hasFlags && !file.isOpen() ? errno : EOPNOTSUPP,
                                std::generic_category());
    }
    if (((flags & FS_IMMUTABLE_FL) != 0) != wanted) {
        flags ^= FS_IMMUTABLE_FL;
        checked(::ioctl(file.number(), FS_IOC_SETFLAGS, &flags));
    }
    return isFolder;
}

} // namespace tools
