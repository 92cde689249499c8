// The order of paths, and looking an entry up by it; see Manifest.h.
#include "patcher/format/Manifest.h"

#include <algorithm>

namespace patch {

namespace {

// As if the separator came before every other byte.
int comparedPaths(std::string_view left, std::string_view right) {
    const auto [l, r] = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    const auto rank = [](std::string_view text, std::string_view::iterator at) {
        if (at == text.end())
            return -1;
        return *at == '/' ? 0 : 1 + static_cast<unsigned char>(*at);
    };
    return rank(left, l) - rank(right, r);
}

template <class Entries, class PathOf>
auto* found(Entries& entries, std::string_view path, PathOf pathOf) {
    const auto at = std::lower_bound(entries.begin(), entries.end(), path,
                                     [&](const auto& entry, std::string_view wanted) {
                                         return pathOrder(pathOf(entry), wanted);
                                     });
    return at != entries.end() && pathOf(*at) == path ? &*at : nullptr;
}

} // namespace

bool pathOrder(std::string_view left, std::string_view right) {
    return comparedPaths(left, right) < 0;
}

const Entry* entryAt(const std::vector<Entry>& entries, std::string_view path) {
    return found(entries, path, [](const Entry& entry) -> std::string_view { return entry.path; });
}

const NewEntry* entryAt(const std::vector<NewEntry>& entries, std::string_view path) {
    return found(entries, path,
                 [](const NewEntry& entry) -> std::string_view { return entry.entry.path; });
}

} // namespace patch
