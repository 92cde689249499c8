#include "tools/files/Complaints.h"

#include <algorithm>
#include <cerrno>
#include <system_error>

#include <unistd.h>

namespace tools {

void Complaints::about(std::string_view path, std::string_view reason) {
    say(std::string(path).append(": ").append(reason));
}

void Complaints::say(std::string_view sentence) {
    m_any = true;
    std::string line = m_program;
    line.append(": ").append(sentence);
    std::ranges::replace_if(line, [](unsigned char c) { return c < 0x20 || c == 0x7F; }, '?');
    line += '\n';
    for (std::string_view rest = line; !rest.empty();) {
        const ssize_t written = ::write(STDERR_FILENO, rest.data(), rest.size());
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            return; // nobody to tell
        rest.remove_prefix(static_cast<std::size_t>(written));
    }
}

void Complaints::about(std::string_view path, const std::exception& error) {
    if (const auto* system = dynamic_cast<const std::system_error*>(&error))
        about(path, system->code().message());
    else
        about(path, error.what());
}

} // namespace tools
