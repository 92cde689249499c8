// One line appended to a file that is opened and closed for it, against the bare system calls and
// against the C library's streams.
#include <benchmark/benchmark.h>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <string>
#include <unistd.h>

#include "platform/posix/FileTextStreams.h"

namespace {

const std::string kLine(120, 'x');

/// A file of its own for each benchmark, gone afterwards.
class LogFile {
  public:
    LogFile()
        : m_path((std::filesystem::temp_directory_path() /
                  ("scrivel-bench-" + std::to_string(::getpid())))
                     .string()) {}
    LogFile(const LogFile&) = delete;
    LogFile& operator=(const LogFile&) = delete;
    ~LogFile() { std::filesystem::remove(m_path); }
    const std::string& path() const { return m_path; }

  private:
    std::string m_path;
};

void bareCalls(benchmark::State& state) {
    const LogFile log;
    for (auto _ : state) {
        const int file =
            ::open(log.path().c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666);
        benchmark::DoNotOptimize(::write(file, kLine.data(), kLine.size()));
        ::close(file);
    }
}

void append(benchmark::State& state) {
    const LogFile log;
    posix::FileTextStreams streams;
    for (auto _ : state)
        if (!streams.append(log.path(), kLine))
            state.SkipWithError("not written");
}

void standardStream(benchmark::State& state) {
    const LogFile log;
    for (auto _ : state) {
        std::FILE* file = std::fopen(log.path().c_str(), "a");
        std::fputs(kLine.c_str(), file);
        std::fclose(file);
    }
}

BENCHMARK(bareCalls);
BENCHMARK(append);
BENCHMARK(standardStream);

} // namespace
