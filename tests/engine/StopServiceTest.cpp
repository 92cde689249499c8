// The script that stops a running Services application, against real processes. Other tests may
// run it at the same time, so a process that it stops may be gone before this test's own call.
#include <csignal>
#include <filesystem>
#include <optional>

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/posix/SpawnedTools.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;

/// A program that sleeps, under a name of the test's choice, until it is stopped.
class Process {
  public:
    struct Options {
        bool ignoresTermination = false;
        std::optional<uid_t> user = std::nullopt;
    };
    Process(const std::string& program, Options options) {
        // The pipe closes when the program has been started in the child's place.
        int started[2];
        if (::pipe2(started, O_CLOEXEC) != 0)
            return;
        m_process = ::fork();
        if (m_process == 0) {
            if (options.ignoresTermination)
                std::signal(SIGTERM, SIG_IGN);
            if (!options.user || ::setuid(*options.user) == 0)
                ::execl(program.c_str(), program.c_str(), "60", nullptr);
            ::_exit(126);
        }
        ::close(started[1]);
        char nothing = 0;
        while (::read(started[0], &nothing, 1) < 0 && errno == EINTR)
            ;
        ::close(started[0]);
    }
    explicit Process(const std::string& program) : Process(program, Options{}) {}
    ~Process() {
        if (m_process <= 0)
            return;
        ::kill(m_process, SIGKILL);
        ::waitpid(m_process, nullptr, 0);
    }
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    bool runs() const { return m_process > 0 && ::waitpid(m_process, nullptr, WNOHANG) == 0; }
    /// The signal that ended it; 0 when it came to its end by itself.
    int endedBy() {
        int status = 0;
        if (m_process <= 0 || ::waitpid(std::exchange(m_process, 0), &status, 0) <= 0)
            return -1;
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

  private:
    pid_t m_process = 0;
};

struct StopService : testing::Test {
    tests::TemporaryFolder folder;
    posix::SpawnedTools tools{{}};

    std::string program(const std::string& name) const {
        const fs::path path = folder.path(name);
        fs::create_directories(path.parent_path());
        fs::copy_file("/bin/sleep", path);
        return path.string();
    }
    std::string service(const std::string& at = "Library/Services") const {
        return program(at + "/SVService.app/Contents/MacOS/SVService");
    }
    int stop() { return tools.run({SCRIVEL_RESOURCES "/KillSVService.sh", {}}); }
};

TEST_F(StopService, ARunningServiceIsAskedToEndAndEnds) {
    Process process(service());
    EXPECT_EQ(stop(), 0);
    EXPECT_EQ(process.endedBy(), SIGTERM);
}

TEST_F(StopService, EveryRunningServiceEndsWhereverItLies) {
    Process one(service());
    Process two(service("other place with blanks"));
    EXPECT_EQ(stop(), 0);
    EXPECT_EQ(one.endedBy(), SIGTERM);
    EXPECT_EQ(two.endedBy(), SIGTERM);
}

TEST_F(StopService, OneThatDoesNotListenIsKilled) {
    Process process(service(), {.ignoresTermination = true});
    EXPECT_EQ(stop(), 0);
    EXPECT_EQ(process.endedBy(), SIGKILL);
}

TEST_F(StopService, OneWhoseBundleIsGoneEndsAsWell) {
    Process process(service());
    fs::remove_all(folder.path("Library"));
    EXPECT_EQ(stop(), 0);
    EXPECT_EQ(process.endedBy(), SIGTERM);
}

TEST_F(StopService, ProcessesOfASimilarNameStay) {
    const std::string contents = "/SVService.app/Contents/MacOS/";
    Process longer(program("a" + contents + "SVServiceX"));
    Process shorter(program("b" + contents + "Service"));
    Process otherBundle(program("c/MySVService.app/Contents/MacOS/SVService"));
    Process otherFolder(program("d/SVService.app/Contents/SVService"));
    Process bare(program("SVService"));
    EXPECT_EQ(stop(), 0);
    for (const Process* process : {&longer, &shorter, &otherBundle, &otherFolder, &bare})
        EXPECT_TRUE(process->runs());
}

TEST_F(StopService, AProcessThatOnlyHasTheNameAsAnArgumentStays) {
    const std::string path = service();
    const std::string other = folder.path("other");
    folder.writeProgram("other", "#!/bin/sh\nwhile read -r line; do :; done <\"$2\"\n");
    ASSERT_EQ(tools.run({"/usr/bin/mkfifo", {folder.path("pipe")}}), 0);
    // The shell waits at the pipe, the service's path among its arguments.
    const pid_t shell = ::fork();
    if (shell == 0) {
        ::execl(other.c_str(), other.c_str(), path.c_str(), folder.path("pipe").c_str(), nullptr);
        ::_exit(126);
    }
    const int pipe = ::open(folder.path("pipe").c_str(), O_WRONLY); // once the shell reads
    EXPECT_EQ(stop(), 0);
    EXPECT_EQ(::waitpid(shell, nullptr, WNOHANG), 0);
    ::close(pipe);
    EXPECT_EQ(::waitpid(shell, nullptr, 0), shell);
}

TEST_F(StopService, AServiceOfAnotherUserStays) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the administrator can start a program for somebody else";
    fs::permissions(folder.path(), fs::perms(0755));
    Process process(service(), {.user = 65533}); // one that no other test stands in for
    ASSERT_TRUE(process.runs());
    EXPECT_EQ(stop(), 0);
    EXPECT_TRUE(process.runs());
}

TEST_F(StopService, WithoutARunningServiceThereIsNothingToDo) {
    EXPECT_EQ(stop(), 0);
    EXPECT_EQ(stop(), 0);
}

} // namespace
