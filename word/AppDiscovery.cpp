#include "word/AppDiscovery.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <system_error>

#include "cp/FolderWalk.h"
#include "platform/formats/ResourceFork.h"
#include "platform/formats/VersionResource.h"
#include "platform/ports/PlatformError.h"

namespace ec {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kShortVersion = "CFBundleShortVersionString";
constexpr std::string_view kWordFileName = "Microsoft Word";
/// The major versions that the host knows Word by, and those of the old single files.
constexpr int kFirstKnown = 12;
constexpr int kLastKnown = 99;
constexpr int kFirstOld = 10;
constexpr int kLastOld = 11;
constexpr std::uint32_t kVersionType = formats::fourCharacters("vers");
constexpr std::int16_t kOwnVersion = 1;

/// What stands at a path, links followed; where that can't be found out nothing does.
fs::file_type kindOf(std::string_view path) {
    std::error_code error;
    return fs::status(path, error).type();
}

bool exists(fs::file_type kind) {
    return kind != fs::file_type::not_found && kind != fs::file_type::none;
}

/// An old application that is a single file, not a folder.
bool isSingleFile(fs::file_type kind) {
    return exists(kind) && kind != fs::file_type::directory;
}

/// The path, or with the extension "app" where nothing stands at it.
std::string bundleAt(std::string_view path, fs::file_type kind) {
    if (exists(kind))
        return std::string(path);
    while (path.size() > 1 && path.ends_with('/'))
        path.remove_suffix(1);
    return std::string(path) + ".app";
}

/// The number that a text begins with, as atoi reads it: 0 where there is none.
long long leadingNumber(const std::string& text) {
    return std::strtoll(text.c_str(), nullptr, 10);
}

/// The platform's `intValue`, which stops at the ends of its range.
std::uint32_t intValue(const std::string& text) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::uint32_t>(
        std::clamp<long long>(leadingNumber(text), Limits::min(), Limits::max()));
}

/// A byte of two binary-coded decimals: the number that its hexadecimal digits begin with.
int decimal(std::uint8_t byte) {
    std::array<char, 3> text{};
    std::snprintf(text.data(), text.size(), "%X", byte);
    return static_cast<int>(leadingNumber(text.data()));
}

std::optional<std::array<std::uint8_t, 4>> versionOfFile(ports::FinderFiles& files,
                                                         std::string_view path) {
    const auto fork = files.resourceFork(std::string(path));
    const auto resource = formats::findResource(fork, kVersionType, kOwnVersion);
    return resource ? formats::versionBytes(*resource) : std::nullopt;
}

bool isIn(int version, int fromVer, int toVer) {
    return fromVer <= version && version <= toVer;
}

} // namespace

int AppDiscovery::getMajorVersion(OptionalText path) const {
    if (!path)
        return kUnknownVersion;
    const fs::file_type kind = kindOf(*path);
    if (isSingleFile(kind)) {
        const auto bytes = versionOfFile(m_needs.finderFiles, *path);
        return bytes ? decimal(bytes->back()) : kUnknownVersion;
    }
    const auto version = getBundleStringForPath(bundleAt(*path, kind), kShortVersion);
    return version ? static_cast<std::uint8_t>(leadingNumber(*version)) : kUnknownVersion;
}

int AppDiscovery::getFileVersion(OptionalText path, std::uint32_t& major, std::uint32_t& minor,
                                 std::uint32_t& patch, std::uint32_t& build) const {
    if (!path)
        return 0;
    const fs::file_type kind = kindOf(*path);
    if (isSingleFile(kind)) {
        if (const auto bytes = versionOfFile(m_needs.finderFiles, *path)) {
            major = static_cast<std::uint32_t>(decimal((*bytes)[3]));
            minor = static_cast<std::uint32_t>(decimal((*bytes)[2]));
            build = static_cast<std::uint32_t>(decimal((*bytes)[0]));
        }
        return 0;
    }
    std::string rest =
        getBundleStringForPath(bundleAt(*path, kind), kShortVersion).value_or(std::string());
    for (std::uint32_t* part : {&major, &minor, &patch, &build}) {
        const std::size_t end = rest.find('.');
        if (const std::string text = rest.substr(0, end); !text.empty())
            *part = intValue(text);
        rest.erase(0, end == std::string::npos ? end : end + 1);
    }
    return 0;
}

void AppDiscovery::addApplicationsFor(std::string_view identifier, int fromVer, int toVer,
                                      Paths& found) const {
    for (std::string& path : m_needs.applications.pathsFor(identifier))
        if (exists(kindOf(path)) && isIn(getMajorVersion(path), fromVer, toVer))
            found.push_back(std::move(path));
}

void AppDiscovery::addApplicationsNamed(std::string_view name, int fromVer, int toVer,
                                        Paths& found) const {
    using Corvaldine::CP::FolderWalk;
    FolderWalk walk([name](std::string_view item) { return item == name; });
    for (std::string& path : walk.find(m_needs.session.places.system("/Applications")))
        if (kindOf(path) == fs::file_type::directory || isIn(getMajorVersion(path), fromVer, toVer))
            found.push_back(std::move(path));
}

std::optional<AppDiscovery::Paths>
AppDiscovery::findApplicationsWithBundleIdentifier(std::string_view identifier, int fromVer,
                                                   int toVer) const {
    m_needs.log.logMessage(formatted("findApplicationsWithBundleIdentifier: %@", {identifier}));
    try {
        Paths found;
        addApplicationsFor(identifier, fromVer, toVer, found);
        return found.empty() ? std::nullopt : std::optional(std::move(found));
    } catch (const ports::PlatformError&) {
        m_needs.log.logException();
        return std::nullopt;
    }
}

AppDiscovery::Paths AppDiscovery::findApplication(std::string_view name, int fromVer,
                                                  int toVer) const {
    m_needs.log.logMessage(formatted("findApplication: %@", {name}));
    Paths found;
    try {
        addApplicationsNamed(name, fromVer, toVer, found);
    } catch (const ports::PlatformError&) {
        m_needs.log.logException();
    }
    return found;
}

const AppDiscovery::Paths& AppDiscovery::wordPaths() {
    if (!m_wordPaths.paths().empty())
        return m_wordPaths.paths();
    addToWordPaths(m_needs.breadcrumbs.wordCrumbs().value_or(Paths()));
    addToWordPaths(findApplicationsWithBundleIdentifier(kWordIdentifier, kFirstKnown, kLastKnown)
                       .value_or(Paths()));
    addToWordPaths(findApplication(kWordFileName, kFirstOld, kLastOld));
    if (!m_wordPaths.paths().empty())
        m_needs.log.logMessage("Determine Word Paths: " + listDescription(m_wordPaths.paths()));
    return m_wordPaths.paths();
}

AppDiscovery::Paths AppDiscovery::wordPathsUnlogged() const {
    if (!m_wordPaths.paths().empty())
        return m_wordPaths.paths();
    Paths found = m_needs.breadcrumbs.wordCrumbs().value_or(Paths());
    try {
        addApplicationsFor(kWordIdentifier, kFirstKnown, kLastKnown, found);
        addApplicationsNamed(kWordFileName, kFirstOld, kLastOld, found);
    } catch (const ports::PlatformError&) { // nobody asked for a search; what was found serves
    }
    WordPathList list;
    list.add(found);
    return list.paths();
}

} // namespace ec
