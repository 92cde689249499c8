// The path of a well-known folder. Folders that are missing are made. Where the folders lie can be
// set once for the process (cp/private/SystemFolders.h); that is for the composition root.
#pragma once

#include "cp/CPath.h"

namespace Corvaldine::CP {

class CSystemPath : public CPath {
  public:
    /// Any other value gives an empty path.
    enum pathType : int {
        app_folder = 0,         ///< the folder that contains the running application bundle
        app_bundle = 1,         ///< the running application bundle
        user_preferences = 2,   ///< ~/Library/Preferences
        user_app_support = 3,   ///< ~/Library/Application Support
        user_documents = 4,     ///< ~/Documents
        user_temporary = 5,     ///< the user's temporary folder
        local_applications = 6, ///< /Applications
        local_app_support = 7,  ///< /Library/Application Support
        user_documents_alt = 8, ///< as user_documents
        user_shared_data = 9,   ///< /Users/Shared
        user_desktop = 10,      ///< ~/Desktop
    };

    /// Empty when the folder can't be found or made, and for the first two outside a bundle. Links
    /// in the path are resolved.
    explicit CSystemPath(pathType type);
};

} // namespace Corvaldine::CP
