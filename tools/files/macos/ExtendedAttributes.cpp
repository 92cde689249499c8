#include "tools/files/ExtendedAttributes.h"

#include <cerrno>

#include <sys/xattr.h>

#include "tools/files/Descriptor.h"

namespace tools {

namespace {

// What stands for "there is none", or none for this user. Anything else is the disk's failure.
bool saysNone(int error) {
    return error == ENOATTR || error == ENOTSUP || error == EACCES || error == EPERM;
}

} // namespace

std::vector<std::string> attributeNames(int file) {
    const ssize_t room = ::flistxattr(file, nullptr, 0, 0);
    if (room == 0 || (room < 0 && saysNone(errno)))
        return {};
    std::string names(static_cast<std::size_t>(checked(room)), '\0');
    const ssize_t length = checked(::flistxattr(file, names.data(), names.size(), 0));
    std::vector<std::string> all;
    names.resize(static_cast<std::size_t>(length));
    for (std::size_t at = 0; at < names.size(); at = names.find('\0', at) + 1)
        all.emplace_back(names.c_str() + at);
    return all;
}

std::optional<formats::Bytes> attributeValue(int file, const std::string& name) {
    const ssize_t room = ::fgetxattr(file, name.c_str(), nullptr, 0, 0, 0);
    if (room < 0 && saysNone(errno))
        return std::nullopt;
    formats::Bytes value(static_cast<std::size_t>(checked(room)));
    // Without room the next call would be the same question once more.
    if (room == 0)
        return value;
    const ssize_t length = ::fgetxattr(file, name.c_str(), value.data(), value.size(), 0, 0);
    if (length < 0 && saysNone(errno))
        return std::nullopt;
    value.resize(static_cast<std::size_t>(checked(length)));
    return value;
}

int putAttribute(int file, const std::string& name, std::span<const std::byte> value) {
    return ::fsetxattr(file, name.c_str(), value.data(), value.size(), 0, 0) == 0 ? 0 : errno;
}

void removeAttribute(int file, const std::string& name) {
    ::fremovexattr(file, name.c_str(), 0);
}

std::string systemAttributeName(std::string_view name) {
    return std::string(name);
}

std::optional<std::string> macAttributeName(std::string_view systemName) {
    return std::string(systemName);
}

bool isCopiedAttribute(std::string_view) {
    return true;
}

bool isAccessList(std::string_view) {
    return false;
}

} // namespace tools
