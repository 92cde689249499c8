// The lines that tell the updater which content lies where: "ITEM,PATH". Used by applyPatch's -C.
#pragma once

#include <iosfwd>
#include <string>

#include "patcher/format/Manifest.h"
#include "tools/files/Complaints.h"

namespace tools {

/// One line for each item, its path below `folder`, which is taken as it is given but for slashes
/// at its end. What would not read as exactly two fields on one line is complained about instead.
void listCategories(const patch::Manifest& manifest, const std::string& folder, std::ostream& out,
                    Complaints& complaints);

} // namespace tools
