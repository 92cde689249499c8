// An open file that is closed when its owner goes. Used by all programs of this folder.
#pragma once

#include <cerrno>
#include <system_error>
#include <utility>

#include <unistd.h>

namespace tools {

class Descriptor {
  public:
    Descriptor() = default;
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() {
        if (m_number >= 0)
            ::close(m_number);
    }

    bool isOpen() const { return m_number >= 0; }
    int number() const { return m_number; }
    /// Gives the file away.
    int release() { return std::exchange(m_number, -1); }

  private:
    int m_number = -1;
};

/// Throws what `errno` says.
[[noreturn]] inline void throwErrno() {
    throw std::system_error(errno, std::generic_category());
}

/// The result of a call that answers -1 for failure and then sets `errno`.
template <typename Result>
Result checked(Result result) {
    if (result < 0)
        throwErrno();
    return result;
}

} // namespace tools
