// Work that one thread finds and several do, with a bounded number of pieces waiting.
#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace tools {

/// As many threads as there are cores for this process; no more than a file system can feed.
inline std::size_t workerCount() {
    constexpr unsigned kMost = 8;
    return std::clamp(std::thread::hardware_concurrency(), 1u, kMost);
}

template <typename Piece>
class WorkQueue {
  public:
    explicit WorkQueue(std::size_t most) : m_most(most) {}

    /// Gives the piece back when enough are waiting: whoever finds work then does some.
    std::optional<Piece> offer(Piece piece) {
        {
            const std::lock_guard lock(m_mutex);
            if (m_pieces.size() >= m_most)
                return piece;
            m_pieces.push_back(std::move(piece));
        }
        m_changed.notify_one();
        return std::nullopt;
    }

    /// No more will come.
    void close() {
        {
            const std::lock_guard lock(m_mutex);
            m_closed = true;
        }
        m_changed.notify_all();
    }

    /// Waits for a piece; none when the queue is closed and empty.
    std::optional<Piece> take() {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_closed || !m_pieces.empty(); });
        if (m_pieces.empty())
            return std::nullopt;
        std::optional<Piece> piece = std::move(m_pieces.front());
        m_pieces.pop_front();
        return piece;
    }

  private:
    const std::size_t m_most;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Piece> m_pieces;
    bool m_closed = false;
};

} // namespace tools
