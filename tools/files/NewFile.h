// A file that is being made in a folder. What stood there under its name is never followed and is
// replaced only when the new file is complete; a file that is not kept leaves nothing behind.
#pragma once

#include <cstddef>
#include <span>
#include <string>

#include <sys/types.h>
#include <time.h>

#include "tools/files/Descriptor.h"

namespace tools {

class NewFile {
  public:
    /// Makes the file with permissions `mode`. `folder` and `name` must outlive it. Throws
    /// std::system_error.
    NewFile(int folder, const char* name, mode_t mode);
    ~NewFile();
    NewFile(const NewFile&) = delete;
    NewFile& operator=(const NewFile&) = delete;

    int descriptor() const { return m_file.number(); }

    void write(std::span<const std::byte> bytes);

    /// Puts permissions right where the folder's own rules changed them.
    void setMode(mode_t mode);

    void setTimes(const timespec& accessed, const timespec& modified);

    /// The file is complete. Throws std::system_error when it can't take its place.
    void keep();

  private:
    int m_folder;
    const char* m_name;
    std::string m_temporaryName; // empty when nothing stands under the file's own name
    Descriptor m_file;
    bool m_kept = false;
};

/// Runs `make(name)`, which makes a link, a pipe and the like and answers -1 with EEXIST in `errno`
/// when there is something; that is then replaced, unless it is a folder. Throws std::system_error.
template <typename Make>
void makeReplacing(int folder, const char* name, Make make) {
    if (make(name) == 0)
        return;
    if (errno != EEXIST)
        throwErrno();
    checked(::unlinkat(folder, name, 0));
    checked(make(name));
}

} // namespace tools
