#include "cp/CException.h"

#include <array>
#include <cstddef>

namespace Corvaldine::CP {

namespace {

struct Text {
    const char* narrow;
    const wchar_t* wide;
};

constexpr std::array<Text, 4> kTexts{{
    {"Attempt to access a NULL pointer.", L"Attempt to access a NULL pointer."},
    {"Memory is too low to complete the operation.",
     L"Memory is too low to complete the operation."},
    {"Buffer is too small to hold requested data.", L"Buffer is too small to hold requested data."},
    {"Bad params were used.", L"Bad params were used."},
}};

} // namespace

const char* CException::what() const noexcept {
    return m_code < kTexts.size() ? kTexts[m_code].narrow : "";
}

const wchar_t* CException::whatw() const noexcept {
    return m_code < kTexts.size() ? kTexts[m_code].wide : L"";
}

} // namespace Corvaldine::CP
