#include "cp/private/Volume.h"

#include <cstddef>
#include <fstream>
#include <sstream>

#include "cp/private/Catalogue.h"

namespace Corvaldine::CP::Private {

namespace {

constexpr const char* kNameOfRoot = "File System"; // as FinderFileStore calls it in aliases

// The kernel writes blanks, line ends and backslashes in a mount point as "\" and three octal
// digits.
std::string unescaped(const std::string& field) {
    auto digit = [&field](std::size_t at) { return static_cast<unsigned>(field[at] - '0'); };
    std::string out;
    for (std::size_t i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size()) {
            out += static_cast<char>(digit(i + 1) * 64 + digit(i + 2) * 8 + digit(i + 3));
            i += 3;
        } else {
            out += field[i];
        }
    }
    return out;
}

bool contains(const std::string& mountPoint, const std::string& path) {
    return path.starts_with(mountPoint) &&
           (path.size() == mountPoint.size() || path[mountPoint.size()] == '/');
}

} // namespace

Volume volume_of(const std::string& path) {
    FSRef ref;
    if (path_make_ref(path, ref) != kNoError)
        return {};
    std::string best;
    std::ifstream mounts("/proc/self/mountinfo");
    for (std::string line; std::getline(mounts, line);) {
        // Mount number, parent's number, device, root within the file system, mount point, ...
        std::istringstream fields(line);
        std::string field;
        for (int i = 0; i < 5; ++i)
            fields >> field;
        const std::string mountPoint = unescaped(field);
        if (mountPoint.size() > best.size() && contains(mountPoint, ref.path))
            best = mountPoint;
    }
    const std::size_t separator = best.rfind('/');
    const bool hasName = separator != std::string::npos && best != "/";
    return {.mount_point = best, .name = hasName ? best.substr(separator + 1) : kNameOfRoot};
}

} // namespace Corvaldine::CP::Private
