#include "patcher/format/Addresses.h"

#include <algorithm>
#include <tuple>

namespace patch {

namespace {

/// The stretch that holds `offset`; null when none does. `until` becomes the end of the stretch, or
/// of the gap: the next one's beginning.
const Stretch* stretchAt(const std::vector<Stretch>& stretches, std::uint64_t offset,
                         std::uint64_t& until) {
    const auto after =
        std::ranges::upper_bound(stretches, offset, {}, [](const Stretch& s) { return s.offset; });
    until = after == stretches.end() ? ~std::uint64_t{0} : after->offset;
    if (after == stretches.begin())
        return nullptr;
    const Stretch& stretch = *std::prev(after);
    if (offset - stretch.offset >= stretch.length)
        return nullptr;
    until = stretch.offset + stretch.length;
    return &stretch;
}

} // namespace

AddressMap::AddressMap(const Layout& layout) : m_layout(layout) {
    std::uint64_t begin = ~std::uint64_t{0};
    std::uint64_t end = 0;
    for (const Stretch& stretch : layout.before)
        if (stretch.references == References::code) {
            begin = std::min(begin, stretch.address);
            end = std::max(end, stretch.address + stretch.length);
        }
    if (begin < end) {
        m_code = begin;
        m_codeExtent = end - begin;
    }
}

bool Pieces::next(Piece& piece) {
    if (m_match.length == 0)
        return false;
    std::uint64_t untilBefore = 0;
    std::uint64_t untilAfter = 0;
    const Stretch* before = stretchAt(m_layout.before, m_match.from, untilBefore);
    const Stretch* after = stretchAt(m_layout.after, m_match.to, untilAfter);
    piece = {.from = m_match.from,
             .length =
                 std::min({m_match.length, untilBefore - m_match.from, untilAfter - m_match.to}),
             .references = References::none,
             .isKnown = false,
             .aligned = 0,
             .addressBefore = 0,
             .addressAfter = 0,
             .beginBefore = 0,
             .beginAfter = 0};
    if (before && after) {
        piece.references = before->references;
        piece.isKnown = true;
        piece.aligned = before->offset;
        piece.addressBefore = before->address + (m_match.from - before->offset);
        piece.addressAfter = after->address + (m_match.to - after->offset);
        piece.beginBefore = before->address;
        piece.beginAfter = after->address;
    }
    m_match.from += piece.length;
    m_match.to += piece.length;
    m_match.length -= piece.length;
    return true;
}

void AddressMap::add(const Match& match) {
    Pieces pieces(m_layout, match);
    for (Piece piece; pieces.next(piece);)
        if (piece.isKnown && contains(piece.addressBefore))
            m_moves.push_back(
                {piece.addressBefore, piece.length, piece.addressAfter - piece.addressBefore});
}

void AddressMap::finish() {
    std::ranges::sort(m_moves, {}, [](const Move& move) {
        return std::tuple(move.address, move.length, move.moved);
    });
    // Where old bytes were used twice, the longer match tells where they went. What lies between
    // two matches goes with the first.
    std::size_t kept = 0;
    std::uint64_t end = 0;
    for (Move move : m_moves) {
        if (kept > 0 && move.address < end) {
            if (move.length <= m_moves[kept - 1].length) {
                const std::uint64_t covered = end - move.address;
                if (move.length <= covered)
                    continue;
                move.address += covered;
                move.length -= covered;
            } else {
                while (kept > 0 && m_moves[kept - 1].address >= move.address)
                    --kept;
            }
        }
        end = move.address + move.length;
        if (kept == 0 || m_moves[kept - 1].moved != move.moved)
            m_moves[kept++] = move;
    }
    m_moves.resize(kept);
    if (m_moves.empty())
        m_moves.push_back({m_layout.lowest, 0, 0});

    m_pageShift = 0;
    while (m_layout.extent >> m_pageShift >> kPageBits)
        ++m_pageShift;
    m_pages.resize((std::size_t{1} << kPageBits) + 1);
    std::size_t move = 0;
    for (std::size_t page = 0; page < m_pages.size(); ++page) {
        const std::uint64_t begin = std::uint64_t{page} << m_pageShift;
        while (move + 1 < m_moves.size() && m_moves[move + 1].address - m_layout.lowest <= begin)
            ++move;
        m_pages[page] = static_cast<std::uint32_t>(move);
    }
}

std::uint64_t AddressMap::movedByMatches(std::uint64_t address) const {
    const auto page = static_cast<std::size_t>((address - m_layout.lowest) >> m_pageShift);
    auto first = m_moves.begin() + m_pages[page] + 1;
    const auto last = m_moves.begin() + m_pages[page + 1] + 1;
    first = std::upper_bound(first, last, address, [](std::uint64_t value, const Move& move) {
        return value < move.address;
    });
    return std::prev(first)->moved;
}

} // namespace patch
