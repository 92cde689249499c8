#pragma once
#pragma GCC system_header // which may ask for this system's own header
#include <cstddef>
#include_next <unistd.h>
#define _CS_DARWIN_USER_TEMP_DIR 65537
std::size_t darwinConfstr(int name, char* buffer, std::size_t size);
int darwinGetattrlist(const char* path, void* wanted, void* answer, std::size_t size,
                      unsigned options);
int darwinFsync(int file);
#define confstr darwinConfstr
#define getattrlist darwinGetattrlist
#define fsync darwinFsync
