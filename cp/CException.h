// The support library's one exception type. Thrown where a conversion operator can't produce its
// result or a registry receives a null parameter; every other failure is a `bool` answer.
#pragma once

#include <cstdint>
#include <exception>

namespace Corvaldine::CP {

/// Holds one code; the texts are fixed. Not caught as `std::exception`: the base is deliberately
/// not public, so that a catch of standard exceptions never swallows it by accident.
class CException : std::exception {
  public:
    /// The codes that have a text. Any other value is legal and has an empty text.
    enum code : std::uint32_t {
        null_pointer = 0,     ///< "Attempt to access a NULL pointer."
        out_of_memory = 1,    ///< "Memory is too low to complete the operation."
        buffer_too_small = 2, ///< "Buffer is too small to hold requested data."
        bad_params = 3,       ///< "Bad params were used."
    };

    explicit CException(std::uint32_t value) noexcept : m_code(value) {}

    [[nodiscard]] std::uint32_t get_code() const noexcept { return m_code; }
    /// The code's text; empty, never null, for a code above 3. Lives as long as the program.
    [[nodiscard]] const char* what() const noexcept override;
    /// The same text in wide characters.
    [[nodiscard]] const wchar_t* whatw() const noexcept;

  private:
    std::uint32_t m_code;
};

} // namespace Corvaldine::CP
