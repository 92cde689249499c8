#pragma once
#include <sys/types.h>
#ifdef __cplusplus
extern "C" {
#endif
#define XATTR_NOFOLLOW 0x0001
#define XATTR_FINDERINFO_NAME "com.apple.FinderInfo"
#define XATTR_RESOURCEFORK_NAME "com.apple.ResourceFork"
ssize_t getxattr(const char* path, const char* name, void* value, size_t size, u_int32_t position,
                 int options);
int setxattr(const char* path, const char* name, const void* value, size_t size, u_int32_t position,
             int options);
ssize_t fgetxattr(int fd, const char* name, void* value, size_t size, u_int32_t position,
                  int options);
int fsetxattr(int fd, const char* name, const void* value, size_t size, u_int32_t position,
              int options);
int fremovexattr(int fd, const char* name, int options);
ssize_t flistxattr(int fd, char* names, size_t size, int options);
#ifdef __cplusplus
}
#endif
