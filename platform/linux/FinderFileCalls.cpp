#include "platform/posix/FinderFileCalls.h"

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

namespace posix {

namespace {

// Attributes of users live in the "user." part of the name space; behind it the name is Apple's.
constexpr const char* kAttribute = "user.com.apple.FinderInfo";
constexpr const char* kForkAttribute = "user.com.apple.ResourceFork";

std::optional<FinderBytes> readAttribute(const std::string& path) {
    FinderBytes value;
    const ssize_t length = ::lgetxattr(path.c_str(), kAttribute, value.data(), value.size());
    if (length != static_cast<ssize_t>(value.size()))
        return std::nullopt;
    return value;
}

std::vector<std::byte> readFork(const std::string& path) {
    const ssize_t expected = ::lgetxattr(path.c_str(), kForkAttribute, nullptr, 0);
    if (expected <= 0)
        return {};
    std::vector<std::byte> fork(static_cast<std::size_t>(expected));
    const ssize_t length = ::lgetxattr(path.c_str(), kForkAttribute, fork.data(), fork.size());
    fork.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    return fork;
}

int writeAttribute(const std::string& path, const FinderBytes& value) {
    return ::lsetxattr(path.c_str(), kAttribute, value.data(), value.size(), 0) == 0 ? 0 : errno;
}

std::int64_t creationTime(const std::string& path) {
    struct statx facts{};
    if (::statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_BASIC_STATS | STATX_BTIME,
                &facts) != 0)
        return 0;
    if (facts.stx_mask & STATX_BTIME)
        return facts.stx_btime.tv_sec;
    return std::min(facts.stx_mtime.tv_sec, facts.stx_ctime.tv_sec);
}

} // namespace

FinderFileCalls finderFileCalls() {
    return {.readAttribute = readAttribute,
            .readFork = readFork,
            .writeAttribute = writeAttribute,
            .creationTime = creationTime};
}

} // namespace posix
