// The languages that the user has put in order in the system's settings. Used by the composition
// root.
#pragma once

#include <string>
#include <vector>

namespace macoshost {

/// Language tags as the system writes them ("de-AT", "zh-Hans-CN"), the dearest first; the texts'
/// translations are looked up by such names as well as by locale names. Empty: English.
std::vector<std::string> preferredLanguages();

} // namespace macoshost
