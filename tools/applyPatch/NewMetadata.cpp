#include "tools/applyPatch/NewMetadata.h"

#include <fcntl.h>
#include <sys/stat.h>

#include "tools/files/Descriptor.h"
#include "tools/files/ExtendedAttributes.h"

namespace tools {

namespace {

constexpr mode_t kRunsAsOwner = S_ISUID | S_ISGID;
constexpr timespec kUntouched{.tv_sec = 0, .tv_nsec = UTIME_OMIT};

bool isRefusal(int error) {
    return error == EPERM || error == EACCES || error == ENOTSUP || error == EOPNOTSUPP ||
           error == ERANGE || error == E2BIG;
}

enum class Lists { no, yes };

void giveAttributes(int file, const std::vector<patch::Attribute>& attributes, Lists lists) {
    for (const patch::Attribute& attribute : attributes) {
        if (isAccessList(attribute.name) != (lists == Lists::yes))
            continue;
        const int error = setAttribute(file, attribute.name, attribute.value);
        if (error != 0 && !isRefusal(error))
            throw std::system_error(error, std::generic_category());
    }
}

} // namespace

void giveMetadata(int file, const Metadata& metadata) {
    giveAttributes(file, metadata.attributes, Lists::no);
    struct stat now{};
    checked(::fstat(file, &now));
    mode_t mode = metadata.mode;
    if (now.st_uid != metadata.owner || now.st_gid != metadata.group) {
        const bool isGiven = ::fchown(file, metadata.owner, metadata.group) == 0;
        if (!isGiven && errno != EPERM && errno != EINVAL)
            throwErrno();
        if (!isGiven) {
            mode &= ~kRunsAsOwner;
            // Its group may still be one of this user's; nothing is lost where it is not.
            if (now.st_gid != metadata.group) [[maybe_unused]]
                const int ignored = ::fchown(file, static_cast<uid_t>(-1), metadata.group);
        }
    }
    checked(::fchmod(file, mode));
    giveAttributes(file, metadata.attributes, Lists::yes);
    const timespec times[2] = {kUntouched, metadata.modified};
    checked(::futimens(file, times));
}

void giveLinkMetadata(int folder, const std::string& name, const Metadata& metadata) {
    if (::fchownat(folder, name.c_str(), metadata.owner, metadata.group, AT_SYMLINK_NOFOLLOW) !=
            0 &&
        errno != EPERM && errno != EINVAL)
        throwErrno();
    const timespec times[2] = {kUntouched, metadata.modified};
    checked(::utimensat(folder, name.c_str(), times, AT_SYMLINK_NOFOLLOW));
}

} // namespace tools
