// Property lists, XML and binary; the one place that knows the library for them. Used by the
// adapters that read information dictionaries. Input may be hostile.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace posix {

class PlistReader {
  public:
    /// The property list in the regular file `path`; none when the file can't be read or is none.
    static std::optional<PlistReader> readFile(const std::string& path);

    /// The property list in `bytes`; none when they are none, or beyond what is safe to read
    /// (PlistGuard).
    static std::optional<PlistReader> read(std::string_view bytes);

    /// The string under `key` in the list's dictionary, as UTF-8. None when the list is no
    /// dictionary, the key is absent or its value is no string.
    std::optional<std::string> string(std::string_view key) const;

  private:
    struct Free {
        void operator()(void* list) const;
    };
    explicit PlistReader(void* list) : m_list(list) {}

    std::unique_ptr<void, Free> m_list;
};

} // namespace posix
