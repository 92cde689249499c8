#include "cp/private/RenameExclusively.h"

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>

namespace Corvaldine::CP::Private {

bool rename_exclusively(const std::string& from, const std::string& to) {
    const int error = rename_unless_taken(from.c_str(), to.c_str());
    if (error == 0)
        return true;
    if (error != EEXIST && error != ENOTSUP)
        return false;
    struct stat source{};
    struct stat target{};
    const bool taken = ::lstat(to.c_str(), &target) == 0;
    if (::lstat(from.c_str(), &source) != 0)
        return false;
    // With more links than one, the two names may be two entries.
    const bool sameEntry = taken && source.st_dev == target.st_dev &&
                           source.st_ino == target.st_ino &&
                           (S_ISDIR(source.st_mode) || source.st_nlink == 1);
    return (!taken || sameEntry) && std::rename(from.c_str(), to.c_str()) == 0;
}

} // namespace Corvaldine::CP::Private
