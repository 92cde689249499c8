// How the wizard is asked for: the launch modes of `showCustomizerFromMenu:`, and its result codes.
#pragma once

#include <cstdint>

namespace ec {

namespace launch {

inline constexpr std::uint32_t kFirstInstall = 0; ///< and every number that is not listed here
/// As the first install; but what the user is not asked about counts as installed.
inline constexpr std::uint32_t kAssumedInstalled = 32;
inline constexpr std::uint32_t kShortInstall = 34;
inline constexpr std::uint32_t kCustomize = 35;
inline constexpr std::uint32_t kPenmark = 36;

} // namespace launch

namespace result {

inline constexpr std::int32_t kExited = 129;    ///< after `doExit`
inline constexpr std::int32_t kNotLoaded = 131; ///< the interface file can't be loaded

} // namespace result

} // namespace ec
