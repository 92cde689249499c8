// The folder of a tree that is worked on, by its path, with those above it: cheap for paths in
// order, as each is near the one before. No folder is ever reached through a symbolic link.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "tools/files/Descriptor.h"

namespace tools {

/// "a/b" of "a/b/c"; empty for what is in the top itself.
std::string_view parentPath(std::string_view path);
/// "c" of "a/b/c".
std::string_view leafName(std::string_view path);

/// For one thread. Keeps a bounded number of folders open, however deep the tree is.
class FolderChain {
  public:
    /// `top` stays open while this is used and is not closed by it.
    explicit FolderChain(int top) : m_top(top) {}

    /// The descriptor of the folder at `path` from the top on, "" being the top; valid until the
    /// next call. Throws std::system_error, ELOOP or ENOTDIR when a component is no folder.
    int of(std::string_view path);

  private:
    struct Open {
        std::string name;
        Descriptor folder; ///< closed when many follow
    };

    int m_top;
    std::vector<Open> m_chain;
};

} // namespace tools
