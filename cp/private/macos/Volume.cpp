#include "cp/private/Volume.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <sys/attr.h>
#include <sys/mount.h>
#include <unistd.h>

#include "cp/private/Catalogue.h"

namespace Corvaldine::CP::Private {

namespace {

// 255 UTF-16 units, which UTF-8 writes in three bytes each, and the zero at the end.
constexpr std::size_t kLongestName = 255 * 3 + 1;

struct Answer {
    std::uint32_t length;
    attrreference_t name;
    char text[(kLongestName + 3) / 4 * 4]; // whole words
};
static_assert(offsetof(Answer, name) == 4 && offsetof(Answer, text) == 12);

std::string givenName(const std::string& mountPoint) {
    struct attrlist wanted{};
    wanted.bitmapcount = ATTR_BIT_MAP_COUNT;
    wanted.volattr = ATTR_VOL_INFO | ATTR_VOL_NAME;
    Answer answer{};
    if (::getattrlist(mountPoint.c_str(), &wanted, &answer, sizeof answer, 0) != 0)
        return {};
    // The offset counts from the reference itself; an answer that is too long is cut off.
    const std::int64_t start = std::int64_t{offsetof(Answer, name)} + answer.name.attr_dataoffset;
    const std::int64_t end =
        std::min<std::int64_t>({start + answer.name.attr_length, answer.length, sizeof answer});
    if (start < static_cast<std::int64_t>(offsetof(Answer, text)) || start >= end)
        return {};
    const char* name = reinterpret_cast<const char*>(&answer) + start;
    return {name, ::strnlen(name, static_cast<std::size_t>(end - start))};
}

bool lies(const std::string& path, const std::string& mountPoint) {
    return mountPoint == "/" || path == mountPoint || path.starts_with(mountPoint + "/");
}

} // namespace

Volume volume_of(const std::string& path) {
    FSRef ref;
    struct statfs status;
    if (path_make_ref(path, ref) != kNoError || ::statfs(ref.path.c_str(), &status) != 0)
        return {};
    Volume volume{.mount_point = status.f_mntonname, .name = {}};
    // The startup disk is a group of volumes that look like one: what others hold is reached from
    // "/" by paths that say nothing of their own mount points, and the name is that of "/".
    if (!lies(ref.path, volume.mount_point))
        volume.mount_point = "/";
    volume.name = givenName(volume.mount_point);
    // A file system that doesn't name its volumes.
    if (volume.name.empty())
        volume.name = volume.mount_point.substr(volume.mount_point.rfind('/') + 1);
    return volume;
}

} // namespace Corvaldine::CP::Private
