#include "tools/ditto/TreeQuestions.h"

#include <deque>
#include <system_error>
#include <vector>

#include <dirent.h>
#include <fcntl.h>

#include "tools/files/Descriptor.h"
#include "tools/files/FolderEntries.h"
#include "tools/files/Folders.h"

namespace tools {

bool areSame(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

bool isInside(const std::string& path, const struct stat& folder) {
    Descriptor at(::open(nearestExisting(path).c_str(), O_PATH | O_CLOEXEC));
    struct stat status{};
    if (!at.isOpen() || ::fstat(at.number(), &status) != 0 || !S_ISDIR(status.st_mode))
        return false;
    for (;;) {
        if (areSame(status, folder))
            return true;
        const struct stat below = status;
        at = Descriptor(::openat(at.number(), "..", O_PATH | O_CLOEXEC));
        if (!at.isOpen() || ::fstat(at.number(), &status) != 0 || areSame(status, below))
            return false; // the root is its own parent
    }
}

std::uint64_t sizeOfTree(int top) {
    std::uint64_t total = 0;
    FolderDescriptors descriptors(top);
    std::deque<Folder> folders(1);
    std::vector<const Folder*> pending{&folders.front()};
    while (!pending.empty()) {
        const Folder& folder = *pending.back();
        pending.pop_back();
        try {
            FolderEntries entries(descriptors.of(folder));
            while (const auto entry = entries.next()) {
                struct stat status{};
                if (entry->kind == DT_DIR) {
                    folders.push_back({&folder, entry->name});
                    pending.push_back(&folders.back());
                } else if (entry->kind == DT_REG && ::fstatat(entries.descriptor(), entry->name,
                                                              &status, AT_SYMLINK_NOFOLLOW) == 0) {
                    total += static_cast<std::uint64_t>(status.st_size);
                }
            }
        } catch (const std::system_error&) {
            continue;
        }
    }
    return total;
}

} // namespace tools
