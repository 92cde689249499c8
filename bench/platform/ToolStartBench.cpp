// How long a tool's start and end take, against the bare system calls, from a small process and
// from one that holds 500 MB. The tool is /bin/true, so nothing but starting is measured.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <functional>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "platform/posix/SpawnedTools.h"

extern char** environ;

namespace {

const ports::ToolCall kTool{"/bin/true", {}};

/// Memory that is really there: each page is written.
std::vector<char> held(const benchmark::State& state) {
    return std::vector<char>(static_cast<std::size_t>(state.range(0)) << 20, 'x');
}

void bareSpawn(benchmark::State& state) {
    const std::vector<char> memory = held(state);
    std::string name = kTool.tool;
    char* arguments[] = {name.data(), nullptr};
    for (auto _ : state) {
        pid_t pid = 0;
        int status = 0;
        if (::posix_spawn(&pid, name.c_str(), nullptr, nullptr, arguments, environ) != 0 ||
            ::waitpid(pid, &status, 0) != pid)
            state.SkipWithError("not started");
    }
}

void bareFork(benchmark::State& state) {
    const std::vector<char> memory = held(state);
    for (auto _ : state) {
        const pid_t pid = ::fork();
        if (pid == 0) {
            ::execl(kTool.tool.c_str(), kTool.tool.c_str(), nullptr);
            ::_exit(127);
        }
        ::waitpid(pid, nullptr, 0);
    }
}

void run(benchmark::State& state) {
    const std::vector<char> memory = held(state);
    posix::SpawnedTools tools({});
    for (auto _ : state)
        if (tools.run(kTool) != 0)
            state.SkipWithError("failed");
}

void capture(benchmark::State& state) {
    const std::vector<char> memory = held(state);
    posix::SpawnedTools tools({});
    for (auto _ : state)
        benchmark::DoNotOptimize(tools.capture(kTool));
}

void runThroughPipe(benchmark::State& state) {
    const std::vector<char> memory = held(state);
    posix::SpawnedTools tools({});
    const auto reader = [](int end) {
        char buffer[128];
        while (::read(end, buffer, sizeof buffer) > 0) {
        }
    };
    for (auto _ : state)
        tools.runThroughPipe(kTool, reader);
}

BENCHMARK(bareSpawn)->Arg(0)->Arg(500)->ArgName("MB")->UseRealTime();
BENCHMARK(run)->Arg(0)->Arg(500)->ArgName("MB")->UseRealTime();
BENCHMARK(capture)->Arg(0)->Arg(500)->ArgName("MB")->UseRealTime();
BENCHMARK(runThroughPipe)->Arg(0)->Arg(500)->ArgName("MB")->UseRealTime();
BENCHMARK(bareFork)->Arg(0)->Arg(500)->ArgName("MB")->UseRealTime();

} // namespace
