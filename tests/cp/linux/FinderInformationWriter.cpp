#include "tests/cp/FinderInformationWriter.h"

#include <sys/types.h>
#include <sys/xattr.h>

bool writeFinderInformation(const std::string& path, const std::string& record) {
    return ::setxattr(path.c_str(), "user.com.apple.FinderInfo", record.data(), record.size(), 0) ==
           0;
}
