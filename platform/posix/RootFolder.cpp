#include "platform/posix/RootFolder.h"

#include <filesystem>
#include <system_error>

namespace posix {

namespace {

std::string resolved(const std::string& path) {
    std::error_code error;
    const std::filesystem::path canonical = std::filesystem::canonical(path, error);
    return error ? path : canonical.string();
}

std::string withSlash(std::string path) {
    if (!path.ends_with('/'))
        path += '/';
    return path;
}

} // namespace

RootFolder::RootFolder(const std::string& path)
    : m_prefix(path.empty() ? "/" : withSlash(resolved(path))) {}

bool RootFolder::holds(const std::string& path) const {
    return isEverywhere() || resolved(path).starts_with(m_prefix);
}

} // namespace posix
