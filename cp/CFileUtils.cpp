#include "cp/CFileUtils.h"

#include "cp/CException.h"
#include "cp/CStringConverter.h"
#include "cp/private/_CNativeFiles.h"

namespace Corvaldine::CP {

using Private::_CNativeFiles;

bool CFileUtils::copy(const CPath& src, const CPath& dst, bool overwrite) {
    if (src == dst)
        return false;
    if (overwrite)
        remove(dst);
    return _CNativeFiles().copy(src, dst);
}

bool CFileUtils::remove(const CPath& path) {
    return _CNativeFiles().remove(path);
}

bool CFileUtils::rename(const CPath& src, const CPath& dst) {
    return !(src == dst) && _CNativeFiles().rename(src, dst);
}

bool CFileUtils::size(const CPath& path, long long& bytes) {
    bytes = 0;
    return path.exists() && !path.is_directory() && _CNativeFiles().size(path, bytes);
}

bool CFileUtils::temp_file(CPath& path, const wchar_t* prefix, unsigned seed) {
    const std::wstring text = prefix == nullptr ? std::wstring() : std::wstring(prefix);
    return _CNativeFiles().temp_file(path, text, seed);
}

bool CFileUtils::temp_file(CPath& path, const char* prefix, unsigned seed) {
    try {
        CStringConverter converter(std::string(prefix == nullptr ? "" : prefix),
                                   CStringConverter::windows_latin1,
                                   CStringConverter::kWindowsLatin1CodePage);
        return temp_file(path, static_cast<const std::wstring&>(converter).c_str(), seed);
    } catch (const CException&) {
        return false;
    }
}

bool CFileUtils::get_permissions(const CPath& path, int& mode) {
    return _CNativeFiles().get_permissions(path, mode);
}

bool CFileUtils::set_permissions(const CPath& path, int mode) {
    return _CNativeFiles().set_permissions(path, mode);
}

bool CFileUtils::is_locked(const CPath& path) {
    return _CNativeFiles().is_locked(path);
}

bool CFileUtils::lock(const CPath& path, bool lock) {
    return _CNativeFiles()._lock(path, lock);
}

} // namespace Corvaldine::CP
