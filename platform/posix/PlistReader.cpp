#include "platform/posix/PlistReader.h"

#include <cerrno>
#include <fcntl.h>
#include <plist/plist.h>
#include <sys/stat.h>

#include "platform/posix/Descriptor.h"
#include "platform/posix/PlistGuard.h"

namespace posix {

namespace {

/// A regular file that is not too big. Anything else is not even opened for reading: a pipe in its
/// place would never end.
std::optional<std::string> contents(const std::string& path) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    struct stat status{};
    if (!file.isOpen() || ::fstat(file.number(), &status) != 0 || !S_ISREG(status.st_mode) ||
        status.st_size > static_cast<off_t>(PlistLimits::kBytes))
        return std::nullopt;
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    std::size_t have = 0;
    while (have < bytes.size()) {
        const ssize_t count = ::read(file.number(), bytes.data() + have, bytes.size() - have);
        if (count > 0)
            have += static_cast<std::size_t>(count);
        else if (count == 0 || errno != EINTR)
            break;
    }
    bytes.resize(have);
    return bytes;
}

std::optional<std::string> stringOf(plist_t node) {
    if (!PLIST_IS_STRING(node))
        return std::nullopt;
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return text ? std::optional(std::string(text, length)) : std::nullopt;
}

} // namespace

void PlistReader::Free::operator()(void* list) const {
    plist_free(list);
}

std::optional<PlistReader> PlistReader::readFile(const std::string& path) {
    const auto bytes = contents(path);
    return bytes ? read(*bytes) : std::nullopt;
}

std::optional<PlistReader> PlistReader::read(std::string_view bytes) {
    if (!isSafePlist(bytes))
        return std::nullopt;
    plist_t list = nullptr;
    plist_from_memory(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &list);
    return list ? std::optional(PlistReader(list)) : std::nullopt;
}

std::optional<std::string> PlistReader::string(std::string_view key) const {
    // The library takes keys as C strings.
    if (!PLIST_IS_DICT(m_list.get()) || key.find('\0') != std::string_view::npos)
        return std::nullopt;
    return stringOf(plist_dict_get_item(m_list.get(), std::string(key).c_str()));
}

} // namespace posix
