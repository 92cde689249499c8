// Changes to the file system, each made by one standard command-line tool: first with the user's
// rights and, when that fails, once more as administrator. Used by the install methods and by the
// installer window. Never changes the file system by a call of its own.
//
// Each operation logs its line first, a missing path as "(null)". Results: 0 success, else failure.
// A refused administrator prompt counts as success; callers rely on that. Blocks until done.
#pragma once

#include <string>
#include <string_view>

#include "engine/CommandRunner.h"
#include "platform/ports/FinderFiles.h"

namespace ec {

class FileOperations {
  public:
    struct Needs {
        InstallLog& log;
        CommandRunner& runner;
        ports::FinderFiles& finderFiles;
    };
    explicit FileOperations(Needs needs) : m_needs(needs) {}
    FileOperations(const FileOperations&) = delete;
    FileOperations& operator=(const FileOperations&) = delete;

    /// `removeFile:` unlocks the file or the whole folder and removes it. 0 when nothing is there;
    /// as the platform looks through links, a link that leads nowhere counts as nothing.
    ExitStatus removeFile(OptionalText path);
    /// `renameFile:toFile:` moves `source` to the path `destination`.
    ExitStatus renameFile(OptionalText source, OptionalText destination);
    /// `copyPath:toPath:` copies a file, or a folder whole, with its attributes; `destination` is
    /// the full path of the copy, not its parent.
    ExitStatus copyPath(OptionalText source, OptionalText destination);
    /// `unlockFile:` clears the user-immutable flag of one item; whether it exists is not asked.
    ExitStatus unlockFile(OptionalText path);
    /// `unlockDir:` clears the flag of a folder and all that is in it.
    ExitStatus unlockDir(OptionalText path);
    /// `chmod:mode:` sets the permissions, given as the tool takes them ("777").
    ExitStatus chmod(OptionalText path, OptionalText mode);
    /// `makeDir:` makes a folder with its missing parents and opens the last one to everyone. A
    /// path that exists, even as a file, is left as it is: 0.
    ExitStatus makeDir(OptionalText path);
    /// `symLink:dstPath:` makes `destination` a symbolic link to `source`, which must exist.
    ExitStatus symLink(OptionalText source, OptionalText destination);
    /// `makeAliasTarget:toAlias:` makes a classic alias file that leads to `target`. True when it
    /// was made; true as well when no alias record could be made for the target, which makes
    /// nothing.
    bool makeAliasTarget(std::string_view target, std::string_view alias);

  private:
    ExitStatus unlock(OptionalText path, std::vector<std::string> arguments);

    Needs m_needs;
};

} // namespace ec
