// Property lists as files on disk (ports::PropertyLists). Made by the composition root. No state.
//
// Files beyond what is safe to read (PlistGuard) count as broken, and what would become such a file
// is not written. Times are written to the second and numbers as the library prints them, as XML
// lists have them; all other values stay byte for byte.
#pragma once

#include "platform/ports/PropertyLists.h"

namespace posix {

class FilePropertyLists final : public ports::PropertyLists {
  public:
    std::unique_ptr<ports::PropertyDictionary> emptyDictionary() override;
    ports::ReadDictionary readFile(const std::string& path) override;

    /// Anything but a regular file at `path` is refused. The bytes are on the disk before the file
    /// has its name.
    bool writeFile(const ports::PropertyDictionary& dictionary, const std::string& path) override;

    std::optional<std::string> setAside(const std::string& path) override;
};

} // namespace posix
