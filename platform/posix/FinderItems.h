// What the keepers of Finder information (FinderFileStore, and on macOS ForkedFinderFiles) do alike
// with paths, error numbers and the bytes of the information. No state; any thread.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports/FinderFiles.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/FinderFileCalls.h"

namespace posix {

/// The classic File Manager's number for an errno value; see ports::FinderFiles.
int classicError(int error);

/// Absolute, with links resolved; none when the path doesn't resolve.
std::optional<std::string> realPath(const std::string& path);

std::string_view itemName(std::string_view path);
std::string itemFolder(const std::string& path);

/// The path whose last part is the item's name: without slashes at its end, and with "." and ".."
/// resolved. A link at its end stays.
std::string itemPath(std::string path);

/// What may be changed at `path` (as itemPath gives it): 0, else an errno value; ELOOP for a
/// symbolic link.
int changeableItem(const std::string& path);

/// A new, empty file, open for writing; not open, with the reason in errno, where there is
/// something already.
Descriptor createEmptyFile(const std::string& path);

ports::FinderInformation decoded(const FinderBytes& bytes);
/// `rest` with its first ten bytes replaced.
FinderBytes encoded(const ports::FinderInformation& information, FinderBytes rest);

} // namespace posix
