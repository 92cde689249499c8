#include "cp/private/SystemFolders.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace Corvaldine::CP::Private {

namespace {

std::string fromEnvironment(const char* name, const char* otherwise) {
    // Read once, before there are threads that could change it.
    const char* value = std::getenv(name); // NOLINT(concurrency-mt-unsafe)
    return value != nullptr && *value != '\0' ? value : otherwise;
}

SystemFolderBases& bases() {
    static SystemFolderBases current{.root = "",
                                     .home = fromEnvironment("HOME", ""),
                                     .temporary = fromEnvironment("TMPDIR", "/tmp")};
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

bool find_folder(FolderDomain domain, FolderType type, std::string& path) {
    for (const Folder& folder : kFolders) {
        if (folder.domain != domain || folder.type != type)
            continue;
        const std::string& base = bases().*folder.base;
        if (folder.needsBase && base.empty())
            return false;
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
