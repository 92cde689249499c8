#pragma once
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <sys/types.h>
#define ENOATTR ENODATA // a number of its own there
#define XATTR_NOFOLLOW 0x0001
#define XATTR_FINDERINFO_NAME "com.apple.FinderInfo"
#define XATTR_RESOURCEFORK_NAME "com.apple.ResourceFork"
ssize_t darwinGetxattr(const char* path, const char* name, void* value, std::size_t size,
                       std::uint32_t position, int options);
int darwinSetxattr(const char* path, const char* name, const void* value, std::size_t size,
                   std::uint32_t position, int options);
int darwinFsetxattr(int file, const char* name, const void* value, std::size_t size,
                    std::uint32_t position, int options);
ssize_t darwinFgetxattr(int file, const char* name, void* value, std::size_t size,
                        std::uint32_t position, int options);
ssize_t darwinFlistxattr(int file, char* names, std::size_t size, int options);
int darwinFremovexattr(int file, const char* name, int options);
#define getxattr darwinGetxattr
#define setxattr darwinSetxattr
#define fsetxattr darwinFsetxattr
#define fgetxattr darwinFgetxattr
#define flistxattr darwinFlistxattr
#define fremovexattr darwinFremovexattr
