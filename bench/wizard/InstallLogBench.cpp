// Whole log lines, date and all, through the install log.
#include <filesystem>

#include <benchmark/benchmark.h>

#include "platform/posix/EnglishTexts.h"
#include "platform/posix/FileTextStreams.h"
#include "platform/posix/SystemClock.h"
#include "tests/support/TemporaryFolder.h"
#include "wizard/InstallLog.h"

namespace {

void logMessage(benchmark::State& state) {
    const tests::TemporaryFolder home;
    std::filesystem::create_directories(home.path("Library/Logs"));
    const ports::SystemPlaces places{.root = "", .home = home.path(), .temporary = "/tmp"};
    posix::SystemClock clock;
    posix::FileTextStreams streams;
    const posix::EnglishTexts texts(home.path());
    controls::TextField processingText;
    ec::InstallLog log({.places = places,
                        .clock = clock,
                        .streams = streams,
                        .texts = texts,
                        .processingText = processingText,
                        .written = {}});
    for (auto _ : state)
        log.logMessage("Running as user: /bin/chmod 777 /Library/Scrivel Result: 0");
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(logMessage);

} // namespace
