#include "platform/posix/ChildProcess.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <thread>
#include <utility>

#include "platform/posix/ProcessSystem.h"

extern char** environ; // NOLINT(readability-redundant-declaration): macOS declares it nowhere

namespace posix {

namespace {

/// The status of a child whose own was taken by somebody else.
constexpr int kLost = 255;

std::string_view nameOf(std::string_view entry) {
    return entry.substr(0, entry.find('='));
}

/// The environment for the child. The entries stay where they are; only the list is new.
std::vector<char*> environmentWith(const std::vector<std::string>& added) {
    std::vector<char*> entries;
    for (char** entry = environ; entry && *entry; ++entry) {
        bool replaced = false;
        for (const std::string& other : added)
            replaced = replaced || nameOf(other) == nameOf(*entry);
        if (!replaced)
            entries.push_back(*entry);
    }
    for (const std::string& entry : added)
        entries.push_back(const_cast<char*>(entry.c_str()));
    entries.push_back(nullptr);
    return entries;
}

std::vector<char*> argumentVector(const ChildSetUp& setUp) {
    std::vector<char*> entries{const_cast<char*>(setUp.program.c_str())};
    for (const std::string& argument : setUp.arguments)
        entries.push_back(const_cast<char*>(argument.c_str()));
    entries.push_back(nullptr);
    return entries;
}

class FileActions {
  public:
    explicit FileActions(const ChildSetUp& setUp) {
        ::posix_spawn_file_actions_init(&m_actions);
        ::posix_spawn_file_actions_addopen(&m_actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        // Output first: it may be asked to go where the program's standard error goes.
        if (setUp.output != STDOUT_FILENO)
            ::posix_spawn_file_actions_adddup2(&m_actions, setUp.output, STDOUT_FILENO);
        if (setUp.error != STDERR_FILENO)
            ::posix_spawn_file_actions_adddup2(&m_actions, setUp.error, STDERR_FILENO);
        if (setUp.progress >= 0)
            ::posix_spawn_file_actions_adddup2(&m_actions, setUp.progress, kProgressDescriptor);
        if (setUp.detached)
            ::posix_spawn_file_actions_addchdir_np(&m_actions, "/");
    }
    FileActions(const FileActions&) = delete;
    FileActions& operator=(const FileActions&) = delete;
    ~FileActions() { ::posix_spawn_file_actions_destroy(&m_actions); }
    posix_spawn_file_actions_t& get() { return m_actions; }

  private:
    posix_spawn_file_actions_t m_actions{};
};

class Attributes {
  public:
    explicit Attributes(const ChildSetUp& setUp) {
        ::posix_spawnattr_init(&m_attributes);
        sigset_t signals;
        sigemptyset(&signals);
        ::posix_spawnattr_setsigmask(&m_attributes, &signals);
        sigfillset(&signals);
        ::posix_spawnattr_setsigdefault(&m_attributes, &signals);
        int flags = POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF;
        if (setUp.detached)
            flags |= POSIX_SPAWN_SETSID;
        ::posix_spawnattr_setflags(&m_attributes, static_cast<short>(flags));
    }
    Attributes(const Attributes&) = delete;
    Attributes& operator=(const Attributes&) = delete;
    ~Attributes() { ::posix_spawnattr_destroy(&m_attributes); }
    posix_spawnattr_t& get() { return m_attributes; }

  private:
    posix_spawnattr_t m_attributes{};
};

} // namespace

ChildProcess::~ChildProcess() {
    if (m_pid > 0 && !m_status)
        collect(0);
}

int ChildProcess::start(const ChildSetUp& setUp) {
    FileActions actions(setUp);
    Attributes attributes(setUp);
    closeFrom(actions.get(), attributes.get(),
              setUp.progress >= 0 ? kProgressDescriptor + 1 : kProgressDescriptor);
    std::vector<char*> arguments = argumentVector(setUp);
    std::vector<char*> environment;
    if (!setUp.environment.empty())
        environment = environmentWith(setUp.environment);
    return ::posix_spawn(&m_pid, setUp.program.c_str(), &actions.get(), &attributes.get(),
                         arguments.data(), environment.empty() ? environ : environment.data());
}

bool ChildProcess::collect(int options) {
    int status = 0;
    pid_t answer = 0;
    do
        answer = ::waitpid(m_pid, &status, options);
    while (answer < 0 && errno == EINTR);
    if (answer == 0)
        return false;
    if (answer < 0) // somebody else took the status; all that is known is that it is over
        m_status = kLost;
    else
        m_status = WIFSIGNALED(status) ? 128 + WTERMSIG(status) : WEXITSTATUS(status);
    return true;
}

int ChildProcess::wait() {
    if (!m_status)
        collect(0);
    return m_status.value_or(kLost);
}

bool ChildProcess::hasEnded() {
    return m_status || collect(WNOHANG);
}

void ChildProcess::abandon() {
    std::thread([pid = std::exchange(m_pid, -1)] {
        while (::waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {
        }
    }).detach();
}

} // namespace posix
