#include "tools/files/ExtendedAttributes.h"

#include <array>
#include <cerrno>

#include <sys/xattr.h>

#include "tools/files/Descriptor.h"

namespace tools {

namespace {

constexpr std::string_view kUser = "user.";
constexpr std::string_view kAccessList = "system.posix_acl_";

// What stands for "there is none", or none for this user. Anything else is the disk's failure.
bool saysNone(int error) {
    return error == ENODATA || error == ENOTSUP || error == EACCES || error == EPERM;
}

std::vector<std::string> split(std::string_view names) {
    std::vector<std::string> all;
    while (!names.empty()) {
        const std::size_t end = names.find('\0');
        all.emplace_back(names.substr(0, end));
        names.remove_prefix(end + 1);
    }
    return all;
}

} // namespace

std::vector<std::string> attributeNames(int file) {
    std::array<char, 1024> buffer{};
    ssize_t length = ::flistxattr(file, buffer.data(), buffer.size());
    if (length >= 0)
        return split({buffer.data(), static_cast<std::size_t>(length)});
    if (saysNone(errno))
        return {};
    if (errno != ERANGE)
        throwErrno();
    std::vector<char> all(65536); // the kernel's limit, XATTR_LIST_MAX
    length = checked(::flistxattr(file, all.data(), all.size()));
    return split({all.data(), static_cast<std::size_t>(length)});
}

std::optional<formats::Bytes> attributeValue(int file, const std::string& name) {
    formats::Bytes value(65536); // the kernel's limit, XATTR_SIZE_MAX
    const ssize_t length = ::fgetxattr(file, name.c_str(), value.data(), value.size());
    if (length < 0 && saysNone(errno))
        return std::nullopt;
    value.resize(static_cast<std::size_t>(checked(length)));
    return value;
}

int putAttribute(int file, const std::string& name, std::span<const std::byte> value) {
    return ::fsetxattr(file, name.c_str(), value.data(), value.size(), 0) == 0 ? 0 : errno;
}

void removeAttribute(int file, const std::string& name) {
    ::fremovexattr(file, name.c_str());
}

std::string systemAttributeName(std::string_view name) {
    return std::string(kUser) + std::string(name);
}

std::optional<std::string> macAttributeName(std::string_view systemName) {
    if (!systemName.starts_with(kUser))
        return std::nullopt;
    return std::string(systemName.substr(kUser.size()));
}

bool isCopiedAttribute(std::string_view systemName) {
    return systemName.starts_with(kUser) || isAccessList(systemName);
}

bool isAccessList(std::string_view systemName) {
    return systemName.starts_with(kAccessList);
}

} // namespace tools
