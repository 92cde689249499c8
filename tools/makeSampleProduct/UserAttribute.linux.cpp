#include "tools/makeSampleProduct/UserAttribute.h"

#include <sys/xattr.h>

namespace tools {

void setUserAttribute(const std::filesystem::path& path, const std::string& name,
                      const std::string& value) {
    (void)setxattr(path.c_str(), ("user." + name).c_str(), value.data(), value.size(), 0);
}

} // namespace tools
