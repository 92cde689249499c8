#pragma once
#pragma GCC system_header // which may ask for this system's own header
#include_next <stdio.h>
#define RENAME_SWAP 0x00000002
#define RENAME_EXCL 0x00000004
int renamex_np(const char* from, const char* to, unsigned flags);
int renameatx_np(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags);
