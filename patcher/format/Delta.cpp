#include "patcher/format/Delta.h"

#include <algorithm>

#include "patcher/format/Block.h"
#include "patcher/format/Frame.h"

namespace patch {

namespace {

constexpr std::uint64_t kLongest = std::uint64_t{1} << 56;

[[noreturn]] void refuse(const char* what) {
    throw FormatError(what);
}

void writeStretches(FieldWriter& out, const std::vector<Stretch>& stretches, bool withReferences) {
    out.varint(stretches.size());
    Stretch last;
    for (const Stretch& stretch : stretches) {
        const std::uint64_t end = last.offset + last.length;
        out.varint(stretch.offset - end);
        out.varint(stretch.length);
        out.signedVarint(static_cast<std::int64_t>(stretch.address - last.address -
                                                   (stretch.offset - last.offset)));
        if (withReferences)
            out.byte(static_cast<std::uint8_t>(stretch.references));
        last = stretch;
    }
}

std::vector<Stretch> readStretches(FieldReader& in, bool withReferences) {
    std::vector<Stretch> stretches(static_cast<std::size_t>(in.varint(kMostStretches)));
    Stretch last;
    for (Stretch& stretch : stretches) {
        stretch.offset = last.offset + last.length + in.varint(kLongest);
        stretch.length = in.varint(kLongest);
        stretch.address = last.address + (stretch.offset - last.offset) +
                          static_cast<std::uint64_t>(in.signedVarint());
        if (stretch.offset > kLongest)
            refuse("A delta's stretch lies beyond all files.");
        if (withReferences) {
            const std::uint8_t references = in.byte();
            if (references > kMostReferences)
                refuse("A delta has references of an unknown kind.");
            stretch.references = static_cast<References>(references);
        }
        last = stretch;
    }
    return stretches;
}

/// The frames of a block, opened where they are needed.
class Streams {
  public:
    Streams(const Source& patch, std::uint64_t offset, std::uint64_t length) : m_patch(patch) {
        Bytes bytes(static_cast<std::size_t>(std::min<std::uint64_t>(length, kLongestDeltaHead)));
        patch.read(offset, bytes);
        FieldReader reader(bytes);
        m_head = decodedHead(reader);
        std::uint64_t at = bytes.size() - reader.left();
        for (std::size_t stream = 0; stream < kDeltaStreams; ++stream) {
            m_offsets[stream] = offset + at;
            at += m_head.lengths[stream];
        }
        if (at != length)
            refuse("A delta's streams are not as long as its block.");
    }

    const DeltaHead& head() const { return m_head; }
    FrameReader open(DeltaStream stream) const {
        const auto index = static_cast<std::size_t>(stream);
        return {m_patch, m_offsets[index], m_head.lengths[index], kDeltaWindowLog};
    }

  private:
    const Source& m_patch;
    DeltaHead m_head;
    std::array<std::uint64_t, kDeltaStreams> m_offsets{};
};

/// Reads the matches, and checks each against both files.
class MatchReader {
  public:
    MatchReader(const Streams& streams, std::uint64_t oldSize, std::uint64_t newSize)
        : m_extraLengths(streams.open(DeltaStream::extraLengths)),
          m_matchLengths(streams.open(DeltaStream::matchLengths)),
          m_seeks(streams.open(DeltaStream::seeks)), m_left(streams.head().matches),
          m_oldSize(oldSize), m_newSize(newSize) {}

    /// False when there are no more; then `m_to` is where the rest begins.
    bool next(Match& match) {
        if (m_left == 0) {
            m_extraLengths.finish();
            m_matchLengths.finish();
            m_seeks.finish();
            return false;
        }
        --m_left;
        const std::uint64_t extra = m_extraLengths.varint();
        if (extra > m_newSize - m_to)
            refuse("A delta makes more than the new file.");
        m_to += extra;
        match.to = m_to;
        match.length = m_matchLengths.varint();
        if (match.length == 0 || match.length > m_newSize - m_to)
            refuse("A delta makes more than the new file.");
        match.from = m_from + static_cast<std::uint64_t>(m_seeks.signedVarint());
        if (match.from > m_oldSize || match.length > m_oldSize - match.from)
            refuse("A delta reads outside the old file.");
        m_to += match.length;
        m_from = match.from + match.length;
        return true;
    }

  private:
    FrameReader m_extraLengths;
    FrameReader m_matchLengths;
    FrameReader m_seeks;
    std::uint64_t m_left;
    const std::uint64_t m_oldSize;
    const std::uint64_t m_newSize;
    std::uint64_t m_from = 0; ///< where the last match ended
    std::uint64_t m_to = 0;
};

/// Positions at which something differs, each given as the distance from the one before.
class Events {
  public:
    explicit Events(FrameReader gaps) : m_gaps(std::move(gaps)) {}

    /// How many to pass before the next event; far beyond any file after the last one.
    std::uint64_t left() const { return m_left; }
    void pass(std::uint64_t count) { m_left -= count; }
    /// `count` is the number of events to come.
    void begin(std::uint64_t count) {
        m_count = count;
        next();
    }
    void next() {
        if (m_count == 0) {
            m_left = ~std::uint64_t{0};
            return;
        }
        --m_count;
        m_left = m_gaps.varint();
        if (m_left >= kLongest)
            refuse("A delta's difference lies outside the file.");
    }
    void finish() {
        if (m_left < kLongest)
            refuse("A delta has differences left over.");
        m_gaps.finish();
    }

