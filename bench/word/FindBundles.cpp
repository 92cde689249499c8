// What bench/discovery times:
//   find_bundles FOLDER            prints the paths of all bundles below the folder, as find would
//   find_bundles --registry ROOT   asks the registry three times for the applications of one
//                                  identifier below ROOT/Applications, prints their paths, and on
//                                  standard error the milliseconds that each call took
#include <chrono>
#include <cstdio>
#include <string_view>

#include "cp/FolderWalk.h"
#include "platform/linux/ProcApplications.h"
#include "platform/posix/PlistBundles.h"

namespace {

using Paths = std::vector<std::string>;

Paths bundlesBelow(const char* folder) {
    Corvaldine::CP::FolderWalk walk(
        [](std::string_view name) { return name.ends_with(".app") || name.ends_with(".bundle"); });
    return walk.find(folder);
}

Paths askRegistry(const char* root) {
    using Clock = std::chrono::steady_clock;
    posix::PlistBundles bundles("/bin/true");
    linuxhost::ProcApplications applications({.bundles = bundles, .root = root, .home = "/"});
    Paths found;
    for (int call = 0; call < 3; ++call) {
        const auto start = Clock::now();
        found = applications.pathsFor("com.example.Application");
        const std::chrono::duration<double, std::milli> passed = Clock::now() - start;
        std::fprintf(stderr, "%.3f ", passed.count());
    }
    std::fprintf(stderr, "\n");
    return found;
}

} // namespace

int main(int count, char** arguments) {
    if (count < 2)
        return 2;
    const bool isRegistry = arguments[1] == std::string_view("--registry");
    if (isRegistry && count < 3)
        return 2;
    for (const std::string& path :
         isRegistry ? askRegistry(arguments[2]) : bundlesBelow(arguments[1]))
        std::puts(path.c_str());
    return 0;
}
