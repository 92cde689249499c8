// A folder with all that is in it as a value, so that a test can say that two are alike or that one
// is as it was. Looks only.
#pragma once

#include <filesystem>
#include <map>
#include <string>

#include "tests/support/TemporaryFolder.h"

namespace tests {

/// Each item below the folder by its relative path: kind, mode, and a file's bytes or a link's
/// target. Without the times.
using Tree = std::map<std::string, std::string>;

inline Tree treeOf(const std::filesystem::path& folder) {
    namespace fs = std::filesystem;
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const fs::file_status status = entry.symlink_status();
        std::string text;
        for (auto mode = static_cast<unsigned>(status.permissions()); mode != 0; mode >>= 3)
            text.insert(text.begin(), static_cast<char>('0' + (mode & 7)));
        if (fs::is_symlink(status))
            text = "link to " + fs::read_symlink(entry.path()).native();
        else if (fs::is_directory(status))
            text += " folder";
        else
            text += " file " + contentsOf(entry.path());
        tree.emplace(entry.path().lexically_relative(folder).native(), std::move(text));
    }
    return tree;
}

} // namespace tests
