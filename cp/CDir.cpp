#include "cp/CDir.h"

#include "cp/CFileUtils.h"
#include "cp/private/DirectoryHandle.h"
#include "cp/private/_CNativeDir.h"

namespace Corvaldine::CP {

using Private::_CNativeDir;

const CDir::iterator CDir::kEnd;

CDir::iterator::iterator(const CPath& folder) : m_handle(Private::DirectoryHandle::open(folder)) {
    if (m_handle)
        _get_next(1);
}

CDir::iterator& CDir::iterator::operator++() {
    _get_next(1);
    return *this;
}

CDir::iterator CDir::iterator::operator++(int) {
    iterator before = *this;
    _get_next(1);
    return before;
}

void CDir::iterator::_get_next(long n) {
    for (; n >= 1 && m_handle; --n) {
        if (m_handle->next(m_entry))
            ++m_count;
        else
            *this = kEnd;
    }
}

bool CDir::iterator::operator==(const iterator& other) const {
    return m_handle == other.m_handle && m_count == other.m_count;
}

bool CDir::copy(const CPath& src, const CPath& dst, bool overwrite) {
    if (src == dst)
        return false;
    // Whether it is gone shows below.
    if (overwrite && dst.exists())
        static_cast<void>(remove(dst));
    return src.exists() && !dst.exists() && _CNativeDir().copy(src, dst);
}

bool CDir::remove(const CPath& path) {
    return path.exists() && _CNativeDir().remove(path);
}

bool CDir::create(const CPath& path, bool recursive) {
    if (!recursive)
        return _CNativeDir().create(path);
    if (path.exists())
        return true;
    CPath parent;
    path.get_item(CPath::item_parent, parent);
    // Above a missing ".." lies nothing shorter that could be made.
    const std::wstring& shorter = parent;
    if (shorter.size() >= static_cast<const std::wstring&>(path).size())
        return false;
    return create(parent, true) && _CNativeDir().create_in_parent(path);
}

bool CDir::lock(const CPath& path, bool lock, bool recursive) {
    if (!recursive)
        return CFileUtils::lock(path, lock);
    const auto native = _CNativeDir().get_native_lock_implementation();
    return native != nullptr ? native(path, lock) : Private::lock_portably(path, lock);
}

} // namespace Corvaldine::CP
