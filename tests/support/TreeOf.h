// A folder with all that is in it as a value, so that a test can say that two are alike or that one
// is as it was.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace tests {

/// Every item below `top` with what tells two trees apart.
inline std::map<std::string, std::string> treeOf(const std::filesystem::path& top) {
    namespace fs = std::filesystem;
    std::map<std::string, std::string> tree;
    for (const auto& item : fs::recursive_directory_iterator(top)) {
        const auto status = item.symlink_status();
        std::string what = std::to_string(static_cast<int>(status.permissions()) & 0777);
        if (item.is_symlink())
            what = "-> " + fs::read_symlink(item).string();
        else if (item.is_regular_file())
            what += " " + contentsOf(item);
        tree[fs::relative(item.path(), top).string()] = what;
    }
    return tree;
}

} // namespace tests
