// Finder information, classic aliases and folder icons where files have real forks
// (ports::FinderFiles): the information in the extended attribute "com.apple.FinderInfo", the
// resource fork in "com.apple.ResourceFork". Where a file system can't hold them the system keeps
// both in AppleDouble files by itself. The composition root makes one.
//
// Questions follow symbolic links, as the classic File Manager does. Changes never do: the item
// itself must not be one. No state; any thread.
#pragma once

#include <functional>
#include <span>

#include "platform/ports/FinderFiles.h"
#include "platform/posix/AliasFiles.h"
#include "platform/posix/FinderFileCalls.h"

namespace macoshost {

class ForkedFinderFiles final : public ports::FinderFiles {
  public:
    struct Needs {
        posix::FinderFileCalls calls; ///< `posix::finderFileCalls()` for the running system

        /// Writes the resource fork of the open file, which is new. 0 or an errno value;
        /// `macoshost::writeResourceFork` for the running system.
        std::function<int(int file, std::span<const std::byte> fork)> writeFork;

        /// The volume that holds the item at an absolute path without links.
        std::function<posix::AliasVolume(const std::string& path)> volume;

        /// As `setFolderIcon` below; the folder is there and is no link. `macoshost::setFolderIcon`
        /// for the running system.
        std::function<bool(const std::string& folder, const std::string& icnsFile)> setFolderIcon;
    };
    explicit ForkedFinderFiles(Needs needs);

    int resolve(const std::string& path) override;
    ReadInformation finderInformation(const std::string& path) override;
    std::vector<std::byte> resourceFork(const std::string& path) override;

    /// The same bytes as on a system without forks, but for the volume's name.
    std::vector<std::byte> aliasRecord(const std::string& target) override;

    /// A file whose fork can't be written is taken away again.
    int createAliasFile(const std::string& path, const std::vector<std::byte>& record) override;

    /// Bytes after the first ten stay as they are. -36 for a symbolic link.
    int setFinderInformation(const std::string& path,
                             const ports::FinderInformation& information) override;

    bool setFolderIcon(const std::string& folder, const std::string& icnsFile) override;

  private:
    Needs m_needs;
};

} // namespace macoshost
