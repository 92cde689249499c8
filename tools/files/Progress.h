// Tells the program that started this one how far the work is: lines "DONE TOTAL FILES" (bytes,
// bytes, files; decimal) on the descriptor that SCRIVEL_PROGRESS_FD names, at most about twenty a
// second and one at the end. Never disturbs the work: a descriptor that is closed, full or broken
// is left alone. Any thread.
#pragma once

#include <atomic>
#include <cstdint>

namespace tools {

class Progress {
  public:
    /// Takes the descriptor from the environment; without one all calls do nothing. From then on a
    /// broken pipe is no signal to this process.
    Progress();

    bool isWanted() const { return m_descriptor >= 0; }
    void setTotal(std::uint64_t bytes) { m_total = bytes; }
    void add(std::uint64_t bytes, std::uint64_t files);
    /// The last line.
    void finish();

  private:
    void tell();

    int m_descriptor = -1;
    std::atomic<std::uint64_t> m_done = 0;
    std::atomic<std::uint64_t> m_files = 0;
    std::uint64_t m_total = 0;
    std::atomic<std::int64_t> m_nextLine = 0; // on the steady clock, in its ticks
};

} // namespace tools
