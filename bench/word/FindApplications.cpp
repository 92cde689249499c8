// What bench/discovery times:
//   find_applications FOLDER NAME      prints the paths of all items of that name below the folder
//   find_applications --registry ROOT  asks the registry twice for the applications of one
//                                      identifier below ROOT/Applications, prints their paths, and
//                                      on standard error the milliseconds that passed and the
//                                      processor took for each call
#include <chrono>
#include <cstdio>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

#include "cp/FolderWalk.h"
#include "platform/linux/ProcApplications.h"
#include "platform/posix/PlistBundles.h"

namespace {

using Paths = std::vector<std::string>;

Paths itemsBelow(const char* folder, std::string_view name) {
    return Corvaldine::CP::FolderWalk([name](std::string_view item) { return item == name; })
        .find(folder);
}

Paths askRegistry(const char* root) {
    using Clock = std::chrono::steady_clock;
    posix::PlistBundles bundles("/bin/true");
    linuxhost::ProcApplications applications({.bundles = bundles, .root = root, .home = "/"});
    Paths found;
    for (int call = 0; call < 2; ++call) {
        const auto start = Clock::now();
        const std::clock_t worked = std::clock();
        found = applications.pathsFor("com.example.Application");
        const std::chrono::duration<double, std::milli> passed = Clock::now() - start;
        std::fprintf(stderr, "%.3f %.3f ", passed.count(),
                     static_cast<double>(std::clock() - worked) * 1000 / CLOCKS_PER_SEC);
    }
    std::fprintf(stderr, "\n");
    return found;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3)
        return 2;
    const bool isRegistry = arguments[1] == std::string_view("--registry");
    for (const std::string& path :
         isRegistry ? askRegistry(arguments[2]) : itemsBelow(arguments[1], arguments[2]))
        std::puts(path.c_str());
    return 0;
}
