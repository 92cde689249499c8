// makePatch and applyPatch as the tests of this folder start them, and how much they try: a slice
// by itself, all of it by the commands tools/kill_sweep and tools/round_trip.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "tests/reliability/TracedCommand.h"

namespace tests {

/// A number from the environment.
inline std::uint64_t setting(const char* name, std::uint64_t byDefault) {
    const char* text = std::getenv(name);
    return text == nullptr ? byDefault : std::strtoull(text, nullptr, 10);
}

/// Runs it to its end; `folder` is what it works in.
inline sweep::Outcome run(std::vector<std::string> command, const std::string& folder) {
    return sweep::TracedCommand(std::move(command), folder).run({});
}

inline std::vector<std::string> makePatch(const std::string& before, const std::string& after,
                                          const std::string& patch) {
    return {MAKE_PATCH, before, after, "-o", patch};
}

inline std::vector<std::string> applyPatch(const std::string& copy, const std::string& patch) {
    return {APPLY_PATCH, "-d", copy, "-i", patch};
}

} // namespace tests
