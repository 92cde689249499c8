// ports::TextStreams in memory.
#pragma once

#include <algorithm>
#include <deque>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "platform/ports/TextStreams.h"

namespace fakes {

class FakeTextStreams final : public ports::TextStreams {
  public:
    /// What was appended, by path, and each piece in its order whatever the path.
    std::map<std::string, std::string> files;
    std::vector<std::string> appended;
    /// Paths that can't be opened; `refuseAll` for every path.
    std::set<std::string> refused;
    bool refuseAll = false;

    bool append(const std::string& path, std::string_view bytes) override {
        if (refuseAll || refused.contains(path))
            return false;
        files[path] += bytes;
        appended.emplace_back(bytes);
        return true;
    }

    /// A descriptor that gives these pieces, one with each read (or more reads where the buffer is
    /// smaller), and then its end.
    int feed(std::vector<std::string> pieces) {
        const int descriptor = m_nextDescriptor++;
        m_pieces[descriptor].assign(pieces.begin(), pieces.end());
        return descriptor;
    }
    int feed(std::string bytes) { return feed(std::vector{std::move(bytes)}); }

    std::size_t read(int descriptor, std::span<char> buffer) override {
        std::deque<std::string>& pieces = m_pieces[descriptor];
        while (!pieces.empty() && pieces.front().empty())
            pieces.pop_front();
        if (pieces.empty()) {
            m_pieces.erase(descriptor);
            return 0;
        }
        const std::size_t count = std::min(buffer.size(), pieces.front().size());
        std::copy_n(pieces.front().begin(), count, buffer.begin());
        pieces.front().erase(0, count);
        return count;
    }

  private:
    int m_nextDescriptor = 1'000'000; // none that the system gives
    std::map<int, std::deque<std::string>> m_pieces;
};

} // namespace fakes
