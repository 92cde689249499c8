// Finder information, classic aliases and folder icons for systems without resource forks, kept the
// way macOS keeps them on foreign volumes: in AppleDouble files ("._name" beside "name") and in the
// extended attributes of the Finder information and of the fork. The composition root makes one.
//
// Where something is kept: the attribute counts before the AppleDouble file. A change goes to
// wherever the information is kept already (both, if so), else into the attribute, else, where the
// file system refuses that, into a new AppleDouble file. A "._name" that is no AppleDouble file is
// never touched. One that is changed keeps its resource fork and extended attributes, but not
// entries of other kinds.
//
// Questions follow symbolic links, as the classic File Manager does. Changes never do: the item
// itself must not be one. Every change is made in one step or undone. No state; any thread.
#pragma once

#include "platform/ports/FinderFiles.h"
#include "platform/posix/FinderFileCalls.h"

namespace posix {

class FinderFileStore final : public ports::FinderFiles {
  public:
    struct Needs {
        FinderFileCalls calls; ///< `finderFileCalls()` for the running system
    };
    explicit FinderFileStore(Needs needs);

    int resolve(const std::string& path) override;
    ReadInformation finderInformation(const std::string& path) override;

    /// From the attribute "com.apple.ResourceFork", where a copy by other means may have put it,
    /// else from the AppleDouble file.
    std::vector<std::byte> resourceFork(const std::string& path) override;

    /// The volume is the file system that holds the target; its name is the last part of its mount
    /// point, "File System" for "/". File and folder numbers are the low 32 bits of inode numbers.
    std::vector<std::byte> aliasRecord(const std::string& target) override;

    /// An AppleDouble file that has lost its file is replaced; anything else called "._name" counts
    /// as a file of that name.
    int createAliasFile(const std::string& path, const std::vector<std::byte>& record) override;

    /// Bytes after the first ten stay as they are. -36 for a symbolic link.
    int setFinderInformation(const std::string& path,
                             const ports::FinderInformation& information) override;

    /// The whole .icns file becomes resource 'icns' -16455 of "Icon\r", which is replaced with all
    /// that belongs to it. Other bits of the folder's Finder information stay as they are.
    bool setFolderIcon(const std::string& folder, const std::string& icnsFile) override;

  private:
    struct Kept;
    Kept kept(const std::string& path) const;
    /// 0 or an errno value.
    int replace(const std::string& path, const Kept& kept, const FinderBytes& bytes) const;

    FinderFileCalls m_calls;
};

} // namespace posix
