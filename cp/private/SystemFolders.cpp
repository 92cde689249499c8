#include "cp/private/SystemFolders.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace Corvaldine::CP::Private {

namespace {

const SystemFolderBases& ownBases() {
    static const SystemFolderBases own{
        .root = "", .home = user_home_folder(), .temporary = user_temporary_folder()};
    return own;
}

SystemFolderBases& bases() {
    static SystemFolderBases current = ownBases();
    return current;
}

struct Folder {
    FolderDomain domain;
    FolderType type;
    std::string SystemFolderBases::* base;
    bool needsBase; // an unknown home must not turn into "/"
    const char* path;
};

constexpr Folder kFolders[] = {
    {FolderDomain::user, folder_type("pref"), &SystemFolderBases::home, true,
     "/Library/Preferences"},
    {FolderDomain::user, folder_type("asup"), &SystemFolderBases::home, true,
     "/Library/Application Support"},
    {FolderDomain::user, folder_type("docs"), &SystemFolderBases::home, true, "/Documents"},
    {FolderDomain::user, folder_type("desk"), &SystemFolderBases::home, true, "/Desktop"},
    {FolderDomain::user, folder_type("temp"), &SystemFolderBases::temporary, true, ""},
    {FolderDomain::user, folder_type("sdat"), &SystemFolderBases::root, false, "/Users/Shared"},
    {FolderDomain::local, folder_type("apps"), &SystemFolderBases::root, false, "/Applications"},
    {FolderDomain::local, folder_type("asup"), &SystemFolderBases::root, false,
     "/Library/Application Support"},
};

} // namespace

void set_system_folder_bases(const SystemFolderBases& chosen) {
    bases() = chosen;
}

const SystemFolderBases& system_folder_bases() {
    return bases();
}

std::string environment_folder(const char* name, const char* otherwise) {
    // Read once, before there are threads that could change it.
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
    std::string folder = value != nullptr && *value != '\0' ? value : otherwise;
    while (folder.size() > 1 && folder.ends_with('/'))
        folder.pop_back();
    return folder;
}

bool find_folder(FolderDomain domain, FolderType type, std::string& path) {
    for (const Folder& folder : kFolders) {
        if (folder.domain != domain || folder.type != type)
            continue;
        const std::string& base = bases().*folder.base;
        if (folder.needsBase && base.empty())
            return false;
        if (base == ownBases().*folder.base && ask_for_folder(domain, type, path))
            return true;
        const std::string found = base + folder.path;
        std::error_code error;
        std::filesystem::create_directories(found, error);
        if (!std::filesystem::is_directory(found, error))
            return false;
        path = found;
        return true;
    }
    return false;
}

} // namespace Corvaldine::CP::Private
