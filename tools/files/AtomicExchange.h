// Exchanges two names of a folder in one step, each system's way; implemented once for each by the
// file of the same name in its folder.
#pragma once

namespace tools {

/// Afterwards `one` names what `other` named and the other way round; at no moment is either
/// missing. 0 or an error number; kNoExchange where the system or the file system can't do it.
int exchangeNames(int folder, const char* one, const char* other);

inline constexpr int kNoExchange = -1;

} // namespace tools
