// The two result conventions of the engine as types, so that they can't be mixed up: tool runs and
// file operations answer 0 for success, install methods answer 1.
#pragma once

#include <concepts>

namespace ec {

/// What a tool run or a file operation came to: 0 is success, anything else is failure.
class [[nodiscard]] ExitStatus {
  public:
    static constexpr ExitStatus success() { return ExitStatus{0}; }
    static constexpr ExitStatus failure() { return ExitStatus{1}; }
    /// A status as it came from a tool or the platform.
    static constexpr ExitStatus of(int code) { return ExitStatus{code}; }

    constexpr bool succeeded() const { return m_code == 0; }
    constexpr int code() const { return m_code; }
    constexpr bool operator==(const ExitStatus&) const = default;

  private:
    explicit constexpr ExitStatus(int code) : m_code(code) {}
    int m_code;
};

/// What an install method came to: 1 is success; in check mode the state that was found.
class [[nodiscard]] MethodAnswer {
  public:
    static constexpr MethodAnswer of(int value) { return MethodAnswer{value}; }
    /// A file operation's status passed on as an answer, number for number: its verdict is
    /// inverted.
    static constexpr MethodAnswer unchanged(ExitStatus status) {
        return MethodAnswer{status.code()};
    }

    constexpr bool succeeded() const { return m_value == 1; }
    constexpr int value() const { return m_value; }
    constexpr bool operator==(const MethodAnswer&) const = default;

  private:
    explicit constexpr MethodAnswer(int value) : m_value(value) {}
    int m_value;
};

static_assert(!std::convertible_to<ExitStatus, MethodAnswer> &&
              !std::convertible_to<MethodAnswer, ExitStatus> &&
              !std::convertible_to<ExitStatus, bool> && !std::convertible_to<MethodAnswer, bool> &&
              !std::convertible_to<int, ExitStatus> && !std::convertible_to<int, MethodAnswer>);

} // namespace ec
