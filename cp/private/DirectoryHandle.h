// A folder that is being gone through. One entry after the other; not for use from two threads.
#pragma once

#include <filesystem>
#include <memory>

#include "cp/CPath.h"

namespace Corvaldine::CP::Private {

class DirectoryHandle {
  public:
    /// Null when the path is no folder or can't be read.
    [[nodiscard]] static std::shared_ptr<DirectoryHandle> open(const CPath& folder);

    /// `entry` := the folder's path with the next entry's name; false at the end or when the folder
    /// can't be read further.
    [[nodiscard]] bool next(CPath& entry);

  private:
    DirectoryHandle(const CPath& folder, std::filesystem::directory_iterator entries);

    CPath m_folder;
    std::filesystem::directory_iterator m_entries;
};

} // namespace Corvaldine::CP::Private
