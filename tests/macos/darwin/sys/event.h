#pragma once
#pragma GCC system_header // a function of its struct's name
#include <cstdint>
#include <time.h>
#define EVFILT_PROC (-5)
#define EV_ADD 0x0001
#define NOTE_EXIT 0x80000000
struct kevent {
    std::uintptr_t ident;
    std::int16_t filter;
    std::uint16_t flags;
    std::uint32_t fflags;
    std::intptr_t data;
    void* udata;
};
#define EV_SET(event, ...) (*(event) = {__VA_ARGS__})
int kqueue();
int kevent(int queue, const struct kevent* changes, int changeCount, struct kevent* events,
           int eventCount, const timespec* timeout);
