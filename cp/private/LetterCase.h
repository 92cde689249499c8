// Lower case of any letter, whatever locale the program runs in.
#pragma once

namespace Corvaldine::CP::Private {

/// The lower-case form of an upper-case character, any other character as it is.
[[nodiscard]] wchar_t lower_case(wchar_t c);

} // namespace Corvaldine::CP::Private
