#include "platform/posix/FinderFileStore.h"

#include <algorithm>
#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/formats/AppleDouble.h"
#include "platform/formats/IconFamily.h"
#include "platform/formats/ResourceFork.h"
#include "platform/posix/AliasFiles.h"
#include "platform/posix/FinderItems.h"
#include "platform/posix/StagedFile.h"

namespace posix {

namespace {

using formats::AppleDouble;
using formats::Bytes;
using formats::fourCharacters;
using ports::FinderInformation;

constexpr std::uint32_t kIconType = fourCharacters("icns");
constexpr std::int16_t kCustomIconNumber = -16455; // kCustomIconResource of Icons.h
constexpr const char* kIconFile = "Icon\r";
// The same name is what CPath::item_volume answers.
constexpr const char* kRootVolumeName = "File System";
constexpr off_t kLongestFile = off_t{256} << 20; // what is taken into memory at most

// The answers of a file system, or of its administrator, that has no room for attributes of users.
bool refusesAttributes(int error) {
    return error == ENOTSUP || error == EOPNOTSUPP || error == ENOSYS || error == EPERM ||
           error == ENOSPC || error == EDQUOT || error == E2BIG;
}

std::string appleDoubleBeside(const std::string& path) {
    const std::size_t name = path.rfind('/') + 1;
    return path.substr(0, name) + "._" + path.substr(name);
}

enum class Links { follow, refuse };

std::optional<Bytes> readFile(const std::string& path, Links links) {
    int file = -1;
    do {
        // A pipe or a device must not make the installer wait.
        file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK |
                                        (links == Links::refuse ? O_NOFOLLOW : 0));
    } while (file < 0 && errno == EINTR);
    if (file < 0)
        return std::nullopt;
    struct stat facts{};
    std::optional<Bytes> bytes;
    if (::fstat(file, &facts) == 0 && S_ISREG(facts.st_mode) && facts.st_size <= kLongestFile) {
        bytes.emplace(static_cast<std::size_t>(facts.st_size));
        std::size_t length = 0;
        while (length < bytes->size()) {
            const ssize_t got = ::read(file, bytes->data() + length, bytes->size() - length);
            if (got < 0 && errno == EINTR)
                continue;
            if (got <= 0)
                break;
            length += static_cast<std::size_t>(got);
        }
        if (length < bytes->size())
            bytes.reset();
    }
    ::close(file);
    return bytes;
}

// Mounted in the last folder upwards on the same device.
AliasVolume volumeOf(const std::string& path) {
    struct stat facts{};
    std::string mountPoint = path;
    if (::stat(path.c_str(), &facts) == 0)
        for (const dev_t device = facts.st_dev; mountPoint != "/";) {
            const std::string parent = itemFolder(mountPoint);
            if (::stat(parent.c_str(), &facts) != 0 || facts.st_dev != device)
                break;
            mountPoint = parent;
        }
    const std::string name(mountPoint == "/" ? kRootVolumeName : itemName(mountPoint));
    return {.mountPoint = mountPoint, .name = name};
}

} // namespace

// What is known about an item, and where it stands.
struct FinderFileStore::Kept {
    std::optional<FinderBytes> attribute;
    std::optional<AppleDouble> beside;
    bool strangerBeside = false; ///< "._name" is there but is no readable AppleDouble file

    FinderBytes bytes() const {
        return attribute ? *attribute : beside ? beside->finderInformation : FinderBytes{};
    }
};

FinderFileStore::FinderFileStore(Needs needs) : m_calls(std::move(needs.calls)) {}

FinderFileStore::Kept FinderFileStore::kept(const std::string& path) const {
    Kept kept;
    kept.attribute = m_calls.readAttribute(path);
    const std::string beside = appleDoubleBeside(path);
    if (const auto bytes = readFile(beside, Links::refuse))
        kept.beside = formats::readAppleDouble(*bytes);
    struct stat facts{};
    kept.strangerBeside = !kept.beside && ::lstat(beside.c_str(), &facts) == 0;
    return kept;
}