  private:
    FrameReader m_gaps;
    std::uint64_t m_count = 0;
    std::uint64_t m_left = 0;
};

/// Turns old bytes into new ones.
class Differences {
  public:
    Differences(const Streams& streams, Sink& sink)
        : m_sink(sink), m_gaps(streams.open(DeltaStream::gaps)),
          m_differences(streams.open(DeltaStream::differences)),
          m_referenceGaps(streams.open(DeltaStream::referenceGaps)),
          m_corrections(streams.open(DeltaStream::corrections)) {
        m_gaps.begin(streams.head().differences);
        m_referenceGaps.begin(streams.head().corrections);
    }

    void plain(std::span<std::byte> bytes) {
        std::size_t at = 0;
        while (m_gaps.left() < bytes.size() - at) {
            at += static_cast<std::size_t>(m_gaps.left());
            bytes[at] =
                static_cast<std::byte>(static_cast<std::uint8_t>(bytes[at]) + m_differences.byte());
            ++at;
            m_gaps.next();
        }
        m_gaps.pass(bytes.size() - at);
    }

    template <typename Word>
    Word reference(std::byte* at, Word foretold) {
        if (m_referenceGaps.left() == 0) {
            foretold += static_cast<Word>(m_corrections.signedVarint());
            m_referenceGaps.next();
        } else {
            m_referenceGaps.pass(1);
        }
        walk::store(at, foretold);
        return foretold;
    }

    void done(View bytes) { m_sink.write(bytes); }

    void finish() {
        m_gaps.finish();
        m_differences.finish();
        m_referenceGaps.finish();
        m_corrections.finish();
    }

  private:
    Sink& m_sink;
    Events m_gaps;
    FrameReader m_differences;
    Events m_referenceGaps;
    FrameReader m_corrections;
};

void copyExtra(FrameReader& extra, std::uint64_t length, Bytes& room, Sink& sink) {
    while (length > 0) {
        const auto now = std::span(room).first(
            static_cast<std::size_t>(std::min<std::uint64_t>(length, room.size())));
        extra.fill(now);
        sink.write(now);
        length -= now.size();
    }
}

} // namespace

Bytes encodedHead(const DeltaHead& head) {
    Bytes bytes;
    FieldWriter out(bytes);
    out.byte(head.layout ? 1 : 0);
    out.varint(head.matches);
    out.varint(head.differences);
    out.varint(head.corrections);
    for (const std::uint64_t length : head.lengths)
        out.varint(length);
    if (head.layout) {
        out.varint(head.layout->lowest);
        out.varint(head.layout->extent);
        writeStretches(out, head.layout->before, true);
        writeStretches(out, head.layout->after, false);
    }
    return bytes;
}

DeltaHead decodedHead(FieldReader& reader) {
    DeltaHead head;
    const std::uint8_t transform = reader.byte();
    if (transform > 1)
        refuse("A delta foretells references in an unknown way.");
    head.matches = reader.varint(transform == 0 ? kLongest : kMostMatches);
    head.differences = reader.varint(kLongest);
    head.corrections = reader.varint(kLongest);
    for (std::uint64_t& length : head.lengths)
        length = reader.varint(kLongest);
    if (transform == 1) {
        head.layout.emplace();
        head.layout->lowest = reader.varint();
        head.layout->extent = reader.varint(kLongest);
        head.layout->before = readStretches(reader, true);
        head.layout->after = readStretches(reader, false);
    }
    return head;
}

OldWindow::OldWindow(const Source& old) : m_old(old), m_copy(kMostAtOnce) {
    m_numbers.fill(~std::uint64_t{0});
}

View OldWindow::page(std::uint64_t number) {
    const std::uint64_t offset = number * kPage;
    const auto length =
        static_cast<std::size_t>(std::min<std::uint64_t>(kPage, m_old.size() - offset));
    if (m_pages.empty())
        m_pages.resize(kPage * kPages);
    const auto slot = static_cast<std::size_t>(number % kPages);
    const auto room = std::span(m_pages).subspan(slot * kPage, length);
    if (m_numbers[slot] != number) {
        m_old.read(offset, room);
        m_numbers[slot] = number;
    }
    return room;
}

std::span<std::byte> OldWindow::at(std::uint64_t offset, std::size_t length) {
    const auto copy = std::span(m_copy).first(length);
    if (length >= kPage) {
        m_old.read(offset, copy);
        return copy;
    }
    for (std::size_t done = 0; done < length;) {
        const View bytes = page((offset + done) / kPage)
                               .subspan(static_cast<std::size_t>((offset + done) % kPage));
        const std::size_t now = std::min(bytes.size(), length - done);
        std::copy_n(bytes.begin(), now, copy.begin() + static_cast<std::ptrdiff_t>(done));
        done += now;
    }
    return copy;
}

void makeFromDelta(const Source& patch, std::uint64_t offset, std::uint64_t length,
                   const Source& old, std::uint64_t size, Sink& sink) {
    const Streams streams(patch, offset, length);
    std::optional<AddressMap> map;
    if (streams.head().layout) {
        map.emplace(*streams.head().layout);
        MatchReader matches(streams, old.size(), size);
        for (Match match; matches.next(match);)
            map->add(match);
        map->finish();
    }
    MatchReader matches(streams, old.size(), size);
    Differences differences(streams, sink);
    FrameReader extra = streams.open(DeltaStream::extra);
    OldWindow window(old);
    Bytes room(OldWindow::kMostAtOnce);
    std::uint64_t made = 0;
    for (Match match; matches.next(match);) {
        copyExtra(extra, match.to - made, room, sink);
        walkMatch(window, match, map ? &*map : nullptr, differences);
        made = match.to + match.length;
    }
    copyExtra(extra, size - made, room, sink);
    extra.finish();
    differences.finish();
}

} // namespace patch
