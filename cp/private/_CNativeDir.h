// What CDir does, on this system. No state; the rules stand in cp/CDir.h.
#pragma once

#include "cp/CPath.h"

namespace Corvaldine::CP::Private {

/// Locks or unlocks a folder with everything in it, children first.
using DirectoryLock = bool (*)(const CPath& path, bool lock);

class _CNativeDir {
  public:
    virtual ~_CNativeDir() = default;

    [[nodiscard]] bool copy(const CPath& src, const CPath& dst) const;
    [[nodiscard]] bool remove(const CPath& path) const { return _remove_directory(path); }
    /// Throws CException code 0 when the parent doesn't resolve.
    [[nodiscard]] bool create(const CPath& path) const;
    /// The same where the parent is known to exist; nothing is resolved, so a long chain of new
    /// folders is made in a time that grows no faster than the lengths of their paths.
    [[nodiscard]] bool create_in_parent(const CPath& path) const;
    /// The system's recursive lock; null on a system without one.
    [[nodiscard]] DirectoryLock get_native_lock_implementation() const;

  private:
    [[nodiscard]] static bool _remove_directory(const CPath& path);
};

/// The recursive lock for a system without its own: over CDir and CFileUtils.
[[nodiscard]] bool lock_portably(const CPath& path, bool lock);

} // namespace Corvaldine::CP::Private
