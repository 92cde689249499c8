#include "engine/FileOperations.h"

#include <filesystem>

namespace ec {

namespace fs = std::filesystem;

namespace {

bool exists(std::string_view path) {
    std::error_code ignored;
    return fs::exists(fs::path(path), ignored);
}

bool isFolder(std::string_view path) {
    std::error_code ignored;
    return fs::is_directory(fs::path(path), ignored);
}

} // namespace

ExitStatus FileOperations::removeFile(OptionalText path) {
    m_needs.log.logMessage("Remove File: " + shown(path));
    if (!path)
        return ExitStatus::failure();
    if (!exists(*path))
        return ExitStatus::success();
    const bool folder = isFolder(*path);
    const auto unlockIt = [&] { (void)(folder ? unlockDir(path) : unlockFile(path)); };
    unlockIt();
    return m_needs.runner.runAsUserThenAdministrator(
        "/bin/rm", Params{{folder ? "-rf" : "-f", std::string(*path)}}, unlockIt);
}

ExitStatus FileOperations::renameFile(OptionalText source, OptionalText destination) {
    m_needs.log.logMessage("Rename File: " + shown(source) + " -> " + shown(destination));
    if (!source || !destination)
        return ExitStatus::failure();
    if (!exists(*source)) {
        m_needs.log.logMessage("rename: source path does not exist: " + shown(source));
        return ExitStatus::failure();
    }
    return m_needs.runner.runAsUserThenAdministrator(
        "/bin/mv", Params{{std::string(*source), std::string(*destination)}});
}

ExitStatus FileOperations::copyPath(OptionalText source, OptionalText destination) {
    m_needs.log.logMessage("Copy: " + shown(source) + " -> " + shown(destination));
    if (!source || !destination)
        return ExitStatus::failure();
    if (!exists(*source)) {
        m_needs.log.logMessage("Copy: source path does not exist: " + shown(source));
        return ExitStatus::failure();
    }
    return m_needs.runner.runAsUserThenAdministrator(
        "/usr/bin/ditto", Params{{"-rsrcFork", std::string(*source), std::string(*destination)}});
}

ExitStatus FileOperations::unlock(OptionalText path, std::vector<std::string> arguments) {
    if (!path)
        return ExitStatus::failure();
    arguments.emplace_back(*path);
    return m_needs.runner.runAsUserThenAdministrator("/usr/bin/chflags", arguments);
}

ExitStatus FileOperations::unlockFile(OptionalText path) {
    m_needs.log.logMessage("Unlock File: " + shown(path));
    return unlock(path, {"nouchg"});
}

ExitStatus FileOperations::unlockDir(OptionalText path) {
    m_needs.log.logMessage("Unlock Dir: " + shown(path));
    return unlock(path, {"-R", "nouchg"});
}

ExitStatus FileOperations::chmod(OptionalText path, OptionalText mode) {
    m_needs.log.logMessage("chmod: " + shown(path) + " mode:" + shown(mode));
    if (!path || !mode)
        return ExitStatus::failure();
    return m_needs.runner.runAsUserThenAdministrator(
        "/bin/chmod", Params{{std::string(*mode), std::string(*path)}});
}

ExitStatus FileOperations::makeDir(OptionalText path) {
    m_needs.log.logMessage("Make Dir: " + shown(path));
    if (!path)
        return ExitStatus::failure();
    if (exists(*path))
        return ExitStatus::success();
    const ExitStatus made =
        m_needs.runner.runAsUserThenAdministrator("/bin/mkdir", Params{{"-p", std::string(*path)}});
    if (made.succeeded())
        (void)chmod(path, "777");
    return made;
}

ExitStatus FileOperations::symLink(OptionalText source, OptionalText destination) {
    m_needs.log.logMessage("SymLink: " + shown(source) + " -> " + shown(destination));
    if (!source || !destination)
        return ExitStatus::failure();
    if (!exists(*source)) {
        m_needs.log.logMessage("file or dir '" + shown(source) + "' is missing");
        return ExitStatus::failure();
    }
    return m_needs.runner.runAsUserThenAdministrator(
        "/bin/ln", Params{{"-s", std::string(*source), std::string(*destination)}});
}

bool FileOperations::makeAliasTarget(std::string_view target, std::string_view alias) {
    const std::string targetPath(target);
    const std::string aliasPath(alias);
    ports::FinderFiles& files = m_needs.finderFiles;
    const auto failed = [&](int error) {
        m_needs.log.logMessage("makeAliasTarget: [" + targetPath + "] [" + aliasPath +
                               "] Error code: " + std::to_string(error));
        return false;
    };
    if (const int error = files.resolve(fs::path(aliasPath).parent_path().string()))
        return failed(error);
    if (const int error = files.resolve(targetPath))
        return failed(error);
    const auto [error, information] = files.finderInformation(targetPath);
    if (error != 0)
        return failed(error);
    const auto record = files.aliasRecord(targetPath);
    if (record.empty())
        return true; // the platform's parameter error goes back as a truth value
    if (const int creation = files.createAliasFile(aliasPath, record))
        return failed(creation);
    if (const int setting = files.setFinderInformation(
            aliasPath, {information.type, information.creator, ports::FinderInformation::kIsAlias}))
        return failed(setting);
    return true;
}

} // namespace ec
