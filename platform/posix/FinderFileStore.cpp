#include "platform/posix/FinderFileStore.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/formats/AliasRecord.h"
#include "platform/formats/AppleDouble.h"
#include "platform/formats/IconFamily.h"
#include "platform/formats/ResourceFork.h"
#include "platform/posix/StagedFile.h"

namespace posix {

namespace {

using formats::AppleDouble;
using formats::Bytes;
using formats::fourCharacters;
using ports::FinderInformation;

constexpr std::uint32_t kAliasType = fourCharacters("alis");
constexpr std::int16_t kAliasNumber = 0;
constexpr std::uint32_t kIconType = fourCharacters("icns");
constexpr std::int16_t kCustomIconNumber = -16455; // kCustomIconResource of Icons.h
constexpr const char* kIconFile = "Icon\r";
// The same name is what CPath::item_volume answers.
constexpr const char* kRootVolumeName = "File System";
constexpr off_t kLongestFile = off_t{256} << 20; // what is taken into memory at most

int classicError(int error) {
    switch (error) {
    case 0:
        return 0;
    case ENOENT:
    case ENOTDIR:
        return -43;
    case EEXIST:
        return -48;
    case EACCES:
    case EPERM:
    case EROFS:
        return -61;
    default:
        return -36;
    }
}

// The answers of a file system, or of its administrator, that has no room for attributes of users.
bool refusesAttributes(int error) {
    return error == ENOTSUP || error == EOPNOTSUPP || error == ENOSYS || error == EPERM ||
           error == ENOSPC || error == EDQUOT || error == E2BIG;
}

std::optional<std::string> resolved(const std::string& path) {
    const std::unique_ptr<char, decltype(&std::free)> real(::realpath(path.c_str(), nullptr),
                                                           &std::free);
    if (!real)
        return std::nullopt;
    return real.get();
}

std::string_view nameOf(std::string_view path) {
    return path.substr(path.rfind('/') + 1);
}

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

// The path whose last part is the item's name: without slashes at its end, and with "." and ".."
// resolved.
std::string named(std::string path) {
    while (path.size() > 1 && path.ends_with('/'))
        path.pop_back();
    const std::string_view name = nameOf(path);
    if (name == "." || name == "..")
        return resolved(path).value_or(path);
    return path;
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

FinderInformation decoded(const FinderBytes& bytes) {
    const auto number = [&](std::size_t at, std::size_t width) {
        std::uint32_t value = 0;
        for (std::size_t i = at; i < at + width; ++i)
            value = value << 8 | std::to_integer<std::uint32_t>(bytes[i]);
        return value;
    };
    return {number(0, 4), number(4, 4), static_cast<std::uint16_t>(number(8, 2))};
}

FinderBytes encoded(const FinderInformation& information, FinderBytes rest) {
    const auto put = [&](std::size_t at, std::size_t width, std::uint32_t value) {
        for (std::size_t i = at + width; i-- > at; value >>= 8)
            rest[i] = static_cast<std::byte>(value & 0xFF);
    };
    put(0, 4, information.type);
    put(4, 4, information.creator);
    put(8, 2, information.flags);
    return rest;
}

// The folder where the file system of `path` is mounted: the last one upwards on the same device.
std::string mountPointOf(std::string path, dev_t device) {
    struct stat facts{};
    while (path != "/") {
        const std::string parent = folderOf(path);
        if (::stat(parent.c_str(), &facts) != 0 || facts.st_dev != device)
            break;
        path = parent;
    }
    return path;
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
    return resolved(path) ? 0 : -43;
}

ports::FinderFiles::ReadInformation FinderFileStore::finderInformation(const std::string& path) {
    const auto real = resolved(path);
    if (!real)
        return {.error = -43, .information = {}};
    return {.error = 0, .information = decoded(kept(*real).bytes())};
}

std::vector<std::byte> FinderFileStore::resourceFork(const std::string& path) {
    const auto real = resolved(path);
    if (!real)
        return {};
    if (Bytes fork = m_calls.readFork(*real); !fork.empty())
        return fork;
    Kept found = kept(*real);
    return found.beside ? std::move(found.beside->resourceFork) : Bytes();
}

std::vector<std::byte> FinderFileStore::aliasRecord(const std::string& target) {
    const auto real = resolved(target);
    struct stat facts{};
    struct stat parent{};
    if (!real || ::stat(real->c_str(), &facts) != 0 ||
        ::stat(folderOf(*real).c_str(), &parent) != 0)
        return {};
    const std::string mountPoint = mountPointOf(*real, facts.st_dev);
    const std::string volumeName(mountPoint == "/" ? kRootVolumeName : nameOf(mountPoint));
    const bool isVolume = mountPoint == *real;
    const FinderInformation information = decoded(kept(*real).bytes());
    return formats::writeAliasRecord(
        {.kind = S_ISDIR(facts.st_mode) ? formats::AliasTarget::Kind::folder
                                        : formats::AliasTarget::Kind::file,
         .volumeName = volumeName,
         .volumeCreated = formats::secondsSince1904(m_calls.creationTime(mountPoint)),
         .folderNumber = static_cast<std::uint32_t>(parent.st_ino),
         .name = isVolume ? volumeName : std::string(nameOf(*real)),
         .number = static_cast<std::uint32_t>(facts.st_ino),
         .created = formats::secondsSince1904(m_calls.creationTime(*real)),
         .type = information.type,
         .creator = information.creator,
         .folderName = std::string(nameOf(folderOf(*real))),
         .path = isVolume ? "/" : real->substr(mountPoint.size()),
         .mountPoint = mountPoint});
}

int FinderFileStore::createAliasFile(const std::string& path,
                                     const std::vector<std::byte>& record) {
    const std::string file = named(path);
    struct stat facts{};
    if (::lstat(file.c_str(), &facts) == 0 || kept(file).strangerBeside)
        return -48;
    AppleDouble beside;
    beside.resourceFork = formats::writeResourceFork({{kAliasType, kAliasNumber, "", record}});
    StagedFile fork(appleDoubleBeside(file));
    if (const int error = fork.write(formats::writeAppleDouble(beside)))
        return classicError(error);
    int created = -1;
    do {
        // The data fork is empty, so that the file is whole as soon as it has its name.
        created = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0666);
    } while (created < 0 && errno == EINTR);
    if (created < 0)
        return classicError(errno);
    ::close(created);
    if (const int error = fork.commit()) {
        ::unlink(file.c_str());
        return classicError(error);
    }
    fork.keep();
    return 0;
}

int FinderFileStore::setFinderInformation(const std::string& path,
                                          const FinderInformation& information) {
    const std::string item = named(path);
    struct stat facts{};
    if (::lstat(item.c_str(), &facts) != 0)
        return classicError(errno);
    if (S_ISLNK(facts.st_mode))
        return classicError(ELOOP);
    const Kept before = kept(item);
    return classicError(replace(item, before, encoded(information, before.bytes())));
}

bool FinderFileStore::setFolderIcon(const std::string& folder, const std::string& icnsFile) {
    const std::string item = named(folder);
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
