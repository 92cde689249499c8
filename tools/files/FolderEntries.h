// The entries of an open folder, one by one, without asking for more than the folder itself tells.
#pragma once

#include <memory>
#include <optional>

#include <dirent.h>

namespace tools {

class FolderEntries {
  public:
    struct Entry {
        const char* name;   ///< valid until the next call
        unsigned char kind; ///< DT_REG, DT_DIR, DT_LNK ...; never DT_UNKNOWN
    };

    /// Reads with a place of its own; `folder` stays open and is not moved. Throws
    /// std::system_error.
    explicit FolderEntries(int folder);

    /// The next entry but "." and ".."; none at the end. Throws std::system_error.
    std::optional<Entry> next();

    /// The folder's own descriptor.
    int descriptor() const { return ::dirfd(m_stream.get()); }

  private:
    struct Close {
        void operator()(DIR* stream) const { ::closedir(stream); }
    };
    std::unique_ptr<DIR, Close> m_stream;
};

} // namespace tools
