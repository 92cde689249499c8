// The adapters of one run: everything between the core and the system, and the watchers that tell
// the event stream what goes by. Made by the composition root; knows no front end, but that the
// window has texts of its own. The members stand in the order of their needs.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "app/CommandLine.h"
#include "app/unattended/EventStream.h"
#include "app/unattended/Observers.h"
#include "platform/ports/Applications.h"
#include "platform/ports/Bundles.h"
#include "platform/ports/FinderFiles.h"
#include "platform/ports/LocalizedTexts.h"
#include "platform/ports/Queues.h"
#include "platform/ports/SystemLog.h"
#include "platform/ports/SystemPlaces.h"
#include "platform/posix/FilePropertyLists.h"
#include "platform/posix/FileTextStreams.h"
#include "platform/posix/SpawnedTools.h"
#include "platform/posix/SystemClock.h"
#include "platform/posix/ThreadQueues.h"

namespace app {

struct Adapters {
    /// `authorize` as the answers file has it; none: the host's facility decides.
    Adapters(const CommandLine& options, std::optional<bool> authorize);

    const ports::SystemPlaces places;
    posix::MainQueue mainQueue;
    posix::SystemClock clock;
    std::unique_ptr<ports::SystemLog> systemLog;
    posix::FileTextStreams streams;
    std::unique_ptr<ports::Bundles> bundles;
    posix::FilePropertyLists propertyLists;
    /// English in an unattended run, else in the user's language.
    std::unique_ptr<ports::LocalizedTexts> texts;
    EventStream events;
    /// Told on the main thread what a tool of our own reports; set by whoever shows it.
    std::function<void(const ports::ToolProgress&)> showProgress;
    /// Called while a tool is waited for; set by whoever has a window to keep alive.
    std::function<void()> keepAlive;
    posix::SpawnedTools spawnedTools;
    ObservedTools tools;
    std::unique_ptr<ports::Administrator> systemAdministrator;
    std::unique_ptr<ports::Administrator> decidedAdministrator;
    ObservedAdministrator administrator;
    std::unique_ptr<ports::Applications> applications;
    std::unique_ptr<ports::FinderFiles> finderFiles;
    std::unique_ptr<ports::BackgroundQueue> backgroundQueue;

  private:
    std::function<void()> whileWaiting(const CommandLine& options);
};

} // namespace app
