#include "cp/private/SystemFolders.h"

namespace Corvaldine::CP::Private {

std::string user_home_folder() {
    return environment_folder("HOME", "");
}

std::string user_temporary_folder() {
    return environment_folder("TMPDIR", "/tmp");
}

bool ask_for_folder(FolderDomain, FolderType, std::string&) {
    return false;
}

} // namespace Corvaldine::CP::Private
