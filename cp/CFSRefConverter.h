// Between a CPath and a file reference: built from one, makes the other when it is asked for and
// keeps both. What was made once stays, even when the disk changes. Not for use from two threads.
#pragma once

#include <cstdint>
#include <optional>

#include "cp/CPath.h"
#include "cp/FSRef.h"

namespace Corvaldine::CP {

class CFSRefConverter {
  public:
    explicit CFSRefConverter(const CPath& path) : m_path(path) {}
    explicit CFSRefConverter(const FSRef& ref) : m_ref(ref) {}

    /// The reference or the path, made if needed. Throws CException code 0 when it can't be made:
    /// the path leads nowhere, or nothing lies any more where the reference was taken. The result
    /// lives as long as this object.
    operator const FSRef&();
    operator const CPath&();

    /// Fills the old-style form from the reference; false when there is none.
    [[nodiscard]] bool get_fsspec(FSSpec& spec);

    /// Why the last conversion failed; 0 for success.
    [[nodiscard]] std::int32_t get_status() const { return m_status; }

  private:
    [[nodiscard]] bool makeRef();
    [[nodiscard]] bool makePath();

    std::int32_t m_status = 0;
    std::optional<FSRef> m_ref;
    std::optional<CPath> m_path;
};

} // namespace Corvaldine::CP
