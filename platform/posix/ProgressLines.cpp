#include "platform/posix/ProgressLines.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <system_error>
#include <utility>

namespace posix {

namespace {

/// Three numbers of twenty digits fit; more can't be one of our lines.
constexpr std::size_t kLongestLine = 80;

std::optional<ports::ToolProgress> parsed(std::string_view line) {
    ports::ToolProgress progress;
    const char* at = line.data();
    const char* const end = at + line.size();
    for (std::uint64_t* number : {&progress.done, &progress.total, &progress.files}) {
        if (number != &progress.done) {
            if (at == end || *at != ' ')
                return std::nullopt;
            ++at;
        }
        const auto [rest, error] = std::from_chars(at, end, *number);
        if (error != std::errc())
            return std::nullopt;
        at = rest;
    }
    return at == end ? std::optional(progress) : std::nullopt;
}

} // namespace

void ProgressLines::take(std::string_view bytes) {
    while (!bytes.empty()) {
        const std::size_t feed = bytes.find('\n');
        if (m_begun.size() <= kLongestLine)
            m_begun.append(bytes.substr(0, std::min(feed, kLongestLine + 1)));
        if (feed == std::string_view::npos)
            return;
        bytes.remove_prefix(feed + 1);
        const std::string line = std::exchange(m_begun, {});
        if (const auto progress = parsed(line))
            m_listener(*progress);
    }
}

} // namespace posix
