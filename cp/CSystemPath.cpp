#include "cp/CSystemPath.h"

#include "cp/CException.h"
#include "cp/CFSRefConverter.h"
#include "cp/cpprocess.h"
#include "cp/private/RunningProcess.h"
#include "cp/private/SystemFolders.h"

namespace Corvaldine::CP {

namespace {

struct Folder {
    CSystemPath::pathType path;
    Private::FolderDomain domain;
    Private::FolderType type;
};

using Private::folder_type;
using Private::FolderDomain;

constexpr Folder kFolders[] = {
    {CSystemPath::user_preferences, FolderDomain::user, folder_type("pref")},
    {CSystemPath::user_app_support, FolderDomain::user, folder_type("asup")},
    {CSystemPath::user_documents, FolderDomain::user, folder_type("docs")},
    {CSystemPath::user_temporary, FolderDomain::user, folder_type("temp")},
    {CSystemPath::local_applications, FolderDomain::local, folder_type("apps")},
    {CSystemPath::local_app_support, FolderDomain::local, folder_type("asup")},
    {CSystemPath::user_documents_alt, FolderDomain::user, folder_type("docs")},
    {CSystemPath::user_shared_data, FolderDomain::user, folder_type("sdat")},
    {CSystemPath::user_desktop, FolderDomain::user, folder_type("desk")},
};

CPath runningBundle() {
    ProcessSerialNumber process;
    if (!cpprocess_id(&process))
        return {};
    return Private::bundle_of_executable(Private::process_executable(process));
}

CPath found(CSystemPath::pathType type) {
    if (type == CSystemPath::app_bundle)
        return runningBundle();
    if (type == CSystemPath::app_folder) {
        CPath folder = runningBundle();
        folder.as_item(CPath::item_parent);
        return folder;
    }
    for (const Folder& folder : kFolders) {
        std::string path;
        if (folder.path == type && Private::find_folder(folder.domain, folder.type, path))
            return path;
    }
    return {};
}

} // namespace

CSystemPath::CSystemPath(pathType type) {
    const CPath path = found(type);
    if (path == CPath())
        return;
    try {
        CFSRefConverter resolved(path);
        CFSRefConverter converter(static_cast<const FSRef&>(resolved));
        CPath::operator=(static_cast<const CPath&>(converter));
    } catch (const CException&) {
        CPath::operator=(CPath());
    }
}

} // namespace Corvaldine::CP
