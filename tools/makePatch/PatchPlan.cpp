#include "tools/makePatch/PatchPlan.h"

#include <algorithm>
#include <map>
#include <set>
#include <string_view>
#include <tuple>

namespace tools {

using patch::Entry;
using patch::Kind;
using patch::Method;
using patch::NewEntry;

namespace {

using OldFiles = std::map<patch::Digest, std::uint32_t>;

bool hasContent(const Entry& entry) {
    return entry.kind == Kind::file && entry.size > 0;
}

/// The first old file with each content.
OldFiles contentsOf(const std::vector<Entry>& entries) {
    OldFiles files;
    for (std::uint32_t index = 0; index < entries.size(); ++index)
        if (hasContent(entries[index]))
            files.emplace(entries[index].digest, index);
    return files;
}

/// The part of a path that names a category item; empty for what is none.
std::string_view itemPath(std::string_view path) {
    constexpr std::string_view kBundle = "Product-Support/Content.bundle/";
    constexpr int kLevels = 3;
    if (!path.starts_with(kBundle))
        return {};
    std::size_t end = kBundle.size() - 1;
    for (int level = 0; level < kLevels; ++level) {
        if (end == path.size())
            return {};
        end = std::min(path.find('/', end + 1), path.size());
    }
    return path.substr(0, end);
}

} // namespace

PatchPlan planOf(const Tree& before, const Tree& after) {
    PatchPlan plan;
    const std::vector<Entry>& old = before.entries;
    const OldFiles contents = contentsOf(old);
    plan.manifest.oldEntries = old;
    plan.manifest.newEntries.reserve(after.entries.size());
    std::size_t met = 0;
    for (std::uint32_t index = 0; index < after.entries.size(); ++index) {
        NewEntry fresh;
        fresh.entry = after.entries[index];
        const Entry* const same = patch::entryAt(old, fresh.entry.path);
        const auto sameIndex = same ? static_cast<std::uint32_t>(same - old.data()) : kNoBase;
        met += same ? 1 : 0;
        if (same && *same == fresh.entry) {
            fresh.unchanged = sameIndex; // and keeps its time
        } else {
            fresh.modified = patchTime(after.statuses[index].modified);
            ++(same ? plan.differences.changed : plan.differences.added);
        }
        if (hasContent(fresh.entry)) {
            const bool sameContent =
                same && hasContent(*same) && same->digest == fresh.entry.digest;
            if (sameContent) {
                fresh.method = Method::old;
                fresh.base = sameIndex;
            } else if (const auto found = contents.find(fresh.entry.digest);
                       found != contents.end()) {
                fresh.method = Method::old;
                fresh.base = found->second;
                plan.differences.renamed += same ? 0 : 1;
            } else {
                fresh.base = same && hasContent(*same) ? sameIndex : kNoBase;
                plan.blocks.push_back(index);
            }
        }
        plan.manifest.newEntries.push_back(std::move(fresh));
    }
    plan.differences.gone = old.size() - met;
    plan.manifest.categoryItems = categoryItemsOf(plan.manifest);
    return plan;
}

std::vector<patch::CategoryItem> categoryItemsOf(const patch::Manifest& manifest) {
    const auto byPath = [](std::string_view left, std::string_view right) {
        return patch::pathOrder(left, right);
    };
    std::set<std::string_view, decltype(byPath)> paths(byPath);
    const auto touch = [&](const Entry& entry) {
        if (const std::string_view path = itemPath(entry.path);
            !path.empty() && entry.kind != Kind::folder)
            paths.insert(path);
    };
    for (const NewEntry& fresh : manifest.newEntries)
        if (!fresh.unchanged)
            touch(fresh.entry);
    for (const Entry& old : manifest.oldEntries) {
        const NewEntry* const now = patch::entryAt(manifest.newEntries, old.path);
        if (!now || now->entry.kind != old.kind)
            touch(old);
    }
    std::vector<patch::CategoryItem> items;
    for (const std::string_view path : paths)
        items.push_back(
            {.item = std::string(path.substr(path.rfind('/') + 1)), .path = std::string(path)});
    return items;
}

} // namespace tools
