// A delta: a new file as stretches of an old one with what differs in them, and bytes of its own.
// The decoder, for Block; its encoder in makePatch shares what both must do alike, the walk over
// the old bytes. docs/patch-format.md has the bytes.
//
// Memory of the decoder: kDeltaWindowLog for each of the streams, a window of the old file and,
// with foretold references, 24 bytes a match.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "patcher/format/Addresses.h"
#include "patcher/format/Bytes.h"
#include "patcher/format/Fields.h"

namespace patch {

/// The streams of a delta in their order, each one frame.
enum class DeltaStream : std::uint8_t {
    extraLengths,  ///< of the bytes of its own before each match, varints
    matchLengths,  ///< varints
    seeks,         ///< from where the match before ended in the old file, signed varints
    extra,         ///< all bytes of the new file that are in no match
    gaps,          ///< matched bytes without a difference before each that has one, varints
    differences,   ///< of those bytes, new minus old
    referenceGaps, ///< references foretold rightly before each that is not, varints
    corrections    ///< of those, new minus foretold, signed varints
};
inline constexpr std::size_t kDeltaStreams = 8;

/// What a delta's block begins with.
struct DeltaHead {
    std::uint64_t matches = 0;
    std::uint64_t differences = 0;                      ///< how many bytes
    std::uint64_t corrections = 0;                      ///< how many references
    std::array<std::uint64_t, kDeltaStreams> lengths{}; ///< of the frames, as stored
    std::optional<Layout> layout;                       ///< where references are foretold
};
/// A head takes no more than this.
inline constexpr std::size_t kLongestDeltaHead = 8192;

Bytes encodedHead(const DeltaHead& head);
/// Throws FormatError for what is no head, or one of lengths beyond 2^56 or with a layout that
/// breaks the rules of Layout.
DeltaHead decodedHead(FieldReader& reader);

/// Gives stretches of an old file out as copies that may be changed. Keeps some pages of it, as
/// matches often jump to and fro.
class OldWindow {
  public:
    /// `old` must outlive the window.
    explicit OldWindow(const Source& old);
    static constexpr std::size_t kMostAtOnce = std::size_t{1} << 16;

    /// At most kMostAtOnce bytes; valid until the next call. They must be within the old file.
    std::span<std::byte> at(std::uint64_t offset, std::size_t length);

  private:
    static constexpr std::size_t kPage = std::size_t{1} << 14;
    static constexpr std::size_t kPages = 64;

    View page(std::uint64_t number);

    const Source& m_old;
    std::array<std::uint64_t, kPages> m_numbers; ///< of the pages that are kept
    Bytes m_pages;
    Bytes m_copy;
};

/// Walks over the old bytes of a match from first to last, for decoder and encoder. `handler` gets
///   plain(std::span<std::byte>)   bytes that are in no reference;
///   reference(std::byte*, Word)   a reference with what it is foretold to be, of 4 or 8 bytes;
///                                 answers what it is;
///   done(std::span<std::byte>)    all of them, what the two changed included.
/// Without a map there are no references.
template <typename Handler>
void walkMatch(OldWindow& old, const Match& match, AddressMap* map, Handler& handler) {
    const auto all = [&](std::uint64_t offset, std::uint64_t length) {
        while (length > 0) {
            const auto now =
                static_cast<std::size_t>(std::min<std::uint64_t>(length, OldWindow::kMostAtOnce));
            const auto bytes = old.at(offset, now);
            handler.plain(bytes);
            handler.done(bytes);
            offset += now;
            length -= now;
        }
    };
    if (!map)
        return all(match.from, match.length);
    Pieces pieces(map->layout(), match);
    for (Piece piece; pieces.next(piece);) {
        if (piece.references == References::none) {
            all(piece.from, piece.length);
            continue;
        }
        for (std::uint64_t at = 0; at < piece.length;) {
            const auto now = static_cast<std::size_t>(
                std::min<std::uint64_t>(piece.length - at, OldWindow::kMostAtOnce));
            const auto bytes = old.at(piece.from + at, now);
            std::size_t begin = 0;
            const std::size_t end =
                walkReferences(*map, piece, at, bytes, [&](std::size_t index, auto foretold) {
                    handler.plain(bytes.subspan(begin, index - begin));
                    begin = index + sizeof foretold;
                    return handler.reference(bytes.data() + index, foretold);
                });
            handler.plain(bytes.subspan(begin, end - begin));
            handler.done(bytes.first(end));
            at += end;
        }
    }
}

/// Method delta, as `makeContent` has it.
void makeFromDelta(const Source& patch, std::uint64_t offset, std::uint64_t length,
                   const Source& old, std::uint64_t size, Sink& sink);

} // namespace patch
