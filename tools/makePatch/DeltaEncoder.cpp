#include "tools/makePatch/DeltaEncoder.h"

#include <algorithm>

#include "patcher/format/Block.h"
#include "patcher/format/Delta.h"
#include "tools/makePatch/FrameWriter.h"
#include "tools/makePatch/ProgramLayout.h"

namespace tools {

using namespace patch;

namespace {

/// Reads a file from its first byte to its last, or onwards from where it is told.
class Reading {
  public:
    explicit Reading(const Source& file) : m_file(file) {}

    /// The next bytes, at most kMost; valid until the next call.
    View next(std::size_t length) {
        if (length > m_window.size() - m_at) {
            m_offset += m_at;
            m_at = 0;
            m_window.resize(static_cast<std::size_t>(
                std::min<std::uint64_t>(kWindow, m_file.size() - m_offset)));
            m_file.read(m_offset, m_window);
        }
        const View bytes = View(m_window).subspan(m_at, length);
        m_at += length;
        return bytes;
    }
    static constexpr std::size_t kMost = 1 << 16;

  private:
    static constexpr std::size_t kWindow = 1 << 20;
    const Source& m_file;
    std::uint64_t m_offset = 0; ///< of the window
    std::size_t m_at = 0;       ///< in the window
    Bytes m_window;
};

/// Writes down what the decoder must be told of each old byte and reference.
class DifferenceWriter {
  public:
    DifferenceWriter(Reading& after, std::array<FrameWriter, kDeltaStreams>& streams)
        : m_after(after), m_streams(streams) {}

    void plain(std::span<std::byte> old) {
        const View fresh = m_after.next(old.size());
        for (std::size_t at = 0; at < old.size(); ++at) {
            if (old[at] == fresh[at]) {
                ++m_gap;
                continue;
            }
            stream(DeltaStream::gaps).varint(m_gap);
            stream(DeltaStream::differences)
                .byte(static_cast<std::uint8_t>(static_cast<std::uint8_t>(fresh[at]) -
                                                static_cast<std::uint8_t>(old[at])));
            m_gap = 0;
            ++m_differences;
        }
    }

    template <typename Word>
    Word reference(const std::byte* old, Word foretold) {
        const Word actual = walk::load<Word>(m_after.next(sizeof(Word)).data());
        m_changedReferences += actual == walk::load<Word>(old) ? 0 : 1;
        if (actual == foretold) {
            ++m_referenceGap;
            return actual;
        }
        stream(DeltaStream::referenceGaps).varint(m_referenceGap);
        stream(DeltaStream::corrections)
            .signedVarint(
                static_cast<std::make_signed_t<Word>>(static_cast<Word>(actual - foretold)));
        m_referenceGap = 0;
        ++m_corrections;
        return actual;
    }

    void done(View) {}

    std::uint64_t differences() const { return m_differences; }
    std::uint64_t corrections() const { return m_corrections; }
    /// References that are not what they were, foretold or not.
    std::uint64_t changedReferences() const { return m_changedReferences; }

  private:
    FrameWriter& stream(DeltaStream stream) { return m_streams[static_cast<std::size_t>(stream)]; }

    Reading& m_after;
    std::array<FrameWriter, kDeltaStreams>& m_streams;
    std::uint64_t m_gap = 0;
    std::uint64_t m_referenceGap = 0;
    std::uint64_t m_differences = 0;
    std::uint64_t m_corrections = 0;
    std::uint64_t m_changedReferences = 0;
};

struct Encoded {
    Bytes block;
    bool foretellsMost; ///< of the references that changed: it can't be done better without
};

Encoded encode(const Source& before, const Source& after, const std::vector<Match>& matches,
               std::optional<Layout> layout, int level) {
    std::optional<AddressMap> map;
    if (layout) {
        map.emplace(*layout);
        for (const Match& match : matches)
            map->add(match);
        map->finish();
    }
    const auto writer = [&] { return FrameWriter(level, kDeltaWindowLog); };
    std::array<FrameWriter, kDeltaStreams> streams{writer(), writer(), writer(), writer(),
                                                   writer(), writer(), writer(), writer()};
    const auto stream = [&](DeltaStream which) -> FrameWriter& {
        return streams[static_cast<std::size_t>(which)];
    };
    OldWindow old(before);
    Reading fresh(after);
    DifferenceWriter differences(fresh, streams);
    std::uint64_t to = 0;
    std::uint64_t from = 0;
    const auto copyExtra = [&](std::uint64_t length) {
        while (length > 0) {
            const auto now =
                static_cast<std::size_t>(std::min<std::uint64_t>(length, Reading::kMost));
            stream(DeltaStream::extra).write(fresh.next(now));
            length -= now;
        }
    };
    for (const Match& match : matches) {
        stream(DeltaStream::extraLengths).varint(match.to - to);
        stream(DeltaStream::matchLengths).varint(match.length);
        stream(DeltaStream::seeks).signedVarint(static_cast<std::int64_t>(match.from - from));
        copyExtra(match.to - to);
        walkMatch(old, match, map ? &*map : nullptr, differences);
        to = match.to + match.length;
        from = match.from + match.length;
    }
    copyExtra(after.size() - to);

    DeltaHead head{.matches = matches.size(),
                   .differences = differences.differences(),
                   .corrections = differences.corrections(),
                   .lengths = {},
                   .layout = std::move(layout)};
    std::array<Bytes, kDeltaStreams> frames;
    for (std::size_t index = 0; index < kDeltaStreams; ++index) {
        frames[index] = streams[index].finish();
        head.lengths[index] = frames[index].size();
    }
    Bytes block = encodedHead(head);
    for (const Bytes& frame : frames)
        block.insert(block.end(), frame.begin(), frame.end());
    return {.block = std::move(block),
            .foretellsMost = 2 * differences.corrections() < differences.changedReferences()};
}

std::optional<Layout> commonLayout(const Source& before, const Source& after) {
    ProgramLayout old = programLayoutOf(before);
    ProgramLayout fresh = programLayoutOf(after);
    if (old.stretches.empty() || fresh.stretches.empty())
        return std::nullopt;
    for (Stretch& stretch : fresh.stretches)
        stretch.references = References::none;
    return Layout{.before = std::move(old.stretches),
                  .after = std::move(fresh.stretches),
                  .lowest = old.lowest,
                  .extent = old.extent};
}

} // namespace

Bytes deltaOf(const Source& before, const Source& after, const DeltaSettings& settings) {
    const std::vector<Match> matches = matchesOf(before, after, settings.window);
    const std::optional<Layout> layout = commonLayout(before, after);
    const auto plain = [&] {
        return encode(before, after, matches, std::nullopt, settings.level).block;
    };
    if (!layout || matches.size() > kMostMatches)
        return plain();
    Encoded foretold = encode(before, after, matches, layout, settings.level);
    if (foretold.foretellsMost)
        return std::move(foretold.block);
    Bytes other = plain();
    return foretold.block.size() < other.size() ? std::move(foretold.block) : other;
}

} // namespace tools
