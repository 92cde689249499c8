// Owns an open file descriptor. Movable; closed at the end.
#pragma once

#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace Corvaldine::CP::Private {

class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : m_number(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~FileDescriptor() {
        if (isOpen())
            ::close(m_number);
    }

    [[nodiscard]] bool isOpen() const { return m_number >= 0; }
    [[nodiscard]] int number() const { return m_number; }
    /// Gives the descriptor up to another owner.
    int release() { return std::exchange(m_number, -1); }
    /// Closes now and tells whether everything written has reached the file system.
    [[nodiscard]] bool close() { return ::close(release()) == 0; }

  private:
    int m_number = -1;
};

} // namespace Corvaldine::CP::Private
