#include "platform/formats/ResourceFork.h"

#include <algorithm>
#include <limits>
#include <stdexcept>

#include "platform/formats/BigEndian.h"

namespace formats {

namespace {

constexpr std::uint64_t kDataStart = 256; // header and the space reserved for the system
constexpr std::uint64_t kMapHeaderLength = 28;
constexpr std::uint64_t kTypeEntryLength = 8;
constexpr std::uint64_t kReferenceLength = 12;
constexpr std::uint16_t kNoName = 0xFFFF;
constexpr std::size_t kLongestName = 255;

struct Reference {
    std::uint32_t type = 0;
    std::int16_t number = 0;
    std::span<const std::byte> name;
    std::span<const std::byte> data;
};

// Type list and reference lists hold counts less one; an empty type list holds 0xFFFF.
constexpr std::uint32_t countOf(std::uint16_t field) {
    return (field + 1u) & 0xFFFF;
}

// The parts of a fork, checked against its size once.
struct Parts {
    std::span<const std::byte> data;
    std::span<const std::byte> map;
};

std::optional<Parts> partsOf(std::span<const std::byte> fork) {
    BigEndianReader in(fork);
    const Parts parts{in.bytes(in.u32(0), in.u32(8)), in.bytes(in.u32(4), in.u32(12))};
    if (in.failed() || parts.map.size() < kMapHeaderLength)
        return std::nullopt;
    return parts;
}

// Calls `visit` with each reference in the order of the map until it answers false; false when the
// map is not well formed. Reference lists that overlap could make a small map stand for billions
// of resources, so all of them together may not be longer than the map.
template <typename Visit>
bool visitReferences(const Parts& parts, Visit visit) {
    BigEndianReader map(parts.map);
    BigEndianReader data(parts.data);
    const std::uint64_t types = map.u16(24);
    const std::uint64_t names = map.u16(26);
    const std::uint32_t typeCount = countOf(map.u16(types));
    std::uint64_t references = 0;
    for (std::uint32_t i = 0; i < typeCount; ++i) {
        const std::uint64_t entry = types + 2 + i * kTypeEntryLength;
        const std::uint32_t type = map.u32(entry);
        const std::uint64_t count = map.u16(entry + 4) + std::uint64_t{1};
        const std::uint64_t list = types + map.u16(entry + 6);
        references += count;
        if (references * kReferenceLength > map.size())
            return false;
        for (std::uint64_t at = list; at < list + count * kReferenceLength;
             at += kReferenceLength) {
            Reference reference{type, static_cast<std::int16_t>(map.u16(at)), {}, {}};
            const std::uint16_t name = map.u16(at + 2);
            if (name != kNoName)
                reference.name = map.bytes(names + name + 1, map.u8(names + name));
            const std::uint64_t start = map.u24(at + 5);
            reference.data = data.bytes(start + 4, data.u32(start));
            if (map.failed() || data.failed())
                return false;
            if (!visit(reference))
                return true;
        }
    }
    return !map.failed();
}

// References of one type stand together in the map.
struct TypeGroup {
    std::uint32_t type;
    std::vector<const Resource*> resources;
};

std::vector<TypeGroup> groupedByType(const std::vector<Resource>& resources) {
    std::vector<TypeGroup> groups;
    for (const Resource& resource : resources) {
        auto group = std::ranges::find(groups, resource.type, &TypeGroup::type);
        if (group == groups.end())
            group = groups.insert(groups.end(), {resource.type, {}});
        group->resources.push_back(&resource);
    }
    return groups;
}

void require(bool fits) {
    if (!fits)
        throw std::length_error("more than a resource fork can hold");
}

} // namespace

std::optional<std::vector<Resource>> readResourceFork(std::span<const std::byte> fork) {
    const auto parts = partsOf(fork);
    if (!parts)
        return std::nullopt;
    std::vector<Resource> resources;
    std::uint64_t sum = 0;
    const bool wellFormed = visitReferences(*parts, [&](const Reference& reference) {
        sum += 4 + reference.data.size();
        if (sum > parts->data.size())
            return false;
        resources.push_back({reference.type, reference.number, textOf(reference.name),
                             Bytes(reference.data.begin(), reference.data.end())});
        return true;
    });
    if (!wellFormed || sum > parts->data.size())
        return std::nullopt;
    return resources;
}

std::optional<Bytes> findResource(std::span<const std::byte> fork, std::uint32_t type,
                                  std::int16_t number) {
    const auto parts = partsOf(fork);
    if (!parts)
        return std::nullopt;
    std::optional<Bytes> found;
    const bool wellFormed = visitReferences(*parts, [&](const Reference& reference) {
        if (reference.type == type && reference.number == number)
            found.emplace(reference.data.begin(), reference.data.end());
        return !found;
    });
    return wellFormed ? found : std::nullopt;
}

Bytes writeResourceFork(const std::vector<Resource>& resources) {
    constexpr std::uint64_t kMost16 = std::numeric_limits<std::uint16_t>::max();
    const auto groups = groupedByType(resources);
    const std::uint64_t firstList = 2 + groups.size() * kTypeEntryLength;
    const std::uint64_t nameList =
        kMapHeaderLength + firstList + resources.size() * kReferenceLength;
    require(nameList <= kMost16);

    BigEndianWriter types;
    BigEndianWriter references;
    BigEndianWriter names;
    BigEndianWriter data;
    types.u16((groups.size() + kMost16) & kMost16);
    for (const TypeGroup& group : groups) {
        types.u32(group.type);
        types.u16(group.resources.size() - 1);
        types.u16(firstList + references.size());
        for (const Resource* resource : group.resources) {
            require(data.size() <= 0xFFFFFF && names.size() < kNoName &&
                    resource->name.size() <= kLongestName && resource->data.size() <= 0x7FFFFFFF);
            references.u16(static_cast<std::uint16_t>(resource->number));
            references.u16(resource->name.empty() ? kNoName : names.size());
            references.u8(0); // attributes
            references.u24(data.size());
            references.u32(0); // the Resource Manager's handle
            if (!resource->name.empty()) {
                names.u8(resource->name.size());
                names.text(resource->name);
            }
            data.u32(resource->data.size());
            data.bytes(resource->data);
        }
    }

    BigEndianWriter header;
    header.u32(kDataStart);
    header.u32(kDataStart + data.size());
    header.u32(data.size());
    header.u32(nameList + names.size());
    const Bytes headerBytes = header.take();

    BigEndianWriter fork;
    fork.bytes(headerBytes);
    fork.zeros(kDataStart - headerBytes.size());
    fork.bytes(data.take());
    fork.bytes(headerBytes); // the map begins with a copy
    fork.zeros(8);           // next map, file reference and attributes of the running system
    fork.u16(kMapHeaderLength);
    fork.u16(nameList);
    fork.bytes(types.take());
    fork.bytes(references.take());
    fork.bytes(names.take());
    return fork.take();
}

} // namespace formats