int FinderFileStore::replace(const std::string& path, const Kept& kept,
                             const FinderBytes& bytes) const {
    if (!kept.beside) {
        const int error = m_calls.writeAttribute(path, bytes);
        if (!refusesAttributes(error) || kept.attribute || kept.strangerBeside)
            return error;
    }
    AppleDouble beside = kept.beside.value_or(AppleDouble{});
    beside.finderInformation = bytes;
    StagedFile file(appleDoubleBeside(path));
    int error = file.write(formats::writeAppleDouble(beside));
    if (error == 0)
        error = file.commit();
    if (error == 0 && kept.attribute)
        error = m_calls.writeAttribute(path, bytes);
    if (error == 0)
        file.keep();
    return error;
}

int FinderFileStore::resolve(const std::string& path) {
    return realPath(path) ? 0 : -43;
}

ports::FinderFiles::ReadInformation FinderFileStore::finderInformation(const std::string& path) {
    const auto real = realPath(path);
    if (!real)
        return {.error = -43, .information = {}};
    return {.error = 0, .information = decoded(kept(*real).bytes())};
}

std::vector<std::byte> FinderFileStore::resourceFork(const std::string& path) {
    const auto real = realPath(path);
    if (!real)
        return {};
    if (Bytes fork = m_calls.readFork(*real); !fork.empty())
        return fork;
    Kept found = kept(*real);
    return found.beside ? std::move(found.beside->resourceFork) : Bytes();
}

std::vector<std::byte> FinderFileStore::aliasRecord(const std::string& target) {
    return aliasRecordOf(
        target,
        {.information = [this](const std::string& path) { return decoded(kept(path).bytes()); },
         .volume = volumeOf,
         .creationTime = m_calls.creationTime});
}

int FinderFileStore::createAliasFile(const std::string& path,
                                     const std::vector<std::byte>& record) {
    const std::string file = itemPath(path);
    struct stat facts{};
    if (::lstat(file.c_str(), &facts) == 0 || kept(file).strangerBeside)
        return -48;
    AppleDouble beside;
    beside.resourceFork = aliasFork(record);
    StagedFile fork(appleDoubleBeside(file));
    if (const int error = fork.write(formats::writeAppleDouble(beside)))
        return classicError(error);
    // The data fork is empty, so that the file is whole as soon as it has its name.
    if (!createEmptyFile(file).isOpen())
        return classicError(errno);
    if (const int error = fork.commit()) {
        ::unlink(file.c_str());
        return classicError(error);
    }
    fork.keep();
    return 0;
}

int FinderFileStore::setFinderInformation(const std::string& path,
                                          const FinderInformation& information) {
    const std::string item = itemPath(path);
    if (const int error = changeableItem(item))
        return classicError(error);
    const Kept before = kept(item);
    return classicError(replace(item, before, encoded(information, before.bytes())));
}

bool FinderFileStore::setFolderIcon(const std::string& folder, const std::string& icnsFile) {
    const std::string item = itemPath(folder);
    struct stat facts{};
    if (::lstat(item.c_str(), &facts) != 0 || !S_ISDIR(facts.st_mode))
        return false;
    auto family = readFile(icnsFile, Links::follow);
    if (!family || !formats::iconFamilyElements(*family))
        return false;

    AppleDouble beside;
    beside.resourceFork =
        formats::writeResourceFork({{kIconType, kCustomIconNumber, "", std::move(*family)}});
    beside.finderInformation =
        encoded({.type = fourCharacters("icon"),
                 .creator = fourCharacters("MACS"),
                 .flags = FinderInformation::kIsInvisible | FinderInformation::kHasCustomIcon},
                {});
    const std::string icon = item + "/" + kIconFile;
    StagedFile data(icon);
    StagedFile fork(appleDoubleBeside(icon));
    if (data.write({}) != 0 || fork.write(formats::writeAppleDouble(beside)) != 0 ||
        data.commit() != 0 || fork.commit() != 0)
        return false;

    const Kept before = kept(item);
    FinderInformation information = decoded(before.bytes());
    information.flags |= FinderInformation::kHasCustomIcon;
    if (replace(item, before, encoded(information, before.bytes())) != 0)
        return false;
    data.keep();
    fork.keep();
    return true;
}

} // namespace posix
