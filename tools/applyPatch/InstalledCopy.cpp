#include "tools/applyPatch/InstalledCopy.h"

#include <filesystem>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "patcher/format/Digest.h"
#include "patcher/format/Signature.h"
#include "tools/applyPatch/ApplyError.h"

namespace tools {

namespace fs = std::filesystem;

namespace {

/// Short whatever the copy is called, so that it fits where the copy's own name does.
std::string workName(const std::string& name) {
    const patch::Digest digest = patch::digestOf(std::as_bytes(std::span(name)));
    return ".scrivel-update-" + patch::hexadecimal(patch::View(digest).first(8));
}

bool isNoFolder(const std::system_error& error) {
    return error.code().value() == ENOTDIR || error.code().value() == ELOOP;
}

} // namespace

std::optional<HeldFolder> HeldFolder::opened(int parent, const std::string& name) {
    Descriptor folder(
        ::openat(parent, name.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!folder.isOpen() && errno == ENOENT)
        return std::nullopt;
    checked(folder.number());
    return HeldFolder(std::move(folder));
}

HeldFolder::HeldFolder(Descriptor folder) : m_folder(std::move(folder)) {
    struct stat status{};
    checked(::fstat(m_folder.number(), &status));
    m_owner = status.st_uid;
    m_device = status.st_dev;
    m_inode = status.st_ino;
}

bool HeldFolder::lock() const {
    return ::flock(m_folder.number(), LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

bool HeldFolder::isLocked() const {
    if (::flock(m_folder.number(), LOCK_SH | LOCK_NB) != 0)
        return errno == EWOULDBLOCK;
    ::flock(m_folder.number(), LOCK_UN);
    return false;
}

bool HeldFolder::isAt(int parent, const std::string& name) const {
    struct stat status{};
    return ::fstatat(parent, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           status.st_dev == m_device && status.st_ino == m_inode;
}

bool HeldFolder::isSurelyNotAt(int parent, const std::string& name) const {
    struct stat status{};
    if (::fstatat(parent, name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0)
        return errno == ENOENT;
    return status.st_dev != m_device || status.st_ino != m_inode;
}

InstalledCopy::InstalledCopy(const std::string& folder) {
    std::error_code error;
    fs::path path = fs::weakly_canonical(fs::absolute(folder, error), error);
    if (error)
        throw refusal(folder, error.value());
    if (!path.has_filename())
        path = path.parent_path();
    if (!path.has_relative_path())
        throw ApplyError(Ending::usage, folder + ": not the folder of an installed copy; name it "
                                                 "with -d");
    m_path = path.string();
    m_name = path.filename().string();
    m_buildingName = workName(m_name);
    m_asideName = m_buildingName + ".old";
    m_parent = Descriptor(
        ::open(path.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (!m_parent.isOpen() && (errno == ENOENT || errno == ENOTDIR))
        throw ApplyError(Ending::usage, folder + ": no such folder; name the installed copy's "
                                                 "with -d");
    if (!m_parent.isOpen())
        throw refusal(parentPath(), errno);
}

std::string InstalledCopy::parentPath() const {
    return fs::path(m_path).parent_path().string();
}

std::string InstalledCopy::beside(const std::string& name) const {
    return (fs::path(m_path).parent_path() / name).string();
}

std::optional<HeldFolder> InstalledCopy::open() const {
    try {
        std::optional<HeldFolder> folder = HeldFolder::opened(parent(), m_name);
        struct stat above{};
        checked(::fstat(parent(), &above));
        if (folder && folder->device() != above.st_dev)
            throw ApplyError(Ending::refused,
                             m_path + ": a volume is mounted there, which can't be exchanged for "
                                      "a new version; update a copy in an ordinary folder");
        return folder;
    } catch (const std::system_error& error) {
        if (isNoFolder(error))
            throw ApplyError(Ending::usage,
                             m_path + ": is no folder; name the installed copy's with -d");
        throw refusal(m_path, error.code().value());
    }
}

std::optional<HeldFolder> InstalledCopy::openBeside(const std::string& name) const {
    try {
        return HeldFolder::opened(parent(), name);
    } catch (const std::system_error& error) {
        if (isNoFolder(error))
            throw isInTheWay(name);
        throw refusal(beside(name), error.code().value());
    }
}

ApplyError InstalledCopy::isInTheWay(const std::string& name) const {
    return ApplyError(Ending::refused,
                      beside(name) + ": stands where the new version must be built and was not "
                                     "left by an earlier run; remove it and start again");
}

} // namespace tools
