// makeSampleComponents DISK IMPORTERS EXECUTABLE VERSION: makes the sample product's components in
// the folder DISK, the Spotlight importer in the folder IMPORTERS. A build tool; nothing of it is
// installed.
#include <cstdio>
#include <exception>

#include "tools/makeSampleProduct/SampleComponents.h"

int main(int argc, char** argv) {
    if (argc != 5) {
        std::fputs("usage: makeSampleComponents DISK IMPORTERS EXECUTABLE VERSION\n", stderr);
        return 2;
    }
    try {
        tools::makeSampleComponents(
            {.disk = argv[1], .importers = argv[2], .executable = argv[3], .version = argv[4]});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "makeSampleComponents: %s\n", error.what());
        return 1;
    }
    return 0;
}
