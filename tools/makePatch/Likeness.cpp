#include "tools/makePatch/Likeness.h"

#include <algorithm>
#include <array>

#include "tools/files/FolderChain.h"

namespace tools {

namespace {

constexpr std::size_t kStretch = 32;
constexpr std::size_t kPiece = std::size_t{1} << 18;
/// So many stretches of a file are kept at most, those with the smallest numbers.
constexpr std::size_t kMostStretches = 512;
/// A stretch that so many files have tells nothing of any.
constexpr std::size_t kMostFiles = 64;
constexpr std::size_t kLeastPart = 16;

std::string_view extensionOf(std::string_view name) {
    const std::size_t dot = name.rfind('.');
    return dot == std::string_view::npos || dot == 0 ? std::string_view{} : name.substr(dot);
}

std::uint64_t mixed(std::uint64_t value) {
    value = (value ^ (value >> 31)) * 0x9E3779B97F4A7C15u;
    return value ^ (value >> 29);
}

} // namespace

std::vector<std::uint64_t> sketchOf(const patch::Source& file) {
    // A sum that rolls: each byte counts by its power of a constant, the oldest is taken out again.
    constexpr std::uint64_t kFactor = 0xD6E8FEB86659FD93u;
    std::uint64_t oldest = 1;
    for (std::size_t i = 0; i < kStretch; ++i)
        oldest *= kFactor;
    std::vector<std::uint64_t> sketch;
    const auto keepSmallest = [&] {
        std::ranges::sort(sketch);
        const auto twice = std::ranges::unique(sketch);
        sketch.erase(twice.begin(), twice.end());
        sketch.resize(std::min(sketch.size(), kMostStretches));
    };
    patch::Bytes piece(static_cast<std::size_t>(std::min<std::uint64_t>(file.size(), kPiece)));
    std::array<std::uint64_t, kStretch> last{};
    std::uint64_t sum = 0;
    std::uint64_t most = ~std::uint64_t{0};
    std::uint64_t count = 0;
    for (std::uint64_t offset = 0; offset < file.size();) {
        const auto now = std::span(piece).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(kPiece, file.size() - offset)));
        file.read(offset, now);
        for (const std::byte byte : now) {
            const auto value = static_cast<std::uint64_t>(byte) + 1;
            sum = sum * kFactor + value - oldest * last[count % kStretch];
            last[count % kStretch] = value;
            if (++count < kStretch)
                continue;
            if (const std::uint64_t number = mixed(sum); number < most)
                sketch.push_back(number);
            if (sketch.size() >= 4 * kMostStretches) {
                keepSmallest();
                if (sketch.size() == kMostStretches)
                    most = sketch.back();
            }
        }
        offset += now.size();
    }
    keepSmallest();
    return sketch;
}

void GoneFiles::add(std::uint32_t index, std::string_view path,
                    const std::vector<std::uint64_t>& sketch) {
    for (const std::uint64_t stretch : sketch)
        if (auto& files = m_stretches[stretch]; files.size() < kMostFiles)
            files.push_back(static_cast<std::uint32_t>(m_files.size()));
    m_files.push_back({.index = index, .name = std::string(leafName(path))});
}

std::uint32_t GoneFiles::mostLike(std::string_view path, const std::vector<std::uint64_t>& sketch,
                                  std::uint32_t none) const {
    std::unordered_map<std::uint32_t, std::size_t> counts;
    for (const std::uint64_t stretch : sketch)
        if (const auto found = m_stretches.find(stretch); found != m_stretches.end())
            for (const std::uint32_t file : found->second)
                ++counts[file];
    const std::string_view name = leafName(path);
    const auto least = static_cast<std::uint32_t>(m_files.size());
    std::uint32_t best = least;
    std::size_t most = sketch.size() / kLeastPart;
    for (const auto& [file, count] : counts) {
        const bool better = count > most || (count == most && best != least && file < best);
        const std::string& other = m_files[file].name;
        if (better && (other == name || extensionOf(other) == extensionOf(name))) {
            most = count;
            best = file;
        }
    }
    return best == least ? none : m_files[best].index;
}

} // namespace tools
