// The walk over a piece's references; part of Addresses.h.
#pragma once

#include <bit>
#include <cstring>

#include "patcher/format/Addresses.h"

namespace patch {

namespace walk {

template <typename Word>
Word load(const std::byte* at) {
    Word word;
    std::memcpy(&word, at, sizeof word);
    if constexpr (std::endian::native == std::endian::big)
        word = sizeof word == 8 ? static_cast<Word>(__builtin_bswap64(word))
                                : static_cast<Word>(__builtin_bswap32(word));
    return word;
}

template <typename Word>
void store(std::byte* at, Word word) {
    if constexpr (std::endian::native == std::endian::big)
        word = sizeof word == 8 ? static_cast<Word>(__builtin_bswap64(word))
                                : static_cast<Word>(__builtin_bswap32(word));
    std::memcpy(at, &word, sizeof word);
}

/// How many bytes before the operand an instruction's part that tells of it takes, by its first
/// byte; 0 for a byte that tells of none, 2 for 0F, whose second byte decides.
constexpr std::array<std::uint8_t, 256> operandLead() {
    std::array<std::uint8_t, 256> lead{};
    for (unsigned byte = 0; byte < 256; ++byte)
        if ((byte & 0xC7) == 0x05) // relative to the instruction pointer, any register
            lead[byte] = 1;
    lead[0xE8] = 1; // call
    lead[0xE9] = 1; // jmp
    lead[0x0F] = 2; // jcc
    return lead;
}
inline constexpr std::array<std::uint8_t, 256> kOperandLead = operandLead();

} // namespace walk

template <typename Site>
std::size_t walkReferences(AddressMap& map, const Piece& piece, std::uint64_t at, View old,
                           Site site) {
    const bool ends = at + old.size() == piece.length;
    const std::uint64_t before = piece.addressBefore + at;
    const std::uint64_t after = piece.addressAfter + at;
    // Numbers among constants and unwinding tables that are no references would mostly be taken for
    // those to data.
    const bool codeOnly = piece.references == References::fromSelf;
    const auto foretell = [&]<typename Word>(std::size_t index, Word value,
                                             std::uint64_t fromBefore, std::uint64_t fromAfter) {
        const auto distance =
            static_cast<std::uint64_t>(static_cast<std::make_signed_t<Word>>(value));
        const std::uint64_t target = fromBefore + distance;
        if (!(codeOnly ? map.isCode(target) : map.contains(target)))
            return false;
        const std::uint64_t moved = target + map.moved(target);
        const Word actual = site(index, static_cast<Word>(moved - fromAfter));
        const std::uint64_t became =
            fromAfter + static_cast<std::uint64_t>(static_cast<std::make_signed_t<Word>>(actual));
        if (became != moved)
            map.learn(target, became - target);
        return true;
    };

    if (piece.references == References::code) {
        std::size_t index = 0;
        while (index + 6 <= old.size()) {
            const std::size_t lead = walk::kOperandLead[static_cast<std::uint8_t>(old[index])];
            if (lead == 0 ||
                (lead == 2 && (static_cast<std::uint8_t>(old[index + 1]) & 0xF0) != 0x80)) {
                ++index;
                continue;
            }
            const std::size_t operand = index + lead;
            const auto value = walk::load<std::uint32_t>(old.data() + operand);
            index = foretell(operand, value, before + operand + 4, after + operand + 4)
                        ? operand + 4
                        : index + 1;
        }
        return ends ? old.size() : index;
    }

    const std::size_t width = piece.references == References::words ? 8 : 4;
    std::size_t index =
        static_cast<std::size_t>((width - (piece.from + at - piece.aligned) % width) % width);
    for (; index + width <= old.size(); index += width) {
        if (width == 8) {
            const auto value = walk::load<std::uint64_t>(old.data() + index);
            foretell(index, value, std::uint64_t{0}, std::uint64_t{0});
        } else {
            const auto value = walk::load<std::uint32_t>(old.data() + index);
            if (piece.references == References::fromSelf)
                foretell(index, value, before + index, after + index);
            else
                foretell(index, value, piece.beginBefore, piece.beginAfter);
        }
    }
    return ends ? old.size() : std::min(index, old.size());
}

} // namespace patch
