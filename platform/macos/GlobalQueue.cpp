#include "platform/macos/GlobalQueue.h"

#include <dispatch/dispatch.h>
#include <utility>

namespace macoshost {

/// What was handed to the system and has not returned yet; waits for that when it ends.
class GlobalQueue::Group {
  public:
    Group() = default;
    Group(const Group&) = delete;
    Group& operator=(const Group&) = delete;
    ~Group() {
        dispatch_group_wait(m_group, DISPATCH_TIME_FOREVER);
        dispatch_release(m_group);
    }

    void run(posix::OrderedWork& work) {
        dispatch_group_async_f(m_group,
                               dispatch_get_global_queue(DISPATCH_QUEUE_PRIORITY_DEFAULT, 0), &work,
                               [](void* all) { static_cast<posix::OrderedWork*>(all)->runAll(); });
    }

  private:
    const dispatch_group_t m_group = dispatch_group_create();
};

GlobalQueue::GlobalQueue() : m_group(std::make_unique<Group>()) {}

GlobalQueue::~GlobalQueue() = default;

void GlobalQueue::async(std::function<void()> work) {
    if (m_work.add(std::move(work)))
        m_group->run(m_work);
}

} // namespace macoshost
