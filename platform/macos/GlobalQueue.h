// The background queue on Grand Central Dispatch's global queue of default priority
// (ports::BackgroundQueue). Made by the composition root. Blocks run one at a time, in their order,
// on whatever threads the system chooses.
#pragma once

#include <functional>
#include <memory>

#include "platform/ports/Queues.h"
#include "platform/posix/OrderedWork.h"

namespace macoshost {

class GlobalQueue final : public ports::BackgroundQueue {
  public:
    GlobalQueue();
    GlobalQueue(const GlobalQueue&) = delete;
    GlobalQueue& operator=(const GlobalQueue&) = delete;
    /// Waits for all work. Work that may still `sync` with the main thread must be over before:
    /// run the main queue until `isBusy` is false.
    ~GlobalQueue() override;

    void async(std::function<void()> work) override;
    bool isBusy() const override { return m_work.isBusy(); }

  private:
    class Group;

    posix::OrderedWork m_work;
    std::unique_ptr<Group> m_group;
};

} // namespace macoshost
