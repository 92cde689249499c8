// What the program uses of Grand Central Dispatch, for the adapters' tests on another system; the
// system's own header is used everywhere else.
#pragma once
#include <cstdint>
#define DISPATCH_QUEUE_PRIORITY_DEFAULT 0
#define DISPATCH_TIME_FOREVER (~0ull)
struct dispatch_object_s {};
struct dispatch_group_s : dispatch_object_s {};
struct dispatch_queue_s : dispatch_object_s {};
struct dispatch_queue_global_s : dispatch_queue_s {};
typedef dispatch_object_s* dispatch_object_t;
typedef dispatch_group_s* dispatch_group_t;
typedef dispatch_queue_s* dispatch_queue_t;
typedef dispatch_queue_global_s* dispatch_queue_global_t;
typedef void (*dispatch_function_t)(void*);
typedef std::uint64_t dispatch_time_t;
extern "C" {
dispatch_queue_global_t dispatch_get_global_queue(std::intptr_t identifier, std::uintptr_t flags);
dispatch_group_t dispatch_group_create(void);
void dispatch_group_async_f(dispatch_group_t group, dispatch_queue_t queue, void* context,
                            dispatch_function_t work);
std::intptr_t dispatch_group_wait(dispatch_group_t group, dispatch_time_t timeout);
void dispatch_release(dispatch_object_t object);
}
