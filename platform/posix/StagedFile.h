// A file that is written beside its place first and put there in one step, so that nobody ever sees
// half of it, and that can be taken back. For writers that change several files together: what has
// not been kept when the object goes away is undone, and the folder is as it was before.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include <sys/types.h>

namespace posix {

class StagedFile {
  public:
    /// Nothing happens yet. `path` is where the file will be; a symbolic link there is never
    /// followed but replaced. `newMode` is the mode, less the umask, of a file that replaces none.
    explicit StagedFile(std::string path, mode_t newMode = 0666);
    /// Undoes everything unless `keep` was called.
    ~StagedFile();
    StagedFile(const StagedFile&) = delete;
    StagedFile& operator=(const StagedFile&) = delete;

    /// Writes the bytes to a temporary name in the same folder, down to the disk, with the owner
    /// and mode of the file that they will replace. 0 or an errno value. Once for each object.
    [[nodiscard]] int write(std::span<const std::byte> bytes);

    /// Puts the written file into its place, over one that may be there. 0 or an errno value;
    /// EISDIR when there is a folder.
    [[nodiscard]] int commit();

    /// Puts the written file into its place for good, over one that may be there, in one step. For
    /// a file that is changed alone. 0 or an errno value.
    [[nodiscard]] int replace();

    /// What was put into place stays; the file that it replaced is gone.
    void keep();

  private:
    std::string m_path;
    mode_t m_newMode;
    std::string m_temporary; ///< empty when there is no such file (any more)
    std::string m_backup;    ///< the replaced file; empty when there was none
    bool m_committed = false;
};

} // namespace posix
