// What is looked up before anything is copied, alike on every system. Used by CopyFile alone.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace Corvaldine::CP::Private {

struct CopyPlan {
    std::string source; ///< absolute, links resolved
    bool isFolder = false;
    std::string folder; ///< where the copy goes: absolute, links resolved
    std::string name;   ///< of the copy in there

    [[nodiscard]] std::string target() const { return folder + "/" + name; }
};

/// None when the source or the folder of `to` isn't there, when the source is a folder and `flags`
/// don't ask for its contents, or when `to` would lie inside it. Slashes at the end of `to` count
/// for nothing.
[[nodiscard]] std::optional<CopyPlan> plan_copy(const std::string& from, const std::string& to,
                                                std::uint32_t flags);

} // namespace Corvaldine::CP::Private
