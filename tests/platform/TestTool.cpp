// The tool that the tests of the runners start: it shows what it was given, or misbehaves on
// request.
//
//   print TEXT..         each argument on a line of its own
//   fail TEXT            the text on standard error, exit status 1
//   exit N | kill N      ends that way
//   environment NAME     the variable's value
//   descriptors          the numbers of its open descriptors
//   signals              the numbers of its blocked and its ignored signals
//   input                how many bytes standard input has
//   flood N              N bytes on standard output
//   closeEarly FILE      closes standard output, then makes FILE
//   leaveBehind [TEXT]   prints the number of a process that keeps its pipes and sleeps, or goes on
//                        writing TEXT, and ends
//   progress TEXT        writes TEXT to its progress pipe
//   progressThenLeave TEXT   the same, with a process left behind that holds that pipe
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace {

int leaveBehind(const char* text) {
    const pid_t left = ::fork();
    if (left == 0) {
        ::alarm(60); // in case nobody ends it
        while (text)
            std::printf("%s", text), std::fflush(stdout);
        for (;;)
            ::pause();
    }
    std::printf("%d\n", static_cast<int>(left));
    return 0;
}

int descriptors() {
    DIR* folder = ::opendir("/dev/fd");
    if (!folder)
        return 1;
    while (const dirent* entry = ::readdir(folder))
        if (entry->d_name[0] != '.' && std::atoi(entry->d_name) != ::dirfd(folder))
            std::printf("%s ", entry->d_name);
    return ::closedir(folder);
}

int signals() {
    sigset_t blocked;
    ::sigprocmask(SIG_BLOCK, nullptr, &blocked);
    for (int number = 1; number < 32; ++number) {
        struct sigaction action{};
        ::sigaction(number, nullptr, &action);
        if (sigismember(&blocked, number) == 1 || action.sa_handler == SIG_IGN)
            std::printf("%d ", number);
    }
    return 0;
}

int report(const char* text) {
    const char* number = std::getenv("SCRIVEL_PROGRESS_FD");
    if (!number)
        return 9;
    const std::string bytes(text);
    return ::write(std::atoi(number), bytes.data(), bytes.size()) < 0 ? 8 : 0;
}

} // namespace

int main(int argc, char** argv) {
    const std::string verb = argc > 1 ? argv[1] : "";
    const char* first = argc > 2 ? argv[2] : nullptr;
    if (verb == "print") {
        for (int i = 2; i < argc; ++i)
            std::printf("%s\n", argv[i]);
        return 0;
    }
    if (verb == "fail") {
        std::fprintf(stderr, "%s\n", first);
        return 1;
    }
    if (verb == "exit")
        return std::atoi(first);
    if (verb == "kill")
        return ::raise(std::atoi(first));
    if (verb == "environment") {
        const char* value = std::getenv(first);
        std::printf("%s", value ? value : "(none)");
        return 0;
    }
    if (verb == "descriptors")
        return descriptors();
    if (verb == "signals")
        return signals();
    if (verb == "input") {
        int count = 0;
        while (std::getchar() != EOF)
            ++count;
        std::printf("%d", count);
        return 0;
    }
    if (verb == "flood") {
        const std::string block(65536, 'x');
        for (long left = std::atol(first); left > 0; left -= 65536)
            std::fwrite(block.data(), 1, static_cast<std::size_t>(left < 65536 ? left : 65536),
                        stdout);
        return 0;
    }
    if (verb == "closeEarly") {
        ::close(STDOUT_FILENO);
        ::close(STDERR_FILENO);
        ::usleep(50000);
        std::FILE* file = std::fopen(first, "w");
        return file && std::fclose(file) == 0 ? 7 : 6;
    }
    if (verb == "leaveBehind")
        return leaveBehind(first);
    if (verb == "progress")
        return report(first);
    if (verb == "progressThenLeave")
        return report(first) + leaveBehind(nullptr);
    return 64;
}
