#pragma once
struct statfs {
    char f_mntonname[1024];
};
int darwinStatfs(const char* path, struct statfs* status);
#define statfs(...) darwinStatfs(__VA_ARGS__)
