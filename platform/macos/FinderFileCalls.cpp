#include "platform/posix/FinderFileCalls.h"

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <sys/xattr.h>

#include "platform/macos/ResourceForkWriter.h"

namespace posix {

namespace {

constexpr ssize_t kLongestFork = ssize_t{256} << 20; // what is taken into memory at most

std::optional<FinderBytes> readAttribute(const std::string& path) {
    FinderBytes value;
    const ssize_t length = ::getxattr(path.c_str(), XATTR_FINDERINFO_NAME, value.data(),
                                      value.size(), 0, XATTR_NOFOLLOW);
    if (length != static_cast<ssize_t>(value.size()))
        return std::nullopt;
    return value;
}

std::vector<std::byte> readFork(const std::string& path) {
    const auto get = [&path](void* bytes, std::size_t size, std::size_t at) {
        return ::getxattr(path.c_str(), XATTR_RESOURCEFORK_NAME, bytes, size,
                          static_cast<std::uint32_t>(at), XATTR_NOFOLLOW);
    };
    const ssize_t expected = get(nullptr, 0, 0);
    if (expected <= 0 || expected > kLongestFork)
        return {};
    std::vector<std::byte> fork(static_cast<std::size_t>(expected));
    // One call may give less than all of a long fork.
    std::size_t length = 0;
    while (length < fork.size()) {
        const ssize_t got = get(fork.data() + length, fork.size() - length, length);
        if (got <= 0)
            return {};
        length += static_cast<std::size_t>(got);
    }
    return fork;
}

// All zero is how the system says "none": it takes the attribute away then.
int writeAttribute(const std::string& path, const FinderBytes& value) {
    return ::setxattr(path.c_str(), XATTR_FINDERINFO_NAME, value.data(), value.size(), 0,
                      XATTR_NOFOLLOW) == 0
               ? 0
               : errno;
}

std::int64_t creationTime(const std::string& path) {
    struct stat facts{};
    if (::lstat(path.c_str(), &facts) != 0)
        return 0;
    // A file system without creation times says zero or less.
    if (facts.st_birthtimespec.tv_sec > 0)
        return facts.st_birthtimespec.tv_sec;
    return std::min(facts.st_mtimespec.tv_sec, facts.st_ctimespec.tv_sec);
}

} // namespace

FinderFileCalls finderFileCalls() {
    return {.readAttribute = readAttribute,
            .readFork = readFork,
            .writeAttribute = writeAttribute,
            .creationTime = creationTime};
}

} // namespace posix

namespace macoshost {

int writeResourceFork(int file, std::span<const std::byte> fork) {
    return ::fsetxattr(file, XATTR_RESOURCEFORK_NAME, fork.data(), fork.size(), 0, 0) == 0 ? 0
                                                                                           : errno;
}

} // namespace macoshost
