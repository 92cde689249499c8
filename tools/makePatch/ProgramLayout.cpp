#include "tools/makePatch/ProgramLayout.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "patcher/format/Fields.h"

namespace tools {

using patch::Bytes;
using patch::References;
using patch::Stretch;
using patch::View;

namespace {

/// A program's memory is less than this; and so are its tables, by far.
constexpr std::uint64_t kMostMemory = std::uint64_t{1} << 32;
constexpr std::uint64_t kLargestTable = 1 << 20;

std::uint64_t number(View bytes, std::size_t offset, std::size_t width) {
    return offset + width <= bytes.size() ? patch::readLittle(bytes.subspan(offset, width)) : 0;
}

Bytes part(const patch::Source& file, std::uint64_t offset, std::uint64_t length) {
    if (length > kLargestTable || offset > file.size() || length > file.size() - offset)
        return {};
    Bytes bytes(static_cast<std::size_t>(length));
    file.read(offset, bytes);
    return bytes;
}

struct NamedUse {
    std::string_view name;
    References references;
};

class Collector {
  public:
    explicit Collector(std::uint64_t fileSize) : m_fileSize(fileSize) {}

    void memory(std::uint64_t address, std::uint64_t length) {
        if (length == 0 || length > kMostMemory)
            return;
        m_lowest = std::min(m_lowest, address);
        m_end = std::max(m_end, address + length);
    }
    void stretch(const Stretch& stretch) {
        if (stretch.length > 0 && stretch.offset < m_fileSize &&
            stretch.length <= m_fileSize - stretch.offset)
            m_stretches.push_back(stretch);
    }
    ProgramLayout layout() {
        if (m_end <= m_lowest || m_end - m_lowest > kMostMemory)
            return {};
        std::ranges::stable_sort(m_stretches, {}, &Stretch::offset);
        ProgramLayout layout{.stretches = {}, .lowest = m_lowest, .extent = m_end - m_lowest};
        for (const Stretch& next : m_stretches) {
            if (!layout.stretches.empty()) {
                Stretch& last = layout.stretches.back();
                if (next.offset < last.offset + last.length)
                    continue;
                // Neighbours of one kind that lie in memory as they do in the file are one.
                if (next.references == last.references &&
                    next.references != References::fromBeginning &&
                    next.offset - last.offset == next.address - last.address &&
                    next.offset - (last.offset + last.length) < 64) {
                    last.length = next.offset + next.length - last.offset;
                    continue;
                }
            }
            if (layout.stretches.size() == patch::kMostStretches)
                break;
            layout.stretches.push_back(next);
        }
        return layout;
    }

