// What CFileUtils does, on this system. No state; the rules stand in cp/CFileUtils.h.
#pragma once

#include <string>

#include "cp/CPath.h"

namespace Corvaldine::CP::Private {

class _CNativeFiles {
  public:
    virtual ~_CNativeFiles() = default;

    [[nodiscard]] bool copy(const CPath& src, const CPath& dst) const;
    [[nodiscard]] bool remove(const CPath& path) const;
    [[nodiscard]] bool rename(const CPath& src, const CPath& dst) const;
    [[nodiscard]] bool size(const CPath& path, long long& bytes) const;
    [[nodiscard]] bool temp_file(CPath& path, const std::wstring& prefix, unsigned seed) const;
    [[nodiscard]] bool get_permissions(const CPath& path, int& mode) const;
    [[nodiscard]] bool set_permissions(const CPath& path, int mode) const;
    [[nodiscard]] bool is_locked(const CPath& path) const;
    /// One node, links followed.
    [[nodiscard]] bool _lock(const CPath& path, bool lock) const;

  private:
    /// `name` := a name that is free in the folder; false when none was found.
    [[nodiscard]] static bool _get_temp_name(const CPath& folder, const std::wstring& prefix,
                                             unsigned seed, std::wstring& name);
};

} // namespace Corvaldine::CP::Private
