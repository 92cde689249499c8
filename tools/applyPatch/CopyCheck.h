// Compares an installed copy with the two versions of a patch. Content counts, that is what kind an
// entry is, a file's bytes and a link's target; permissions, owners, attributes and times are the
// copy's own affair, and so is what it has beyond the versions. Used by Update.
#pragma once

#include <string>
#include <vector>

#include "tools/applyPatch/TreeJoin.h"

namespace tools {

/// Why the patch does not apply to the copy, one entry of it.
struct Difference {
    std::string path; ///< from the copy's top on
    std::string text; ///< "is missing"
};

struct CopyCheck {
    std::vector<Difference> differences; ///< from the old version; none when the patch applies
    /// Every entry is as the new version has it, and none that it drops is there.
    bool hasNewContent = false;
};

/// The digests of TreeJoin::filesToRead must be there.
CopyCheck checkCopy(const TreeJoin& join);

/// Whether two entries are of one kind and have the same content.
bool hasSameContent(const patch::Entry& one, const patch::Entry& other);

} // namespace tools