  private:
    std::uint64_t m_fileSize;
    std::uint64_t m_lowest = ~std::uint64_t{0};
    std::uint64_t m_end = 0;
    std::vector<Stretch> m_stretches;
};

constexpr std::uint64_t kElfExecutable = 4; // SHF_EXECINSTR
constexpr std::uint64_t kElfWritable = 1;
constexpr std::uint64_t kElfInMemory = 2;
constexpr std::uint64_t kElfNoBytes = 8; // SHT_NOBITS

constexpr std::array kElfUses{
    NamedUse{".eh_frame_hdr", References::fromBeginning},
    NamedUse{".eh_frame", References::fromSelf},
    NamedUse{".rodata", References::fromSelf},
    NamedUse{".rela.dyn", References::words},
    NamedUse{".rela.plt", References::words},
    NamedUse{".dynsym", References::words},
    NamedUse{".symtab", References::words},
};

void addElfSections(const patch::Source& file, View header, Collector& collector) {
    const std::uint64_t entrySize = number(header, 58, 2);
    const std::uint64_t count = number(header, 60, 2);
    const Bytes table = part(file, number(header, 40, 8), entrySize * count);
    if (entrySize < 64)
        return;
    const auto section = [&](std::uint64_t index) {
        return View(table).subspan(
            static_cast<std::size_t>(std::min<std::uint64_t>(index * entrySize, table.size())));
    };
    const View names = section(number(header, 62, 2));
    const Bytes text = part(file, number(names, 24, 8), number(names, 32, 8));
    for (std::uint64_t index = 0; index < count && !table.empty(); ++index) {
        const View entry = section(index);
        const std::uint64_t flags = number(entry, 8, 8);
        if (number(entry, 4, 4) == kElfNoBytes || number(entry, 4, 4) == 0)
            continue;
        const auto nameAt =
            std::min<std::size_t>(static_cast<std::size_t>(number(entry, 0, 4)), text.size());
        std::string_view name(reinterpret_cast<const char*>(text.data()) + nameAt,
                              text.size() - nameAt);
        name = name.substr(0, name.find('\0'));
        Stretch stretch{.offset = number(entry, 24, 8),
                        .length = number(entry, 32, 8),
                        .address = number(entry, 16, 8),
                        .references = References::none};
        if (flags & kElfExecutable)
            stretch.references = References::code;
        else if (flags & kElfWritable)
            stretch.references = References::words;
        else if (const auto use = std::ranges::find(kElfUses, name, &NamedUse::name);
                 use != kElfUses.end())
            stretch.references = use->references;
        else if (!(flags & kElfInMemory))
            continue;
        collector.stretch(stretch);
    }
}

ProgramLayout elfLayout(const patch::Source& file, View header) {
    constexpr std::uint64_t kX8664 = 62;
    constexpr std::uint64_t kLoaded = 1;
    if (number(header, 4, 1) != 2 || number(header, 5, 1) != 1 || number(header, 18, 2) != kX8664)
        return {};
    Collector collector(file.size());
    const std::uint64_t entrySize = number(header, 54, 2);
    const std::uint64_t count = number(header, 56, 2);
    const Bytes segments = part(file, number(header, 32, 8), entrySize * count);
    if (entrySize < 56)
        return {};
    addElfSections(file, header, collector);
    for (std::size_t at = 0; at < segments.size(); at += static_cast<std::size_t>(entrySize)) {
        const View segment = View(segments).subspan(at);
        if (number(segment, 0, 4) == kLoaded)
            collector.memory(number(segment, 16, 8), number(segment, 40, 8));
    }
    return collector.layout();
}

constexpr std::uint64_t kMachInstructions = 0x80000400; // pure or some
constexpr std::uint64_t kMachZeroFill = 1;

void addMachSegment(View segment, std::uint64_t base, Collector& collector) {
    constexpr std::size_t kHeader = 72;
    constexpr std::size_t kSection = 80;
    if (number(segment, 48, 8) == 0) // nothing of it is in the file: the guard page at 0
        return;
    collector.memory(number(segment, 24, 8), number(segment, 32, 8));
    const bool writable = (number(segment, 60, 4) & 2) != 0;
    const std::uint64_t count = number(segment, 64, 4);
    for (std::uint64_t index = 0; index < count; ++index) {
        const auto at = kHeader + static_cast<std::size_t>(index) * kSection;
        if (at + kSection > segment.size())
            return;
        const View section = segment.subspan(at, kSection);
        const std::uint64_t flags = number(section, 64, 4);
        if ((flags & 0xFF) == kMachZeroFill)
            continue;
        collector.stretch({.offset = base + number(section, 48, 4),
                           .length = number(section, 40, 8),
                           .address = number(section, 32, 8),
                           .references = (flags & kMachInstructions) ? References::code
                                         : writable                  ? References::words
                                                                     : References::fromSelf});
    }
}

ProgramLayout machLayout(const patch::Source& file, View header, std::uint64_t base) {
    constexpr std::uint64_t kX8664 = 0x01000007;
    constexpr std::uint64_t kSegment64 = 0x19;
    if (number(header, 4, 4) != kX8664)
        return {};
    Collector collector(file.size());
    const Bytes commands = part(file, base + 32, number(header, 20, 4));
    for (std::size_t at = 0; at + 8 <= commands.size();) {
        const auto length = static_cast<std::size_t>(number(commands, at + 4, 4));
        if (length < 8 || length > commands.size() - at)
            break;
        if (number(commands, at, 4) == kSegment64)
            addMachSegment(View(commands).subspan(at, length), base, collector);
        at += length;
    }
    return collector.layout();
}

/// The part for x86-64 of a file for several processors, whose own numbers are big-endian.
std::optional<std::uint64_t> machPart(View header) {
    const auto big = [&](std::size_t at) {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < 4; ++i)
            value = value << 8 | number(header, at + i, 1);
        return value;
    };
    for (std::size_t index = 0; index < std::min<std::uint64_t>(big(4), 8); ++index)
        if (big(8 + index * 20) == 0x01000007)
            return big(8 + index * 20 + 8);
    return std::nullopt;
}

} // namespace

ProgramLayout programLayoutOf(const patch::Source& file) {
    constexpr std::uint64_t kElf = 0x464C457F;
    constexpr std::uint64_t kMach = 0xFEEDFACF;
    constexpr std::uint64_t kMachParts = 0xBEBAFECA;
    constexpr std::size_t kHeader = 256;
    const Bytes header = part(file, 0, std::min<std::uint64_t>(file.size(), kHeader));
    switch (number(header, 0, 4)) {
    case kElf:
        return elfLayout(file, header);
    case kMach:
        return machLayout(file, header, 0);
    case kMachParts:
        if (const auto at = machPart(header))
            if (const Bytes inner = part(file, *at, 32); number(inner, 0, 4) == kMach)
                return machLayout(file, inner, *at);
        return {};
    default:
        return {};
    }
}

} // namespace tools
