#include "cp/private/_CNativeFiles.h"

#include <chrono>
#include <cstdint>
#include <ratio>
#include <sys/stat.h>
#include <unistd.h>

#include "cp/CSystemPath.h"
#include "cp/private/Catalogue.h"
#include "cp/private/CopyFile.h"
#include "cp/private/FileDescriptor.h"
#include "cp/private/NodeLock.h"
#include "cp/private/PathConversion.h"
#include "cp/private/RenameExclusively.h"

namespace Corvaldine::CP::Private {

namespace {

constexpr int kTempNameTries = 1000;
constexpr int kTempNameDigits = 8;

// In 1/60 s since the system started.
unsigned tickCount() {
    using Ticks = std::chrono::duration<std::uint64_t, std::ratio<1, 60>>;
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<unsigned>(std::chrono::duration_cast<Ticks>(sinceStart).count());
}

std::wstring hexadecimal(unsigned number) {
    std::wstring digits;
    for (; number != 0 || digits.size() < kTempNameDigits; number >>= 4)
        digits.insert(digits.begin(), L"0123456789abcdef"[number & 15]);
    return digits;
}

} // namespace

bool _CNativeFiles::copy(const CPath& src, const CPath& dst) const {
    const auto from = system_path(src);
    const auto to = system_path(dst);
    if (!from || !to || dst.exists() || src.is_directory())
        return false;
    return copy_file(*from, *to, kCopyAll);
}

bool _CNativeFiles::remove(const CPath& path) const {
    const auto text = system_path(path);
    return text && ::unlink(text->c_str()) == 0;
}

bool _CNativeFiles::rename(const CPath& src, const CPath& dst) const {
    const auto from = system_path(src);
    const auto to = system_path(dst);
    return from && to && rename_exclusively(*from, *to);
}

bool _CNativeFiles::size(const CPath& path, long long& bytes) const {
    const auto text = system_path(path);
    CatalogueInfo info;
    if (!text || !catalogue_info(*text, info) || !info.isRegularFile)
        return false;
    bytes = info.dataSize;
    return true;
}

bool _CNativeFiles::temp_file(CPath& path, const std::wstring& prefix, unsigned seed) const {
    const CPath folder = path == CPath() ? CPath(CSystemPath(CSystemPath::user_temporary)) : path;
    std::wstring name;
    if (_get_temp_name(folder, prefix, seed, name)) {
        path = folder;
        path.append(name);
    }
    return !(path == CPath());
}

bool _CNativeFiles::_get_temp_name(const CPath& folder, const std::wstring& prefix, unsigned seed,
                                   std::wstring& name) {
    const auto text = system_path(folder);
    FSRef ref;
    if (!text || path_make_ref(*text, ref) != kNoError)
        return false;
    unsigned number = seed == 0 ? tickCount() : seed;
    for (int i = 0; i < kTempNameTries; ++i, --number) {
        const std::wstring candidate = prefix + hexadecimal(number);
        const auto entry = system_path(candidate);
        if (!entry)
            return false;
        const Status status = find_in_folder(ref, *entry);
        if (status == kFileNotFound) {
            name = candidate;
            return true;
        }
        if (status != kNoError)
            return false;
    }
    return false;
}

bool _CNativeFiles::get_permissions(const CPath& path, int& mode) const {
    const auto text = system_path(path);
    CatalogueInfo info;
    if (!text || !catalogue_info(*text, info))
        return false;
    mode = static_cast<int>(info.mode & kPermissionBits);
    return true;
}

bool _CNativeFiles::set_permissions(const CPath& path, int mode) const {
    const auto text = system_path(path);
    CatalogueInfo info;
    if (!text || !catalogue_info(*text, info))
        return false;
    const std::uint32_t wanted =
        (info.mode & ~kPermissionBits) | (static_cast<std::uint32_t>(mode) & kPermissionBits);
    return ::chmod(text->c_str(), static_cast<mode_t>(wanted)) == 0;
}

bool _CNativeFiles::is_locked(const CPath& path) const {
    const auto text = system_path(path);
    bool locked = false;
    return text && read_locked(open_node(AT_FDCWD, text->c_str(), true), locked) && locked;
}

bool _CNativeFiles::_lock(const CPath& path, bool lock) const {
    const auto text = system_path(path);
    return text && set_locked(open_node(AT_FDCWD, text->c_str(), true), lock);
}

} // namespace Corvaldine::CP::Private
