#pragma once
#pragma GCC system_header // which may ask for this system's own header
#include_next <sys/stat.h>
#define UF_IMMUTABLE 0x00000002
struct DarwinStat : stat {
    unsigned st_flags;
    timespec st_birthtimespec;
    timespec st_mtimespec;
    timespec st_ctimespec;
};
int darwinFstat(int file, DarwinStat* status);
int darwinLstat(const char* path, DarwinStat* status);
int fchflags(int file, unsigned flags);
#define stat DarwinStat
#define fstat darwinFstat
#define lstat darwinLstat
