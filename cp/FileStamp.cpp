#include "cp/FileStamp.h"

#include "cp/private/FileStatus.h"

namespace Corvaldine::CP {

bool FileStamp::holds(const FileStamp& now) const {
    return settled && device == now.device && inode == now.inode && size == now.size &&
           written == now.written && changed == now.changed;
}

std::optional<FileStamp> stamp_of(const std::string& path) {
    struct stat status{};
    if (::stat(path.c_str(), &status) != 0)
        return std::nullopt;
    return Private::stamp_from(status);
}

} // namespace Corvaldine::CP
