#include "tests/reliability/TracedCommand.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <system_error>

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include "tests/reliability/CallReader.h"

namespace sweep {

namespace {

constexpr unsigned kMostSeconds = 120; // a command that waits for ever must not stop the tests

[[noreturn]] void complain(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

/// What a child writes, without a reader that it could wait for.
class MemoryFile {
  public:
    MemoryFile() : m_file(::memfd_create("written", MFD_CLOEXEC)) {
        if (m_file < 0)
            complain("no file in memory");
    }
    ~MemoryFile() { ::close(m_file); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    int descriptor() const { return m_file; }
    std::string text() const {
        std::string all;
        std::array<char, 4096> piece;
        ssize_t got = 0;
        while ((got = ::pread(m_file, piece.data(), piece.size(), static_cast<off_t>(all.size()))) >
               0)
            all.append(piece.data(), static_cast<std::size_t>(got));
        return all;
    }

  private:
    int m_file;
};

bool isBelow(const std::string& path, const std::string& folder) {
    return path == folder || path.starts_with(folder + "/");
}

/// What can be opened and written to without a disk.
bool isNoDisk(const std::string& path) {
    return path.starts_with("/memfd:") || path.starts_with("/proc/") ||
           (path.starts_with("/dev/") && !path.starts_with("/dev/shm/"));
}

/// One run: the tracees and what became of the plan.
class Run {
  public:
    Run(const Plan& plan, const std::string& folder, Outcome& outcome)
        : m_plan(plan), m_folder(folder), m_outcome(outcome) {}

    void follow(pid_t first) {
        m_first = first;
        m_tasks[first];
        if (::ptrace(PTRACE_SETOPTIONS, first, nullptr,
                     PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL | PTRACE_O_TRACECLONE |
                         PTRACE_O_TRACEFORK | PTRACE_O_TRACEVFORK | PTRACE_O_TRACEEXEC |
                         PTRACE_O_TRACESECCOMP) != 0)
            complain("the command can't be followed");
        go(first, m_tasks[first]);
        int status = 0;
        for (;;) {
            const pid_t task = ::waitpid(-1, &status, __WALL);
            if (task < 0 && errno == EINTR) {
                m_outcome.hung = true;
                killAll();
                continue;
            }
            if (task < 0)
                break; // nobody is left
            if (WIFSTOPPED(status))
                stopped(task, status);
            else
                ended(task, status);
        }
    }

  private:
    struct Task {
        bool known = false;       ///< its first stop is behind it
        std::size_t call = kNone; ///< index of that call
        bool refused = false;     ///< the call is skipped and answers `error`
        int error = 0;
        bool killAfter = false;
    };
    static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

    /// On to the next stop; also at the end of the call that it has begun, where that matters.
    void go(pid_t task, const Task& state, int signal = 0) {
        ::ptrace(state.call != kNone ? PTRACE_SYSCALL : PTRACE_CONT, task, nullptr, signal);
    }

    void killAll() {
        ::kill(-m_first, SIGKILL);
        for (const auto& [task, state] : m_tasks)
            ::kill(task, SIGKILL); // also those that left the group
    }

    void ended(pid_t task, int status) {
        m_tasks.erase(task);
        if (task == m_first)
            m_outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    }

    void stopped(pid_t task, int status) {
        Task& state = m_tasks[task];
        const int signal = WSTOPSIG(status);
        const int event = status >> 16;
        if (signal == (SIGTRAP | 0x80) || event == PTRACE_EVENT_SECCOMP) {
            state.known = true;
            atCall(task, state);
            go(task, state);
        } else if (event != 0) {
            state.known = state.known || event == PTRACE_EVENT_EXEC;
            go(task, state);
        } else if (!state.known && task != m_first && signal == SIGSTOP) {
            state.known = true; // how a new one begins
            go(task, state);
        } else {
            go(task, state, signal);
        }
    }

    void atCall(pid_t task, Task& state) {
        __ptrace_syscall_info info{};
        if (::ptrace(PTRACE_GET_SYSCALL_INFO, task, sizeof info, &info) <= 0)
            return; // it was killed
        if (info.op == PTRACE_SYSCALL_INFO_SECCOMP)
            atEntry(task, state, info);
        else if (info.op == PTRACE_SYSCALL_INFO_EXIT)
            atExit(task, state, info.exit.rval);
    }

    void atEntry(pid_t task, Task& state, const __ptrace_syscall_info& info) {
        state.call = kNone;
        state.refused = state.killAfter = false;
        const CallShape* shape = diskCall(static_cast<long>(info.seccomp.nr));
        if (shape == nullptr || m_outcome.killed)
            return;
        Call call{.shape = shape, .effect = shape->effect};
        if (!describe(task, info, call))
            return;
        if (call.effect == Effect::flush && call.path.empty())
            call.path = m_folder; // all disks
        if (!isBelow(call.path, m_folder) && !isBelow(call.second, m_folder)) {
            if (changesDisk(call.effect) && !isNoDisk(call.path))
                m_outcome.outside.push_back(std::move(call));
            return;
        }
        state.call = m_outcome.calls.size();
        m_outcome.calls.push_back(std::move(call));
        decide(task, state);
    }

    void decide(pid_t task, Task& state) {
        Call& call = m_outcome.calls[state.call];
        int error = m_plan.refuses ? m_plan.refuses(call) : 0;
        call.counted = m_plan.counts ? m_plan.counts(call) : changesDisk(call.effect);
        if (call.counted)
            ++m_outcome.counted;
        const bool strikes = call.counted && m_plan.act != Act::watch &&
                             (m_outcome.counted == m_plan.at ||
                              (m_plan.act == Act::failFromThere && m_outcome.counted > m_plan.at));
        if (strikes) {
            if (!m_outcome.struck)
                m_outcome.struckAt = state.call;
            m_outcome.struck = true;
            switch (m_plan.act) {
            case Act::killBefore:
                skip(task);
                m_outcome.killed = true;
                killAll();
                return;
            case Act::killAfter:
                state.killAfter = true;
                break;
            default:
                error = m_plan.error;
            }
        }
        if (error != 0) {
            call.refused = state.refused = true;
            state.error = error;
            skip(task);
        }
    }

    /// Makes the call that begins one that does not exist.
    static void skip(pid_t task) {
        user_regs_struct registers{};
        ::ptrace(PTRACE_GETREGS, task, nullptr, &registers);
        registers.orig_rax = ~0ULL;
        ::ptrace(PTRACE_SETREGS, task, nullptr, &registers);
    }

    void atExit(pid_t task, Task& state, std::int64_t result) {
        if (state.refused) {
            result = -state.error;
            user_regs_struct registers{};
            ::ptrace(PTRACE_GETREGS, task, nullptr, &registers);
            registers.rax = static_cast<unsigned long long>(result);
            ::ptrace(PTRACE_SETREGS, task, nullptr, &registers);
        }
        if (state.call != kNone) {
            Call& call = m_outcome.calls[state.call];
            call.result = static_cast<long>(result);
            if (result >= 0 && m_plan.act == Act::watch)
                noteInodes(call);
        }
        state.call = kNone;
        if (state.killAfter) {
            m_outcome.killed = true;
            killAll();
        }
    }

    const Plan& m_plan;
    const std::string& m_folder;
    Outcome& m_outcome;
    pid_t m_first = 0;
    std::map<pid_t, Task> m_tasks;
};

/// Ends a wait that takes too long: waitpid answers EINTR then.
class Limit {
  public:
    Limit() {
        struct ::sigaction action{};
        action.sa_handler = [](int) {};
        ::sigaction(SIGALRM, &action, &m_before);
        ::alarm(kMostSeconds);
    }
    ~Limit() {
        ::alarm(0);
        ::sigaction(SIGALRM, &m_before, nullptr);
    }
    Limit(const Limit&) = delete;
    Limit& operator=(const Limit&) = delete;

  private:
    struct ::sigaction m_before{};
};

/// From now on this process, and what it starts, stops at the calls of the table alone: stopping at
/// every call takes several times as long.
bool stopAtDiskCalls() {
    std::vector<sock_filter> program{
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const CallShape& shape : diskCalls()) {
        program.push_back(
            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<std::uint32_t>(shape.number), 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return ::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

[[noreturn]] void become(std::vector<char*>& words, std::vector<std::string> variables, int output,
                         int errors) {
    ::setpgid(0, 0);
    ::dup2(output, STDOUT_FILENO);
    ::dup2(errors, STDERR_FILENO);
    for (std::string& variable : variables)
        ::putenv(variable.data());
    if (::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) == 0) {
        ::raise(SIGSTOP);
        if (stopAtDiskCalls())
            ::execvp(words.front(), words.data());
        std::perror(words.front());
    }
    ::_exit(127);
}

} // namespace

std::string Call::text() const {
    std::string text(shape->name);
    text += " " + path;
    if (!second.empty())
        text += " to " + second;
    return text;
}

TracedCommand::TracedCommand(std::vector<std::string> command, std::string folder)
    : m_command(std::move(command)), m_folder(std::move(folder)) {
    // The leak checker traces its process itself, which a process that is traced can't do.
    m_variables.emplace_back("ASAN_OPTIONS=detect_leaks=0");
}

Outcome TracedCommand::run(const Plan& plan) const {
    std::vector<std::string> words = m_command;
    std::vector<char*> pointers;
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);

    const MemoryFile output;
    const MemoryFile errors;
    Outcome outcome;
    const pid_t child = ::fork();
    if (child < 0)
        complain("no process");
    if (child == 0)
        become(pointers, m_variables, output.descriptor(), errors.descriptor());
    int status = 0;
    if (::waitpid(child, &status, 0) != child || !WIFSTOPPED(status)) {
        errno = EPERM;
        complain("this system lets no process be traced");
    }
    const Limit limit;
    Run(plan, m_folder, outcome).follow(child);
    outcome.output = output.text();
    outcome.errors = errors.text();
    return outcome;
}

} // namespace sweep
