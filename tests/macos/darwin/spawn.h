#pragma once
#pragma GCC system_header // which may ask for this system's own header
#include_next <spawn.h>
#define POSIX_SPAWN_CLOEXEC_DEFAULT 0x4000
int posix_spawn_file_actions_addinherit_np(posix_spawn_file_actions_t* actions, int file);
int darwinSpawnattrSetflags(posix_spawnattr_t* attributes, short flags);
#define posix_spawnattr_setflags darwinSpawnattrSetflags
