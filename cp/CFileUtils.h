// Files: copying, removing, renaming, sizes, permissions, the locked flag and temporary names.
// Static operations over CPath values; each answers true for success and never throws. Links in a
// path are followed, but for `remove` and `rename`, which act on the entry itself. A path that
// can't be written in UTF-8 counts as one that leads nowhere.
#pragma once

#include "cp/CPath.h"

namespace Corvaldine::CP {

class CFileUtils {
  public:
    CFileUtils() = delete;

    /// Copies a file with everything: data, permissions, times, extended attributes and access
    /// control as far as the file systems hold them and the user may set them. False when both
    /// paths are equal, when `src` is no file, or when `dst` exists; with `overwrite` an existing
    /// file `dst` is removed first. Nothing is left at `dst` after a failed copy.
    [[nodiscard]] static bool copy(const CPath& src, const CPath& dst, bool overwrite);

    /// Removes a file or link. A folder stays, and the answer is false.
    static bool remove(const CPath& path);

    /// Renames or moves within a volume. False when both paths are equal or `dst` exists. A change
    /// of case alone is possible.
    [[nodiscard]] static bool rename(const CPath& src, const CPath& dst);

    /// `bytes` := the length of a regular file's data; 0, with false, for anything else.
    [[nodiscard]] static bool size(const CPath& path, long long& bytes);

    /// Picks a name that is free in a folder: the prefix and at least eight lower-case hexadecimal
    /// digits, counting down from `seed` (0: from the time since the system started, in 1/60 s) for
    /// up to 1000 tries. The folder is `path`, or the user's temporary folder when `path` is empty.
    /// `path` := the folder with the name. Nothing is made on disk.
    /// The answer is whether `path` is not empty afterwards. Deliberately, a caller that gave a
    /// folder gets true even when no name was found; `path` is then still that folder.
    /// A null prefix is an empty one; a narrow prefix is Windows Latin-1.
    [[nodiscard]] static bool temp_file(CPath& path, const wchar_t* prefix, unsigned seed);
    [[nodiscard]] static bool temp_file(CPath& path, const char* prefix, unsigned seed);

    /// The nine rwx bits (mask 0x1FF). Setting keeps the other bits of the mode.
    [[nodiscard]] static bool get_permissions(const CPath& path, int& mode);
    [[nodiscard]] static bool set_permissions(const CPath& path, int mode);

    /// The locked flag: the user's immutable flag on macOS, the immutable attribute on Linux, which
    /// only the administrator may change and not every file system has. `lock` answers false where
    /// the system refuses; a node that already is as wanted is a success.
    [[nodiscard]] static bool is_locked(const CPath& path);
    [[nodiscard]] static bool lock(const CPath& path, bool lock);
};

} // namespace Corvaldine::CP
