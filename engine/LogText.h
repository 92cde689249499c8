// How values stand in texts: missing objects, values filled into formats, argument lists on one
// line, and lists in the platform's old-style description. Pure functions.
#pragma once

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ec {

/// A text that may be missing. None is never an empty text.
using OptionalText = std::optional<std::string_view>;

/// The text, or "(null)" for a missing one.
std::string shown(OptionalText text);

/// A format with its "%@" filled in from the left; "%1$@" and the like, as translations use them,
/// take the value of that number. A place without a value stays as it stands.
std::string formatted(std::string_view format, std::initializer_list<std::string_view> values);

/// The elements joined with one blank; the empty text for no elements.
std::string joined(std::span<const std::string> elements);

/// The platform's old-style description of a list, on several lines:
///     (
///         word,
///         "two words"
///     )
/// An element stands bare when all of it is ASCII letters and digits; else in double quotes, with
/// backslashes before double quotes and backslashes, "\n" for a line feed and "\U" with four
/// lower-case hexadecimal digits for each UTF-16 unit beyond ASCII.
std::string listDescription(std::span<const std::string> elements);

} // namespace ec
