#include "platform/linux/ProcApplications.h"

#include <algorithm>
#include <charconv>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "cp/CaseFolding.h"
#include "platform/linux/ProcessBundle.h"
#include "platform/posix/ChildProcess.h"

namespace linuxhost {

namespace fs = std::filesystem;

namespace {

bool isProcess(std::string_view name) {
    pid_t pid = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), pid);
    return error == std::errc() && end == name.data() + name.size() && pid != ::getpid();
}

std::vector<std::string> applicationFolders(const std::string& root, const std::string& home) {
    std::vector<std::string> folders{root + "/Applications"};
    if (!home.empty() && home != root && home != "/")
        folders.push_back(home + "/Applications");
    return folders;
}

} // namespace

ProcApplications::ProcApplications(Needs needs)
    : m_needs(std::move(needs)), m_root(m_needs.root), m_identifiers(m_needs.bundles),
      m_installed(applicationFolders(m_needs.root, m_needs.home)) {}

bool ProcApplications::isRunning(std::string_view bundleIdentifier) {
    std::error_code error;
    for (fs::directory_iterator at("/proc", error), end; !error && at != end; at.increment(error)) {
        if (!isProcess(at->path().filename().native()))
            continue;
        const std::string bundle = bundleOfProcess(at->path().native());
        if (!bundle.empty() && m_root.holds(bundle) &&
            m_identifiers.identifierOf(bundle) == bundleIdentifier)
            return true;
    }
    return false;
}

std::vector<std::string> ProcApplications::pathsFor(std::string_view bundleIdentifier) {
    return installedWhere([&](const std::string& bundle) {
        return m_identifiers.identifierOf(bundle) == bundleIdentifier;
    });
}

std::optional<std::vector<std::string>>
ProcApplications::pathsForDocument(std::string_view document) {
    const std::string extension = fs::path(document).extension().string();
    if (extension.size() < 2) // the dot alone is none either
        return std::nullopt;
    std::vector<std::string> paths = installedWhere([&](const std::string& bundle) {
        return std::ranges::any_of(m_needs.bundles.infoStringsOfEach(
                                       bundle, "CFBundleDocumentTypes", "CFBundleTypeExtensions"),
                                   [&](const std::string& declared) {
                                       return Corvaldine::CP::equal_ignoring_case("." + declared,
                                                                                  extension);
                                   });
    });
    if (paths.empty())
        return std::nullopt;
    return paths;
}

std::vector<std::string>
ProcApplications::installedWhere(const std::function<bool(const std::string&)>& isWanted) {
    std::vector<std::string> paths = m_installed.paths();
    std::erase_if(paths, [&](const std::string& bundle) { return !isWanted(bundle); });
    return eachOnce(paths);
}

bool ProcApplications::launch(const std::string& path) {
    std::error_code error;
    const fs::path bundle = fs::canonical(path, error);
    if (error)
        return false;
    const std::string name = m_needs.bundles.infoString(bundle.string(), "CFBundleExecutable")
                                 .value_or(bundle.stem().string());
    const fs::path folder = bundle / "Contents" / "MacOS";
    const fs::path executable = fs::canonical(folder / name, error);
    if (error || executable.parent_path() != folder || !fs::is_regular_file(executable, error))
        return false;
    const posix::Descriptor nowhere(::open("/dev/null", O_WRONLY | O_CLOEXEC));
    const auto terminalOr = [&](int output) {
        return ::isatty(output) == 1 ? output : nowhere.number();
    };
    posix::ChildProcess child;
    if (child.start({.program = executable.string(),
                     .output = terminalOr(STDOUT_FILENO),
                     .error = terminalOr(STDERR_FILENO),
                     .environment = {"HOME=" + m_needs.home},
                     .detached = true}) != 0)
        return false;
    child.abandon();
    return true;
}

} // namespace linuxhost
