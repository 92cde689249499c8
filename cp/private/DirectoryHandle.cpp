#include "cp/private/DirectoryHandle.h"

#include <system_error>
#include <utility>

#include "cp/private/PathConversion.h"

namespace Corvaldine::CP::Private {

DirectoryHandle::DirectoryHandle(const CPath& folder, std::filesystem::directory_iterator entries)
    : m_folder(folder), m_entries(std::move(entries)) {}

std::shared_ptr<DirectoryHandle> DirectoryHandle::open(const CPath& folder) {
    const auto path = system_path(folder);
    if (!path)
        return nullptr;
    std::error_code error;
    std::filesystem::directory_iterator entries(*path, error);
    if (error)
        return nullptr;
    return std::shared_ptr<DirectoryHandle>(new DirectoryHandle(folder, std::move(entries)));
}

bool DirectoryHandle::next(CPath& entry) {
    while (m_entries != std::filesystem::directory_iterator()) {
        const CPath name(m_entries->path().filename().string());
        std::error_code error;
        m_entries.increment(error);
        if (name == CPath())
            continue;
        entry = m_folder;
        entry.append(name);
        return true;
    }
    return false;
}

} // namespace Corvaldine::CP::Private
