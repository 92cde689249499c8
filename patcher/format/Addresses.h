// Where programs keep addresses, and what becomes of them when the program is linked anew: then
// code moves, and every reference to it changes although nothing was edited. A delta that knows
// from its matches where things moved foretells most of these references, so that no difference
// remains to be stored. Used by the delta's decoder and, the very same code, by its encoder.
//
// Knows no file format: the patch says which stretches of a file hold what.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "patcher/format/Bytes.h"

namespace patch {

/// What the references in a stretch of a program look like.
enum class References : std::uint8_t {
    none = 0,
    code = 1,         ///< x86-64 instructions: 4 bytes, from the end of those bytes on
    words = 2,        ///< 8 bytes, the address itself, aligned to the stretch's beginning
    fromSelf = 3,     ///< 4 bytes, from their own address on, aligned as before
    fromBeginning = 4 ///< 4 bytes, from the stretch's address on, aligned as before
};
inline constexpr std::uint8_t kMostReferences = 4;

/// A stretch of a file and the address it has in memory.
struct Stretch {
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
    std::uint64_t address = 0;
    References references = References::none; ///< counts in old files only
    bool operator==(const Stretch&) const = default;
};
inline constexpr std::size_t kMostStretches = 64;

/// How two versions of a program lie in memory. Stretches are sorted by offset and do not overlap.
struct Layout {
    std::vector<Stretch> before;
    std::vector<Stretch> after;
    std::uint64_t lowest = 0; ///< addresses of the old version: at least this
    std::uint64_t extent = 0; ///< and less than this much above
    bool operator==(const Layout&) const = default;
};

/// Bytes of the new file that were made from bytes of the old one.
struct Match {
    std::uint64_t from = 0; ///< in the old file
    std::uint64_t to = 0;   ///< in the new file
    std::uint64_t length = 0;
    bool operator==(const Match&) const = default;
};

/// Says which new address an old one has become. First all matches are added, then `finish`, then
/// questions. Memory grows with the matches.
class AddressMap {
  public:
    /// `layout` must outlive the map.
    explicit AddressMap(const Layout& layout);

    const Layout& layout() const { return m_layout; }

    void add(const Match& match);
    void finish();

    bool contains(std::uint64_t address) const {
        return address - m_layout.lowest < m_layout.extent;
    }
    bool isCode(std::uint64_t address) const {
        return contains(address) && address - m_code < m_codeExtent;
    }
    /// How far `address`, which must be contained, has moved.
    std::uint64_t moved(std::uint64_t address) const {
        const Learned& learned = m_learned[slot(address)];
        return learned.address == address ? learned.moved : movedByMatches(address);
    }
    /// References tell more than matches do: of data that is not in the file, of what was
    /// rewritten.
    void learn(std::uint64_t address, std::uint64_t moved) {
        m_learned[slot(address)] = {address, moved};
    }

  private:
    struct Move {
        std::uint64_t address; ///< from here to the next
        std::uint64_t length;  ///< of the match; longer ones win
        std::uint64_t moved;
    };
    struct Learned {
        std::uint64_t address = ~std::uint64_t{0};
        std::uint64_t moved = 0;
    };
    static constexpr unsigned kSlotBits = 16;
    static constexpr unsigned kPageBits = 14;

    static std::size_t slot(std::uint64_t address) {
        return static_cast<std::size_t>((address * 0x9E3779B97F4A7C15u) >> (64 - kSlotBits));
    }
    std::uint64_t movedByMatches(std::uint64_t address) const;

    const Layout& m_layout;
    std::uint64_t m_code = 0; ///< from the first stretch of code to the last
    std::uint64_t m_codeExtent = 0;
    std::vector<Move> m_moves;
    std::vector<std::uint32_t> m_pages; ///< the move that holds at each page's first address
    unsigned m_pageShift = 0;
    std::vector<Learned> m_learned = std::vector<Learned>(std::size_t{1} << kSlotBits);
};

/// A stretch of a match in which references look alike and both addresses are known.
struct Piece {
    std::uint64_t from; ///< in the old file
    std::uint64_t length;
    References references;
    bool isKnown;                ///< the addresses are
    std::uint64_t aligned;       ///< offset in the old file that words are aligned to
    std::uint64_t addressBefore; ///< of the first byte
    std::uint64_t addressAfter;
    std::uint64_t beginBefore; ///< of the stretches
    std::uint64_t beginAfter;
};

/// Cuts a match into such pieces, in order and without a gap; those without references or with an
/// unknown address have References::none.
class Pieces {
  public:
    Pieces(const Layout& layout, const Match& match) : m_layout(layout), m_match(match) {}
    /// False when there are no more.
    bool next(Piece& piece);

  private:
    const Layout& m_layout;
    Match m_match; ///< what is left
};

/// Finds the references in `old`, bytes of the piece from its `at`-th on, and calls
/// `site(index, foretold)` for each in order: index of its first byte in `old`, and what it is
/// foretold to be, a word of its width. `site` answers the new value, from which the map learns.
/// Stops where a reference might go beyond `old`, unless that ends the piece; answers how many
/// bytes are done with.
template <typename Site>
std::size_t walkReferences(AddressMap& map, const Piece& piece, std::uint64_t at, View old,
                           Site site);

} // namespace patch

#include "patcher/format/AddressesWalk.h"
