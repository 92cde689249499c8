#include "tests/engine/ToolsInProcess.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <string_view>

namespace tests {

namespace fs = std::filesystem;

namespace {

using Arguments = std::vector<std::string>;

int status(const std::error_code& failure) {
    return failure ? 1 : 0;
}

int rm(const Arguments& arguments) {
    std::error_code failure;
    const fs::path path = arguments.at(1);
    if (arguments.at(0) == "-rf")
        fs::remove_all(path, failure);
    else if (fs::is_directory(fs::symlink_status(path, failure)))
        return 1;
    else
        fs::remove(path, failure);
    return status(failure == std::errc::no_such_file_or_directory ? std::error_code() : failure);
}

/// Where a file goes that is put to `destination`: into it when that is a folder.
fs::path placeFor(const fs::path& source, const fs::path& destination) {
    std::error_code ignored;
    return fs::is_directory(destination, ignored) ? destination / source.filename() : destination;
}

int copyFile(const fs::path& source, const fs::path& destination) {
    std::error_code failure;
    if (fs::is_directory(fs::symlink_status(destination, failure)))
        return 1;
    fs::remove(destination, failure); // a link is replaced, not followed
    if (fs::is_symlink(fs::symlink_status(source, failure))) {
        fs::copy_symlink(source, destination, failure);
        return status(failure);
    }
    if (fs::copy_file(source, destination, failure); failure)
        return 1;
    fs::last_write_time(destination, fs::last_write_time(source, failure), failure);
    return status(failure);
}

/// Merges the folder into the one that may be there; goes on after a failure.
int copyFolder(const fs::path& source, const fs::path& destination) {
    std::error_code failure;
    fs::create_directory(destination, failure);
    if (!fs::is_directory(destination, failure))
        return 1;
    int result = 0;
    for (const auto& entry : fs::directory_iterator(source, failure)) {
        const fs::path target = destination / entry.path().filename();
        result |= !entry.is_symlink() && entry.is_directory() ? copyFolder(entry.path(), target)
                                                              : copyFile(entry.path(), target);
    }
    fs::permissions(destination, fs::status(source, failure).permissions(), failure);
    fs::last_write_time(destination, fs::last_write_time(source, failure), failure);
    return result | status(failure);
}

int ditto(const Arguments& arguments) {
    const fs::path source = arguments.at(1);
    const fs::path destination = arguments.at(2);
    std::error_code failure;
    fs::create_directories(destination.parent_path(), failure);
    if (failure)
        return 1;
    return fs::is_directory(source, failure) ? copyFolder(source, destination)
                                             : copyFile(source, placeFor(source, destination));
}

int mkdir(const Arguments& arguments) {
    std::error_code failure;
    fs::create_directories(arguments.at(1), failure);
    return status(failure);
}

int chmod(const Arguments& arguments) {
    std::error_code failure;
    const long mode = std::strtol(arguments.at(0).c_str(), nullptr, 8);
    fs::permissions(arguments.at(1), static_cast<fs::perms>(mode), failure);
    return status(failure);
}

int mv(const Arguments& arguments) {
    std::error_code failure;
    fs::rename(arguments.at(0), placeFor(arguments.at(0), arguments.at(1)), failure);
    return status(failure);
}

/// As without options: what is there keeps its own mode.
int cp(const Arguments& arguments) {
    std::error_code failure;
    const fs::path target = placeFor(arguments.at(0), arguments.at(1));
    const fs::perms before = fs::status(target, failure).permissions();
    const bool isNew = !fs::exists(target, failure);
    if (fs::copy_file(arguments.at(0), target, fs::copy_options::overwrite_existing, failure);
        failure)
        return 1;
    if (!isNew)
        fs::permissions(target, before, failure);
    return status(failure);
}

/// Owners and flags are nothing that the comparisons look at.
int lookOnly(const Arguments& arguments) {
    std::error_code ignored;
    return fs::exists(arguments.back(), ignored) ? 0 : 1;
}

int succeed(const Arguments&) {
    return 0;
}

struct Tool {
    std::string_view ending;
    int (*work)(const Arguments&);
};
constexpr std::array kTools{
    Tool{"/rm", rm},
    Tool{"/ditto", ditto},
    Tool{"/mkdir", mkdir},
    Tool{"/chmod", chmod},
    Tool{"/mv", mv},
    Tool{"/chown", lookOnly},
    Tool{"/chflags", lookOnly},
    Tool{"/cp", cp},
    Tool{".sh", succeed},
};

} // namespace

int runInProcess(const ports::ToolCall& call) {
    for (const Tool& tool : kTools)
        if (call.tool.ends_with(tool.ending))
            return tool.work(call.arguments);
    return ports::Tools::kCannotStart;
}

void serveInProcess(fakes::FakeHost& host) {
    host.tools.handler = [](const ports::ToolCall& call) {
        return fakes::FakeTools::Answer{.status = runInProcess(call)};
    };
    host.administrator.effect = [](const ports::ToolCall& call) { (void)runInProcess(call); };
}

} // namespace tests
