#include "engine/CategoryModes.h"

#include <filesystem>

#include "engine/FolderListing.h"
#include "engine/Guarded.h"
#include "engine/Product.h"
#include "platform/ports/PlatformError.h"

namespace ec {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view kMostPopular = "Most Popular";

constexpr int kMixed = -2;

MethodAnswer truth(bool value) {
    return MethodAnswer::of(value ? 1 : 0);
}

ComponentParts missing(const std::string& source) {
    return {.obstacle = OutcomeReason{"“%@” is missing from this copy of the installer.", source}};
}

} // namespace

CategoryModes::Places CategoryModes::placesOf(std::uint32_t itemNum) const {
    const auto paths = m_needs.rules.getItemFiles(itemNum);
    const std::string path = paths && !paths->empty() ? joinedPath("", paths->front()) : "";
    if (path.find_first_not_of('/') == std::string::npos) // the folder itself is no category
        throw ports::PlatformError("the rule names no category");
    const std::string folder = fs::path(m_needs.bundles.mainBundle()).parent_path().native();
    const std::string content = joinedPath(folder, product::kContentBundle);
    return {.source = joinedPath(content, path),
            .destination = joinedPath(folder, path),
            .holder = joinedPath(folder, fs::path(path).parent_path().native()),
            .mostPopular = joinedPath(joinedPath(content, kMostPopular), path)};
}

MethodAnswer CategoryModes::installCategoryMode(OpMode mode, std::uint32_t itemNum, OptionalText,
                                                OptionalText) {
    m_needs.log.logInstall("Scrivel Content Files", mode);
    return guarded(m_needs.log, 0, [&] {
        const Places places = placesOf(itemNum);
        switch (mode) {
        case OpMode::check:
            return truth(m_needs.folders.itemsAtPath(places.source, places.holder));
        case OpMode::copy:
            return MethodAnswer::unchanged(m_needs.files.copyPath(places.source, places.holder));
        case OpMode::remove:
            return truth(m_needs.folders.removeItemsAtPath(places.source, places.holder));
        default:
            return truth(false);
        }
    });
}

MethodAnswer CategoryModes::installAllCategoriesMode(OpMode mode, std::uint32_t itemNum,
                                                     OptionalText, OptionalText) {
    return guarded(m_needs.log, 0, [&] {
        const Places places = placesOf(itemNum);
        switch (mode) {
        case OpMode::check:
            return checkAll(places);
        case OpMode::copy:
            return copyAll(places);
        case OpMode::remove:
            return removeAll(places);
        default:
            return truth(false);
        }
    });
}

MethodAnswer CategoryModes::checkAll(const Places& places) const {
    const auto there = m_needs.folders.namesOf(places.destination);
    bool somePresent = false;
    bool someMissing = false;
    for (const std::string& category : namesIn(places.source)) {
        (m_needs.folders.itemsAtPath(inFolder(places.source, category), *there) ? somePresent
                                                                                : someMissing) =
            true;
        if (somePresent && someMissing)
            return MethodAnswer::of(kMixed);
    }
    return truth(somePresent);
}

MethodAnswer CategoryModes::copyAll(const Places& places) {
    const std::vector<std::string> categories = namesIn(places.source);
    for (const std::string& category : categories)
        if (!m_needs.files.copyPath(inFolder(places.source, category), places.destination)
                 .succeeded())
            return truth(false);
    return truth(!categories.empty());
}

MethodAnswer CategoryModes::removeAll(const Places& places) {
    if (!m_needs.files.removeFile(places.destination).succeeded())
        return truth(false);
    (void)m_needs.files.makeDir(places.destination);
    return truth(m_needs.files.copyPath(places.mostPopular, places.destination).succeeded());
}

ComponentParts CategoryModes::categoryParts(std::uint32_t itemNum) const {
    const Places places = placesOf(itemNum);
    ComponentParts parts;
    for (const std::string& name : namesIn(places.source)) {
        parts.copies.push_back({inFolder(places.source, name), inFolder(places.holder, name)});
        parts.traces.push_back(inFolder(places.holder, name));
    }
    return parts.copies.empty() ? missing(places.source) : parts;
}

ComponentParts CategoryModes::allCategoriesParts(std::uint32_t itemNum) const {
    const Places places = placesOf(itemNum);
    const auto popular = m_needs.folders.namesOf(places.mostPopular);
    ComponentParts parts;
    for (const std::string& category : namesIn(places.source)) {
        const std::string source = inFolder(places.source, category);
        for (const std::string& name : namesIn(source)) {
            const std::string destination = inFolder(places.destination, name);
            parts.copies.push_back({inFolder(source, name), destination});
            if (!popular->contains(name))
                parts.traces.push_back(destination);
        }
    }
    return parts.copies.empty() ? missing(places.source) : parts;
}

} // namespace ec
