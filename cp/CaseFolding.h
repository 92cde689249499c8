// Comparing texts without regard to letter case, as the platform's `caseInsensitiveCompare:` does:
// by Unicode's full case folding ("STRASSE" equals "straße") and canonical equivalence (a letter
// with an accent equals the letter followed by the accent). Used wherever paths of applications are
// compared. Pure functions, no locale; any thread.
#pragma once

#include <string>
#include <string_view>

namespace Corvaldine::CP {

/// A text that is the same for all UTF-8 texts that compare equal. Of a text that is not valid
/// UTF-8, as file names may be, only the ASCII letters are folded.
[[nodiscard]] std::string case_folded(std::string_view text);

[[nodiscard]] bool equal_ignoring_case(std::string_view a, std::string_view b);

} // namespace Corvaldine::CP
