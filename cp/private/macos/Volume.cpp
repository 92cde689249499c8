#include "cp/private/Volume.h"

#include <cstdint>
#include <cstring>
#include <sys/attr.h>
#include <unistd.h>

#include <sys/mount.h>

namespace Corvaldine::CP::Private {

std::string volume_name(const std::string& path) {
    // Volume attributes can only be asked of the volume's mount point.
    struct statfs volume;
    if (::statfs(path.c_str(), &volume) != 0)
        return {};
    struct attrlist wanted{};
    wanted.bitmapcount = ATTR_BIT_MAP_COUNT;
    wanted.volattr = ATTR_VOL_INFO | ATTR_VOL_NAME;
    struct __attribute__((packed)) {
        std::uint32_t length;
        attrreference_t name;
        char text[1024];
    } answer{};
    if (::getattrlist(volume.f_mntonname, &wanted, &answer, sizeof answer, 0) != 0)
        return {};
    // The offset counts from the reference itself.
    const char* name = reinterpret_cast<const char*>(&answer.name) + answer.name.attr_dataoffset;
    return {name, ::strnlen(name, answer.name.attr_length)};
}

} // namespace Corvaldine::CP::Private
