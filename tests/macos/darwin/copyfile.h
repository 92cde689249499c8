#pragma once
#include <cstdint>
#define COPYFILE_ALL 15
#define COPYFILE_DATA (1 << 3)
#define COPYFILE_RECURSIVE (1 << 15)
#define COPYFILE_EXCL (1 << 17)
#define COPYFILE_NOFOLLOW ((1 << 18) | (1 << 19))
#define COPYFILE_DATA_SPARSE (1 << 27)
#define COPYFILE_STATE_STATUS_CB 6
#define COPYFILE_STATE_STATUS_CTX 7
#define COPYFILE_RECURSE_ERROR 0
#define COPYFILE_RECURSE_FILE 1
#define COPYFILE_RECURSE_DIR 2
#define COPYFILE_COPY_XATTR 5
#define COPYFILE_START 1
#define COPYFILE_FINISH 2
#define COPYFILE_ERR 3
#define COPYFILE_CONTINUE 0
#define COPYFILE_QUIT 2
using copyfile_state_t = struct DarwinCopyState*;
using copyfile_flags_t = std::uint32_t;
using copyfile_callback_t = int (*)(int, int, copyfile_state_t, const char*, const char*, void*);
copyfile_state_t copyfile_state_alloc();
int copyfile_state_free(copyfile_state_t state);
int copyfile_state_set(copyfile_state_t state, std::uint32_t flag, const void* value);
int copyfile(const char* from, const char* to, copyfile_state_t state, copyfile_flags_t flags);
int fcopyfile(int from, int to, copyfile_state_t state, copyfile_flags_t flags);
