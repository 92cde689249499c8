#include "platform/posix/FinderItems.h"

#include <cerrno>
#include <cstdlib>
#include <memory>

#include <fcntl.h>
#include <sys/stat.h>

namespace posix {

using ports::FinderInformation;

int classicError(int error) {
    switch (error) {
    case 0:
        return 0;
    case ENOENT:
    case ENOTDIR:
        return -43;
    case EEXIST:
        return -48;
    case EACCES:
    case EPERM:
    case EROFS:
        return -61;
    default:
        return -36;
    }
}

std::optional<std::string> realPath(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    if (!real)
        return std::nullopt;
    return real.get();
}

std::string_view itemName(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

std::string itemFolder(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

std::string itemPath(std::string path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    const std::string_view name = itemName(path);
    if (name == "." || name == "..")
        return realPath(path).value_or(path);
    return path;
}

int changeableItem(const std::string& path) {
    struct stat facts{};
    if (::lstat(path.c_str(), &facts) != 0)
        return errno;
    return S_ISLNK(facts.st_mode) ? ELOOP : 0;
}

Descriptor createEmptyFile(const std::string& path) {
    int file = -1;
    do {
        file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    } while (file < 0 && errno == EINTR);
    return Descriptor(file);
}

FinderInformation decoded(const FinderBytes& bytes) {
    const auto number = [&](std::size_t at, std::size_t width) {
        std::uint32_t value = 0;
        for (std::size_t i = at; i < at + width; ++i)
            value = value << 8 | std::to_integer<std::uint32_t>(bytes[i]);
        return value;
    };
    return {number(0, 4), number(4, 4), static_cast<std::uint16_t>(number(8, 2))};
}

FinderBytes encoded(const FinderInformation& information, FinderBytes rest) {
    const auto put = [&](std::size_t at, std::size_t width, std::uint32_t value) {
        for (std::size_t i = at + width; i-- > at; value >>= 8)
            rest[i] = static_cast<std::byte>(value & 0xFF);
    };
    put(0, 4, information.type);
    put(4, 4, information.creator);
    put(8, 2, information.flags);
    return rest;
}

} // namespace posix
