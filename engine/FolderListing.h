// The names in a folder and what tells two trees apart: what the install methods ask of the disk.
// Looks only; never throws. Any thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ec {

/// The names of the folder's direct entries, hidden ones included, in the order of their bytes.
/// None for a folder that can't be read, or not to its end, and for what is no folder.
std::vector<std::string> namesIn(const std::string& folder);

/// The same names in whatever order the system has them, for whom the order does not matter.
std::vector<std::string> unsortedNamesIn(const std::string& folder);

/// Can the folder be read, and is there anything in it?
bool hasEntries(const std::string& folder);

/// The path of the entry `name` in `folder`; a name that is empty gives the folder.
std::string inFolder(const std::string& folder, const std::string& name);

/// The two joined as the platform joins path components: one separator between any two parts, and
/// none at the end. An empty component gives the folder; an empty folder, the relative path.
std::string joinedPath(std::string_view folder, std::string_view component);

/// Does the path lead to something, links followed? And is that a folder?
bool leadsSomewhere(const std::string& path);
bool isFolder(const std::string& path);

/// Do both paths lead to the same: files with the same bytes, links with the same target, folders
/// with the same names and the same below each? False where either can't be read.
bool contentsAreEqual(const std::string& one, const std::string& other);

/// Is the whole of `part` in `whole`: is each file and link of it there, and the same? Folders may
/// hold more.
bool contains(const std::string& whole, const std::string& part);

} // namespace ec
