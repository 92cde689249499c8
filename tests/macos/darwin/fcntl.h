#pragma once
#pragma GCC system_header // which may ask for this system's own header
#include_next <fcntl.h>
#define F_FULLFSYNC 51
int darwinFcntl(int file, int command, long argument = 0);
#define fcntl darwinFcntl
