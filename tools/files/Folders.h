// Folders of a tree that is walked by descriptors, so that nothing outside it is ever reached: each
// component is opened on its own and a symbolic link in its place is an error.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <sys/types.h>

#include "tools/files/Descriptor.h"

namespace tools {

/// A folder of the tree by its place in it. Its address is its identity; it must stay where it is
/// and unchanged while anybody uses it.
struct Folder {
    const Folder* parent = nullptr; ///< null for the tree's top
    std::string name;

    /// The path of `leaf` in this folder from the tree's top on.
    std::string pathOf(std::string_view leaf) const;
};

/// Open descriptors of the folders used last, a bounded number of them. For one thread.
class FolderDescriptors {
  public:
    /// `top` stays open while this is used and is not closed by it.
    explicit FolderDescriptors(int top) : m_top(top) {}

    /// Valid until the next call. Throws std::system_error, ELOOP or ENOTDIR when there is a
    /// symbolic link or a file in the folder's place.
    int of(const Folder& folder);

  private:
    struct Open {
        const Folder* folder;
        Descriptor descriptor;
        std::uint64_t used;
    };

    int m_top;
    std::uint64_t m_clock = 0;
    std::vector<Open> m_open;
    std::vector<const Folder*> m_missing; // reused
};

/// Opens a folder named by the user (links in it are followed), making it and its parents when
/// missing, with `mode`. Throws std::system_error.
Descriptor openOrMakeFolder(const std::string& path, mode_t mode);

/// The nearest ancestor of `path` that exists, `path` itself included; "/" or "." at last.
std::string nearestExisting(const std::string& path);

} // namespace tools
