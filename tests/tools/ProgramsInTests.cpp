#include "tests/tools/ProgramsInTests.h"

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <sstream>

#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tools::testing {

namespace fs = std::filesystem;

Outcome run(const std::vector<std::string>& command, const fs::path& folder,
            const std::vector<std::string>& environment) {
    int ends[2];
    if (::pipe(ends) != 0)
        return {.status = -1, .output = "no pipe"};
    const pid_t child = ::fork();
    if (child == 0) {
        ::dup2(ends[1], 1);
        ::dup2(ends[1], 2);
        ::close(ends[0]);
        ::close(ends[1]);
        if (::chdir(folder.c_str()) != 0)
            ::_exit(126);
        for (const std::string& setting : environment)
            ::putenv(const_cast<char*>(setting.c_str()));
        std::vector<char*> arguments;
        for (const std::string& argument : command)
            arguments.push_back(const_cast<char*>(argument.c_str()));
        arguments.push_back(nullptr);
        ::execvp(arguments[0], arguments.data());
        ::_exit(127);
    }
    ::close(ends[1]);
    Outcome outcome;
    char buffer[4096];
    for (ssize_t got = 0; (got = ::read(ends[0], buffer, sizeof buffer)) > 0;)
        outcome.output.append(buffer, static_cast<std::size_t>(got));
    ::close(ends[0]);
    int status = 0;
    ::waitpid(child, &status, 0);
    outcome.status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    return outcome;
}

std::vector<std::string> listing(const fs::path& top, Times times) {
    std::vector<std::string> lines;
    const auto add = [&](const fs::path& path) {
        struct stat status{};
        ::lstat(path.c_str(), &status);
        std::ostringstream line;
        line << path.lexically_relative(top).string() << ' ' << std::oct << status.st_mode
             << std::dec << ' ' << status.st_mtim.tv_sec;
        if (times == Times::nanoseconds)
            line << '.' << status.st_mtim.tv_nsec << ' ' << status.st_nlink;
        if (S_ISLNK(status.st_mode))
            line << " -> " << fs::read_symlink(path).string();
        if (S_ISREG(status.st_mode)) {
            const std::string contents = contentsOf(path);
            line << ' ' << contents.size() << ' ' << std::hash<std::string>{}(contents);
        }
        lines.push_back(line.str());
    };
    for (const auto& entry : fs::recursive_directory_iterator(top))
        add(entry.path());
    std::ranges::sort(lines);
    return lines;
}

Outcome ToolTest::ditto(const std::string& from, const std::string& to) const {
    return run({DITTO, "-rsrcFork", from, to});
}

Outcome ToolTest::unpack(const std::string& archive, const std::string& to) const {
    return run({DITTO, "-xk", "--noqtn", archive, to});
}

Outcome ToolTest::runAsOrdinaryUser(std::vector<std::string> command) const {
    if (isRoot())
        command.insert(command.begin(), {"setpriv", "--reuid=65534", "--regid=65534",
                                         "--clear-groups", "--inh-caps=-all"});
    return run(command);
}

bool ToolTest::isRoot() {
    return ::geteuid() == 0;
}

void AdministratorToolTest::SetUp() {
    if (!isRoot())
        GTEST_SKIP() << "needs the administrator's rights";
}

void AdministratorToolTest::TearDown() {
    if (m_isMounted)
        ::umount2(at("disk").c_str(), MNT_DETACH);
}

bool AdministratorToolTest::mountDisk(int kilobytes) {
    fs::create_directory(at("disk"));
    const std::string options = "size=" + std::to_string(kilobytes) + "k";
    m_isMounted = ::mount("tmpfs", at("disk").c_str(), "tmpfs", 0, options.c_str()) == 0;
    return m_isMounted;
}

} // namespace tools::testing
