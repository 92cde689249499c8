// An open file descriptor that is closed with its owner. Used throughout the adapters and by our
// own tools, so that no way out of a function leaves one open. Not for sharing between threads.
#pragma once

#include <unistd.h>
#include <utility>

namespace posix {

class Descriptor {
  public:
    Descriptor() = default;
    /// Takes ownership of `number`; a negative number is "none".
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        if (this != &other) {
            close();
            m_number = std::exchange(other.m_number, -1);
        }
        return *this;
    }
    ~Descriptor() { close(); }

    int number() const { return m_number; }
    bool isOpen() const { return m_number >= 0; }

    /// Gives the descriptor up to another owner.
    int release() { return std::exchange(m_number, -1); }

    void close() {
        if (m_number >= 0)
            ::close(std::exchange(m_number, -1));
    }

  private:
    int m_number = -1;
};

} // namespace posix
