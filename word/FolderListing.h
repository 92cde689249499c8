// The names of what lies in a folder, without looking into it: how the startup folders of Word are
// read for the add-in. Looks only. Any thread.
#pragma once

#include <string>
#include <vector>

namespace ec {

/// The names of the folder's entries without "." and "..", in the order of their bytes. A folder
/// that is missing or can't be read has none; of one that can't be read to its end those that could
/// be read are given.
std::vector<std::string> namesIn(const std::string& folder);

} // namespace ec
