#include "patcher/format/Addresses.h"

#include <random>

#include <gtest/gtest.h>

namespace patch {
namespace {

constexpr std::uint64_t kAddress = 0x1000;
constexpr std::uint64_t kSize = 10000;

/// One stretch of each file, at the same address.
Layout layoutOf(References references) {
    return {.before = {{0, kSize, kAddress, references}},
            .after = {{0, 2 * kSize, kAddress, References::none}},
            .lowest = kAddress,
            .extent = 2 * kSize};
}

std::uint64_t movedBy(const AddressMap& map, std::uint64_t offset) {
    return map.moved(kAddress + offset);
}

TEST(AddressMap, AnAddressMovesWithTheMatchThatHoldsItOrTheOneBefore) {
    const Layout layout = layoutOf(References::none);
    AddressMap map(layout);
    map.add({.from = 1000, .to = 1010, .length = 100});
    map.add({.from = 2000, .to = 2050, .length = 100});
    map.finish();
    EXPECT_EQ(movedBy(map, 1000), 10u);
    EXPECT_EQ(movedBy(map, 1099), 10u);
    EXPECT_EQ(movedBy(map, 1999), 10u) << "in no match: with the one before";
    EXPECT_EQ(movedBy(map, 2000), 50u);
    EXPECT_EQ(movedBy(map, 2 * kSize - 1), 50u);
    EXPECT_EQ(movedBy(map, 0), 10u) << "before all: with the first";
}

TEST(AddressMap, OfTwoMatchesOfTheSameBytesTheLongerTells) {
    const Layout layout = layoutOf(References::none);
    AddressMap map(layout);
    map.add({.from = 1000, .to = 1001, .length = 1000});
    map.add({.from = 1500, .to = 1502, .length = 700}); // what is left of it begins at 2000
    map.add({.from = 1600, .to = 1604, .length = 2000});
    map.finish();
    EXPECT_EQ(movedBy(map, 1599), 1u);
    EXPECT_EQ(movedBy(map, 1600), 4u);
    EXPECT_EQ(movedBy(map, 3599), 4u);
}

TEST(AddressMap, WhatWasLearnedCountsBeforeTheMatches) {
    const Layout layout = layoutOf(References::none);
    AddressMap map(layout);
    map.add({.from = 0, .to = 8, .length = 100});
    map.finish();
    map.learn(kAddress + 50, 123);
    EXPECT_EQ(movedBy(map, 50), 123u);
    EXPECT_EQ(movedBy(map, 51), 8u);
}

// A search in pages must find what a search through all does, whatever the matches.
TEST(AddressMap, NeighboursAgreeUnlessAMatchBeginsBetween) {
    std::mt19937 random(1);
    for (int round = 0; round < 50; ++round) {
        const Layout layout = layoutOf(References::none);
        AddressMap map(layout);
        std::vector<bool> begins(kSize + 1);
        for (int i = 0; i < 40; ++i) {
            const std::uint64_t from = random() % kSize;
            const std::uint64_t length = 1 + random() % (kSize - from);
            map.add({.from = from, .to = random() % kSize, .length = length});
            begins[from] = begins[from + length] = true;
        }
        map.finish();
        for (std::uint64_t offset = 1; offset < kSize; ++offset)
            if (!begins[offset]) {
                ASSERT_EQ(movedBy(map, offset), movedBy(map, offset - 1)) << offset;
            }
    }
}

TEST(Pieces, AreCutWhereAStretchOfEitherFileEnds) {
    const Layout layout{.before = {{10, 20, 0x100, References::code}},
                        .after = {{0, 25, 0x500, References::none}},
                        .lowest = 0,
                        .extent = 0x1000};
    Pieces pieces(layout, {.from = 5, .to = 5, .length = 40});
    std::vector<std::pair<std::uint64_t, std::uint64_t>> cuts;
    for (Piece piece; pieces.next(piece);) {
        cuts.emplace_back(piece.from, piece.length);
        EXPECT_EQ(piece.references == References::code, piece.from == 10);
        if (piece.from == 10) {
            EXPECT_EQ(piece.addressBefore, 0x100u);
            EXPECT_EQ(piece.addressAfter, 0x50Au);
        }
    }
    EXPECT_EQ(cuts, (std::vector<std::pair<std::uint64_t, std::uint64_t>>{
                        {5, 5}, {10, 15}, {25, 5}, {30, 15}}));
}

TEST(References, InCodeAreFoundAndForetoldByTheirTargets) {
    Layout layout = layoutOf(References::code);
    AddressMap map(layout);
    map.add({.from = 0, .to = 0, .length = 500});
    map.add({.from = 500, .to = 600, .length = 500});
    map.finish();
    Bytes code(64, std::byte{0x90});
    code[3] = std::byte{0xE8}; // call of 700
    const std::uint32_t distance = 700 - 8;
    for (unsigned i = 0; i < 4; ++i)
        code[4 + i] = static_cast<std::byte>(distance >> 8 * i);
    code[20] = std::byte{0xE9}; // jmp to nowhere
    code[23] = std::byte{0x7F};
    code[24] = std::byte{0x7F};
    Pieces pieces(layout, {.from = 0, .to = 0, .length = code.size()});
    Piece piece;
    ASSERT_TRUE(pieces.next(piece));
    std::vector<std::size_t> found;
    const std::size_t done =
        walkReferences(map, piece, 0, code, [&](std::size_t at, auto foretold) {
            found.push_back(at);
            EXPECT_EQ(foretold, distance + 100);
            return foretold;
        });
    EXPECT_EQ(done, code.size());
    EXPECT_EQ(found, std::vector<std::size_t>{4});
}

} // namespace
} // namespace patch
