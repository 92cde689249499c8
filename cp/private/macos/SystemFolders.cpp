#include "cp/private/SystemFolders.h"

#include <CoreServices/CoreServices.h>
#include <pwd.h>
#include <unistd.h>

// The Folder Manager has been deprecated since 10.8 without anything that knows all of its folders
// ('sdat' and the user's own 'temp' among them); its calls are still exported.
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

namespace Corvaldine::CP::Private {

namespace {

static_assert(static_cast<int>(FolderDomain::user) == kUserDomain &&
              static_cast<int>(FolderDomain::local) == kLocalDomain);

constexpr OSStatus kDone = 0;
constexpr FolderType kCurrentUserFolder = folder_type("cusr");
constexpr FolderType kTemporaryFolder = folder_type("temp");
constexpr std::size_t kHomePathLength = 1025;
constexpr std::size_t kStep = 256;
constexpr std::size_t kLongestPath = std::size_t{64} * 1024; // far beyond what the system has

enum class Missing { leave, make };

bool findFolder(FolderDomain domain, FolderType type, Missing missing, ::FSRef& found) {
    return ::FSFindFolder(static_cast<FSVolumeRefNum>(domain), type, missing == Missing::make,
                          &found) == kDone;
}

OSStatus makePath(const ::FSRef& folder, std::size_t length, std::string& path) {
    std::string buffer(length, '\0');
    const OSStatus status = ::FSRefMakePath(&folder, reinterpret_cast<UInt8*>(buffer.data()),
                                            static_cast<UInt32>(buffer.size()));
    if (status == kDone)
        path = buffer.c_str();
    return status;
}

// In the user database, whose entry is good until the next question.
std::string homeOfUser() {
    const passwd* user = ::getpwuid(::getuid()); // NOLINT(concurrency-mt-unsafe): at start
    return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

std::string darwinTemporaryFolder() {
    const std::size_t length = ::confstr(_CS_DARWIN_USER_TEMP_DIR, nullptr, 0);
    std::string folder(length, '\0');
    // The length counts the zero at the end.
    if (length == 0 || ::confstr(_CS_DARWIN_USER_TEMP_DIR, folder.data(), length) != length)
        return {};
    folder.pop_back();
    while (folder.size() > 1 && folder.ends_with('/'))
        folder.pop_back();
    return folder;
}

} // namespace

bool ask_for_folder(FolderDomain domain, FolderType type, std::string& path) {
    ::FSRef folder;
    if (!findFolder(domain, type, Missing::make, folder))
        return false;
    std::string found;
    OSStatus status = pathTooLongErr;
    for (std::size_t length = kStep; status == pathTooLongErr && length <= kLongestPath;
         length += kStep)
        status = makePath(folder, length, found);
    if (status != kDone || found.empty())
        return false;
    path = found;
    return true;
}

std::string user_home_folder() {
    ::FSRef folder;
    std::string path;
    if (findFolder(FolderDomain::user, kCurrentUserFolder, Missing::leave, folder) &&
        makePath(folder, kHomePathLength, path) == kDone && !path.empty())
        return path;
    path = environment_folder("HOME", "");
    return path.empty() ? homeOfUser() : path;
}

std::string user_temporary_folder() {
    std::string path;
    if (ask_for_folder(FolderDomain::user, kTemporaryFolder, path))
        return path;
    path = darwinTemporaryFolder();
    return path.empty() ? environment_folder("TMPDIR", "/tmp") : path;
}

} // namespace Corvaldine::CP::Private
