// The languages that the user's environment asks for, as the GNU tools understand it: the locale of
// LC_ALL, LC_MESSAGES or LANG (the first that is set), and before it the list in LANGUAGE, unless
// that locale is "C". Used by the composition root.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace linuxhost {

/// Locale names as they stand ("de_AT.UTF-8"), the dearest first. `variable` gives an environment
/// variable's value, or an empty string. Empty: English.
std::vector<std::string>
preferredLanguages(const std::function<std::string(const char*)>& variable);

/// By this process's own environment.
std::vector<std::string> preferredLanguages();

} // namespace linuxhost
