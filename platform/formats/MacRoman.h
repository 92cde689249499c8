// Names between UTF-8, as files have them, and the two encodings of classic structures: Mac Roman
// and UTF-16. For the alias record. Pure functions, no state, any thread; any input.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace formats {

/// UTF-16 of UTF-8. Each byte that is not part of a well-formed sequence becomes U+FFFD.
std::u16string utf16Of(std::string_view utf8);

/// UTF-8 of UTF-16. Each surrogate without its partner becomes U+FFFD.
std::string utf8Of(std::u16string_view utf16);

/// Mac Roman of UTF-8, cut to `most` bytes. A character that Mac Roman doesn't have becomes '?';
/// so does an accent that follows its letter as a character of its own.
std::string macRomanOf(std::string_view utf8, std::size_t most);

/// UTF-8 of Mac Roman.
std::string utf8OfMacRoman(std::string_view macRoman);

} // namespace formats
