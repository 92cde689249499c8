#include "engine/FolderComparison.h"

#include <algorithm>
#include <filesystem>

#include "engine/FolderListing.h"

namespace ec {

namespace {

/// None for a missing path, as for a folder without names.
std::vector<std::string> namesAt(OptionalText folder) {
    return folder ? namesIn(std::string(*folder)) : std::vector<std::string>();
}

} // namespace

std::shared_ptr<const FolderComparison::Names>
FolderComparison::namesOf(const std::string& folder) const {
    const auto read = [&] {
        const std::vector<std::string> names = unsortedNamesIn(folder);
        return std::make_shared<const Names>(names.begin(), names.end());
    };
    if (!m_remembered)
        return read();
    std::shared_ptr<const Names>& known = (*m_remembered)[folder];
    if (!known)
        known = read();
    return known;
}

bool FolderComparison::someItemsAtPath(OptionalText folder, OptionalText other) const {
    if (!folder || !other)
        return false;
    const auto there = namesOf(std::string(*other));
    return std::ranges::any_of(namesAt(folder),
                               [&](const std::string& name) { return there->contains(name); });
}

bool FolderComparison::itemsAtPath(OptionalText folder, OptionalText other) const {
    return folder && other && itemsAtPath(std::string(*folder), *namesOf(std::string(*other)));
}

bool FolderComparison::itemsAtPath(const std::string& folder, const Names& names) const {
    const std::vector<std::string> here = unsortedNamesIn(folder);
    return !here.empty() && !names.empty() &&
           std::ranges::all_of(here, [&](const std::string& name) { return names.contains(name); });
}

bool FolderComparison::removeItemsAtPath(OptionalText folder, OptionalText other) {
    const std::vector<std::string> names = namesAt(folder);
    if (names.empty() || !other || !hasEntries(std::string(*other)))
        return false;
    return std::ranges::all_of(names, [&](const std::string& name) {
        return m_needs.files.removeFile(inFolder(std::string(*other), name)).succeeded();
    });
}

void FolderComparison::installPatchCategoriesItems(const std::vector<std::string>& sources,
                                                   OptionalText path) {
    if (!path)
        return;
    for (const std::string& source : sources) {
        const std::filesystem::path item(source);
        const std::filesystem::path set = item.parent_path();
        const std::string target =
            inFolder(std::string(*path), set.parent_path().filename().native());
        const std::string old = inFolder(target, item.filename().native());
        if (leadsSomewhere(source)) {
            if (someItemsAtPath(set.native(), target))
                (void)m_needs.files.copyPath(source, target);
        } else if (leadsSomewhere(old)) {
            (void)m_needs.files.removeFile(old);
        }
    }
}

} // namespace ec
