// Copies single nodes between open folders. Used by the copy of files and trees only.
#pragma once

namespace Corvaldine::CP::Private {

/// Copies the entry, a regular file or a link, to a name that is free in the other folder. False
/// after a failure; nothing is left under the new name then.
[[nodiscard]] bool copy_node(int fromFolder, const char* fromName, int toFolder,
                             const char* toName);

/// Owner (where permitted), extended attributes, permissions and times of an open file or folder.
[[nodiscard]] bool copy_metadata(int from, int to);

} // namespace Corvaldine::CP::Private
