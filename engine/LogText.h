// How values stand in log lines: missing objects, argument lists on one line, and lists in the
// platform's old-style description. Pure functions.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ec {

/// A text that may be missing. None is never an empty text.
using OptionalText = std::optional<std::string_view>;

/// The text, or "(null)" for a missing one.
std::string shown(OptionalText text);

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
