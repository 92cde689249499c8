#include "cp/private/FinderInformation.h"

#include <array>
#include <sys/types.h>
#include <sys/xattr.h>

namespace Corvaldine::CP::Private {

namespace {

constexpr const char* kAttribute = "com.apple.FinderInfo";
// The whole record: 16 bytes of information proper and 16 of extended information.
constexpr std::size_t kRecordSize = 32;

} // namespace

bool finder_file_type(const std::string& path, std::uint32_t& code) {
    std::array<unsigned char, kRecordSize> information{};
    const ssize_t size =
        ::getxattr(path.c_str(), kAttribute, information.data(), information.size(), 0, 0);
    if (size < 4)
        return false;
    code = static_cast<std::uint32_t>(information[0]) << 24 |
           static_cast<std::uint32_t>(information[1]) << 16 |
           static_cast<std::uint32_t>(information[2]) << 8 | information[3];
    return true;
}

} // namespace Corvaldine::CP::Private
