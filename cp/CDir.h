// Folders: making, copying, removing and locking them, and going through their entries. Operations
// over CPath values answer true for success. Nothing is held open but by an iterator.
#pragma once

#include <cstddef>
#include <iterator>
#include <memory>

#include "cp/CPath.h"

namespace Corvaldine::CP {

namespace Private {
class DirectoryHandle;
} // namespace Private

class CDir {
  public:
    /// Goes through the entries of a folder once, in the order of the file system, without "." and
    /// "..". Copies share the place. An entry is the folder's path with the entry's name appended;
    /// one whose name is not valid UTF-8, which no CPath can hold, is left out.
    class iterator {
      public:
        using iterator_category = std::input_iterator_tag;
        using value_type = CPath;
        using difference_type = std::ptrdiff_t;
        using pointer = const CPath*;
        using reference = const CPath&;

        /// The end value.
        iterator() = default;

        const CPath& operator*() const { return m_entry; }
        const CPath* operator->() const { return &m_entry; }
        iterator& operator++();
        iterator operator++(int);
        /// Advances `n` entries, nothing for n < 1; becomes the end value when there are no more.
        void _get_next(long n);
        /// The same folder opened once, at the same place in it; all end values are equal.
        [[nodiscard]] bool operator==(const iterator& other) const;

      private:
        friend class CDir;
        explicit iterator(const CPath& folder);

        std::shared_ptr<Private::DirectoryHandle> m_handle;
        CPath m_entry;
        long m_count = 0; // of the entry, from 1; 0 at the end
    };

    /// Remembers the path; nothing is opened.
    explicit CDir(const CPath& path) : m_path(path) {}

    /// The first entry; the end value when the path is no folder or can't be read.
    [[nodiscard]] iterator begin() const { return iterator(m_path); }
    [[nodiscard]] iterator end() const { return kEnd; }

    /// Copies a folder with everything in it, links as links. With `overwrite` an existing folder
    /// `dst` is removed first. False when both paths are equal, `src` doesn't exist, `dst` (still)
    /// exists or lies inside `src`. Nothing is left at `dst` after a failed copy.
    [[nodiscard]] static bool copy(const CPath& src, const CPath& dst, bool overwrite);

    /// Removes a folder with everything in it; links are removed, never followed. Stops at the
    /// first entry that can't be removed: that entry, its parents and later siblings (by name)
    /// stay. False for a missing path, a file, and a folder that can't be listed.
    [[nodiscard]] static bool remove(const CPath& path);

    /// Makes one folder in its existing parent; throws CException code 0 when there is no such
    /// parent. Recursive: makes the missing parents first, and is true at once for a path that
    /// exists, whatever it leads to.
    [[nodiscard]] static bool create(const CPath& path, bool recursive);

    /// As CFileUtils::lock, for the folder; recursive: for everything in it first, children before
    /// their parents, stopping at the first failure. Links, which have no such flag, are passed by.
    [[nodiscard]] static bool lock(const CPath& path, bool lock, bool recursive);

    /// What every iteration ends with: no handle, empty path, count 0.
    static const iterator kEnd;

  private:
    CPath m_path;
};

} // namespace Corvaldine::CP
