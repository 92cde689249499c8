// Names inside zip archives: which encoding they are in, whether they are safe to use as paths, and
// when two of them would meet in one place of a file system that ignores letter case or Unicode
// form. Used by ZipDirectory alone. Pure functions, any thread.
#pragma once

#include <string>
#include <string_view>

namespace formats::zip {

/// Well-formed UTF-8: no overlong forms, no surrogates.
bool isUtf8(std::string_view bytes);

/// Appends the UTF-8 of bytes in the IBM PC's code page 437, the zip format's own.
void appendFromCodePage437(std::string_view bytes, std::string& to);

/// Takes "." components and slashes at the end out of `path`, in place. Answers why the path can't
/// be used, or null when it can; an empty path is left when it named the top folder itself.
const char* tidyPath(std::string& path);

/// Replaces `folded` by the form of `name` in which names are compared: Unicode's full case
/// folding, then composed (NFC). `name` must be UTF-8.
void foldName(std::string_view name, std::string& folded);

} // namespace formats::zip
