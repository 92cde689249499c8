#include "platform/formats/ZipLayout.h"

#include <algorithm>

#include "platform/formats/ZipNames.h"

namespace formats {

namespace {

constexpr std::string_view kAttributesFolder = "__MACOSX/";
constexpr std::string_view kAttributesPrefix = "._";

// FNV-1a. Whoever makes two paths with the same sum gains nothing: the paths themselves decide.
std::uint64_t extendSum(std::uint64_t sum, std::string_view text) {
    for (const unsigned char c : text)
        sum = (sum ^ c) * 0x100000001B3u;
    return sum;
}

constexpr std::uint64_t kEmptySum = 0xCBF29CE484222325u;

} // namespace

std::string describedPath(std::string_view path) {
    if (!path.starts_with(kAttributesFolder))
        return {};
    path.remove_prefix(kAttributesFolder.size());
    const std::size_t name = path.rfind('/') + 1;
    if (!path.substr(name).starts_with(kAttributesPrefix) ||
        path.size() == name + kAttributesPrefix.size())
        return {};
    return std::string(path.substr(0, name)) +
           std::string(path.substr(name + kAttributesPrefix.size()));
}

void ZipLayout::refuseOverlaps(std::vector<std::pair<std::uint64_t, std::uint64_t>>& stretches) {
    if (!std::ranges::is_sorted(stretches))
        std::ranges::sort(stretches);
    for (std::size_t i = 1; i < stretches.size(); ++i)
        if (stretches[i].first < stretches[i - 1].second)
            throw ZipRefusal{"members share the same data"};
}

void ZipLayout::arrange() {
    m_directory.m_folders.assign(1, ZipFolder{});
    m_folderSums.assign(1, kEmptySum);
    m_folderByPath.emplace(std::string_view{}, 0);
    m_places.reserve(m_directory.m_members.size());
    auto& members = m_directory.m_members;
    for (std::uint32_t i = 0; i < members.size(); ++i) {
        ZipMember& member = members[i];
        member.folder = folderOf(member.path);
        if (member.kind == ZipKind::folder)
            m_directory.m_folders[folder(member.path)].member = i;
        else
            m_places.push_back({sumOf(member.folder, member.name()), i, Place::Member});
    }
    refuseCollisions();
    findDescribed();
}

std::uint32_t ZipLayout::folderOf(std::string_view path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? 0 : folder(path.substr(0, slash));
}

std::uint32_t ZipLayout::folder(std::string_view path) {
    // Neighbours in the archive mostly lie in one folder.
    if (m_directory.m_folders[m_lastFolder].path == path)
        return m_lastFolder;
    // Missing ancestors from the top down; a path may have two thousand of them.
    std::uint32_t at = 0;
    const auto known = m_folderByPath.find(path);
    if (known != m_folderByPath.end()) {
        at = known->second;
    } else {
        for (std::size_t end = path.find('/');; end = path.find('/', end + 1)) {
            const std::string_view part = path.substr(0, end);
            const auto index = static_cast<std::uint32_t>(m_directory.m_folders.size());
            const auto [place, isNew] = m_folderByPath.emplace(part, index);
            if (isNew) {
                m_directory.m_folders.push_back({part, at, ZipMember::kNone});
                addFolderPlace(index);
            }
            at = place->second;
            if (end == std::string_view::npos)
                break;
        }
    }
    return m_lastFolder = at;
}

void ZipLayout::addFolderPlace(std::uint32_t index) {
    const ZipFolder& added = m_directory.m_folders[index];
    m_folderSums.push_back(sumOf(added.parent, added.name()));
    m_places.push_back({m_folderSums.back(), index, Place::Folder});
}

std::uint64_t ZipLayout::sumOf(std::uint32_t parent, std::string_view name) {
    zip::foldName(name, m_folded);
    return extendSum(extendSum(m_folderSums[parent], "/"), m_folded);
}

std::string ZipLayout::pathOf(const Place& place) const {
    switch (place.kind) {
    case Place::Folder:
        return std::string(m_directory.m_folders[place.index].path);
    case Place::Member:
        return std::string(m_directory.m_members[place.index].path);
    default: {
        const std::string_view path = m_directory.m_members[place.index].path;
        return std::string(path.substr(kAttributesFolder.size()));
    }
    }
}

std::string ZipLayout::foldedPathOf(const Place& place) const {
    std::string folded;
    zip::foldName(pathOf(place), folded);
    return folded;
}

void ZipLayout::refuseCollisions() {
    // An AppleDouble file may come to stand beside what it describes, under its own name.
    for (std::size_t i = 0, count = m_places.size(); i < count; ++i) {
        const Place place = m_places[i];
        if (place.kind != Place::Member ||
            describedPath(m_directory.m_members[place.index].path).empty())
            continue;
        const std::string path = pathOf({0, place.index, Place::Sidecar});
        const std::size_t slash = path.rfind('/');
        const auto parent = m_folderByPath.find(
            std::string_view(path).substr(0, slash == std::string::npos ? 0 : slash));
        if (parent != m_folderByPath.end())
            m_places.push_back(
                {sumOf(parent->second, path.substr(slash + 1)), place.index, Place::Sidecar});
    }
    std::ranges::sort(m_places, {}, &Place::sum);
    std::vector<std::pair<std::string, const Place*>> same;
    for (auto first = m_places.begin(); first != m_places.end();) {
        const auto last = std::find_if(first, m_places.end(),
                                       [&](const Place& place) { return place.sum != first->sum; });
        if (last - first > 1) {
            same.clear();
            for (auto place = first; place != last; ++place)
                same.emplace_back(foldedPathOf(*place), &*place);
            std::ranges::sort(same);
            for (std::size_t i = 1; i < same.size(); ++i)
                if (same[i].first == same[i - 1].first)
                    throw ZipRefusal{pathOf(*same[i - 1].second) + " and " +
                                     pathOf(*same[i].second) + " would be the same file or folder"};
        }
        first = last;
    }
}

void ZipLayout::findDescribed() {
    const auto attributes = m_folderByPath.find(kAttributesFolder.substr(0, 8));
    if (attributes == m_folderByPath.end())
        return;
    for (ZipMember& member : m_directory.m_members)
        if (member.kind == ZipKind::file && member.path.starts_with(kAttributesFolder))
            if (const std::string path = describedPath(member.path); !path.empty())
                member.describes = memberAt(path);
}

std::uint32_t ZipLayout::memberAt(std::string_view path) {
    const auto asFolder = m_folderByPath.find(path);
    if (asFolder != m_folderByPath.end())
        return m_directory.m_folders[asFolder->second].member;
    const std::size_t slash = path.rfind('/');
    const auto parent =
        m_folderByPath.find(path.substr(0, slash == std::string_view::npos ? 0 : slash));
    if (parent == m_folderByPath.end())
        return ZipMember::kNone;
    const std::uint64_t sum = sumOf(parent->second, path.substr(slash + 1));
    const auto range = std::ranges::equal_range(m_places, sum, {}, &Place::sum);
    for (const Place& place : range)
        if (place.kind == Place::Member && m_directory.m_members[place.index].path == path)
            return place.index;
    return ZipMember::kNone;
}

} // namespace formats
