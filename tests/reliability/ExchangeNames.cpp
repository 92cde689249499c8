// Exchanges two names in one step, for the updaters of SweepTest, which are shell scripts:
//
//   exchange_names ONE OTHER
#include <cstdio>

#include <fcntl.h>

int main(int argc, char** argv) {
    if (argc == 3 && ::renameat2(AT_FDCWD, argv[1], AT_FDCWD, argv[2], RENAME_EXCHANGE) == 0)
        return 0;
    std::perror("exchange_names");
    return 1;
}
