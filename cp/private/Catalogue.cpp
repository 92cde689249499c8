#include "cp/private/Catalogue.h"

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <sys/stat.h>

namespace Corvaldine::CP::Private {

namespace {

Status statusOf(int error) {
    switch (error) {
    case ENOENT:
    case ENOTDIR:
        return kFileNotFound;
    case ENAMETOOLONG:
        return kNameTooLong;
    case EACCES:
    case EPERM:
        return kAccessDenied;
    default:
        return kInputOutputError;
    }
}

} // namespace

bool catalogue_info(const std::string& path, CatalogueInfo& info) {
    struct stat status{};
    if (::stat(path.c_str(), &status) != 0)
        return false;
    info.nodeFlags = S_ISDIR(status.st_mode) ? kNodeIsDirectory : 0;
    info.mode = status.st_mode & 07777;
    info.dataSize = status.st_size;
    info.isRegularFile = S_ISREG(status.st_mode);
    return true;
}

Status path_make_ref(const std::string& path, FSRef& ref) {
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr),
                                                               &std::free);
    struct stat status{};
    if (!resolved || ::stat(resolved.get(), &status) != 0)
        return statusOf(errno);
    ref = {.device = static_cast<std::uint64_t>(status.st_dev),
           .inode = static_cast<std::uint64_t>(status.st_ino),
           .path = resolved.get()};
    return kNoError;
}

Status ref_make_path(const FSRef& ref, std::string& path) {
    struct stat status{};
    if (::stat(ref.path.c_str(), &status) != 0)
        return statusOf(errno);
    if (static_cast<std::uint64_t>(status.st_dev) != ref.device ||
        static_cast<std::uint64_t>(status.st_ino) != ref.inode)
        return kFileNotFound;
    path = ref.path;
    return kNoError;
}

Status ref_make_spec(const FSRef& ref, FSSpec& spec) {
    const std::filesystem::path path(ref.path);
    FSRef parent;
    const Status status = path_make_ref(path.parent_path().string(), parent);
    if (status != kNoError)
        return status;
    spec = {.vRefNum = ref.device, .parID = parent.inode, .name = path.filename().string()};
    return kNoError;
}

Status find_in_folder(const FSRef& folder, const std::string& name) {
    struct stat status{};
    const std::string path = folder.path + "/" + name;
    return ::lstat(path.c_str(), &status) == 0 ? kNoError : statusOf(errno);
}

} // namespace Corvaldine::CP::Private
