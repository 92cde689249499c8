// A folder with everything that an update may not lose, as a value: what treeOf has, extended
// attributes, and the folder itself under ".". For the tests that judge an installed copy. Looks
// only. Linux.
#pragma once

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <sys/xattr.h>

#include "tests/support/TreeOf.h"

namespace tests {

/// The user's attributes of a file or folder, "name=value" each, sorted; those of a link don't
/// exist.
inline std::string attributesOf(const std::filesystem::path& item) {
    std::string names(4096, '\0');
    const ssize_t length = ::llistxattr(item.c_str(), names.data(), names.size());
    names.resize(length < 0 ? 0 : static_cast<std::size_t>(length));
    std::vector<std::string> all;
    std::istringstream each(names);
    for (std::string name; std::getline(each, name, '\0');) {
        std::string value(4096, '\0');
        const ssize_t got = ::lgetxattr(item.c_str(), name.c_str(), value.data(), value.size());
        value.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
        if (name.starts_with("user."))
            all.push_back(name + "=" + value);
    }
    std::ranges::sort(all);
    std::string text;
    for (const std::string& one : all)
        text += "[" + one + "] ";
    return text;
}

inline Tree wholeTreeOf(const std::filesystem::path& folder) {
    namespace fs = std::filesystem;
    Tree tree = treeOf(folder);
    for (auto& [path, text] : tree)
        text.insert(0, attributesOf(folder / path));
    tree.emplace(".", attributesOf(folder) +
                          std::to_string(static_cast<unsigned>(fs::status(folder).permissions())));
    return tree;
}

} // namespace tests
