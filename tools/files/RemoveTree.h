// Removes a folder with all that is in it. By descriptors: nothing outside it is ever removed,
// whatever links are in it, and nothing on another volume that is mounted in it.
#pragma once

#include <string>

namespace tools {

/// `folder` is the open folder that is named `name` in `parent`. Folders that are write-protected
/// are opened up where this user may. Throws FileError, named from `name` on, for the first item
/// that stays, ESTALE when the name has come to mean another folder.
void removeTree(int parent, const std::string& name, int folder);

} // namespace tools
