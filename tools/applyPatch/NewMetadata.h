// Gives a new file or folder its owner, permissions, attributes and times. Used by TreeBuilder and,
// for the top, by Update.
#pragma once

#include <string>

#include "tools/applyPatch/UpdatePlan.h"

namespace tools {

/// Of an open file or folder. What this user may not give away stays this user's, and then without
/// the right to run as somebody else; attributes that the file system does not take are left out.
/// Throws std::system_error.
void giveMetadata(int file, const Metadata& metadata);

/// The same for a symbolic link, which has owner and time alone.
void giveLinkMetadata(int folder, const std::string& name, const Metadata& metadata);

} // namespace tools
