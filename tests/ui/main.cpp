#include "tests/ui/Stage.h"

int main(int argc, char** argv) {
    return stage::runTests(argc, argv);
}
