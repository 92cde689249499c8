// makeSampleProduct FOLDER EXECUTABLE VERSION [ICON]: makes the sample product in FOLDER. A build
// tool; nothing of it is installed.
#include <cstdio>
#include <exception>

#include "tools/makeSampleProduct/SampleProduct.h"

int main(int argc, char** argv) {
    if (argc < 4 || argc > 5) {
        std::fputs("usage: makeSampleProduct FOLDER EXECUTABLE VERSION [ICON]\n", stderr);
        return 2;
    }
    try {
        tools::makeSampleProduct(
            {.executable = argv[2], .icon = argc > 4 ? argv[4] : "", .version = argv[3]}, argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "makeSampleProduct: %s\n", error.what());
        return 1;
    }
    return 0;
}
