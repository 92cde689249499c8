// Gives folders icons of their own, as the system does it. The composition root hands it to
// ForkedFinderFiles.
#pragma once

#include <string>

namespace macoshost {

/// The picture in `icnsFile` becomes the folder's icon. False when it can't be read or the system
/// refuses. Any thread.
bool setFolderIcon(const std::string& folder, const std::string& icnsFile);

} // namespace macoshost
