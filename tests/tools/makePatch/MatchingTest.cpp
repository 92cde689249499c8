#include "tools/makePatch/Matching.h"

#include <gtest/gtest.h>

#include "tests/tools/makePatch/PairsOfFiles.h"
#include "tools/makePatch/SuffixIndex.h"

namespace tools {
namespace {

using patch::Bytes;
using patch::Match;
using patch::MemoryFile;
using patch::View;

/// Each stretch of 16 bits once: nothing comes again, and everything begins as much else does.
Bytes deBruijn(std::size_t size) {
    Bytes bytes(size);
    std::uint32_t state = 1;
    for (std::byte& byte : bytes) {
        unsigned value = 0;
        for (int bit = 0; bit < 8; ++bit) {
            const unsigned next =
                ((state >> 23) ^ (state >> 22) ^ (state >> 21) ^ (state >> 16)) & 1;
            state = (state << 1 | next) & 0xFFFFFF;
            value = value << 1 | next;
        }
        byte = static_cast<std::byte>(value);
    }
    return bytes;
}

TEST(Matching, AMatchLiesInBothFilesAndMatchesDoNotOverlap) {
    for (const tests::Pair& pair : tests::pairsOfFiles()) {
        std::uint64_t to = 0;
        for (const Match& match : matchesOf(MemoryFile(pair.before), MemoryFile(pair.after))) {
            EXPECT_GT(match.length, 0u);
            EXPECT_GE(match.to, to);
            to = match.to + match.length;
            EXPECT_LE(to, pair.after.size());
            EXPECT_LE(match.from + match.length, pair.before.size());
        }
    }
}

TEST(Matching, TheSameFileIsOneMatch) {
    const MemoryFile file(tests::randomBytes(100000, 1));
    const std::vector<Match> whole{{0, 0, file.size()}};
    EXPECT_EQ(matchesOf(file, file), whole);
    EXPECT_EQ(matchesOf(file, file, {.before = 30000, .after = 10000}), whole);
}

TEST(Matching, WhatMovedIsFoundWhereItWas) {
    const Bytes text = tests::randomBytes(40000, 1);
    Bytes turned(text.begin() + 25000, text.end());
    turned.insert(turned.end(), text.begin(), text.begin() + 25000);
    EXPECT_EQ(matchesOf(MemoryFile(text), MemoryFile(turned)),
              (std::vector<Match>{{25000, 0, 15000}, {0, 15000, 25000}}));
}

TEST(Matching, NothingMatchesAnEmptyFile) {
    EXPECT_TRUE(matchesOf(MemoryFile(), MemoryFile(tests::randomBytes(10, 1))).empty());
    EXPECT_TRUE(matchesOf(MemoryFile(tests::randomBytes(10, 1)), MemoryFile()).empty());
}

TEST(SuffixIndex, FindsTheLongestStretchAndAmongEqualsOneNearby) {
    const Bytes text = patch::bytesOf("xabcd--abcx--abcdey--abcx");
    const SuffixIndex index{View(text)};
    EXPECT_EQ(index.longest(patch::bytesOf("abcdef"), 0).length, 5u);
    EXPECT_EQ(index.longest(patch::bytesOf("abcdef"), 0).at, 13u);
    EXPECT_EQ(index.longest(patch::bytesOf("abcx!"), 0).at, 7u);
    EXPECT_EQ(index.longest(patch::bytesOf("abcx!"), 25).at, 21u);
    EXPECT_EQ(index.longest(patch::bytesOf("QQ"), 0).length, 0u);
    for (const char* shortText : {"", "a"})
        EXPECT_EQ(SuffixIndex(View(patch::bytesOf(shortText))).longest(text, 0).length, 0u);
}

struct Growing {
    const char* name;
    Bytes (*before)(std::size_t size);
    Bytes (*after)(std::size_t size);
};

/// Every so many bytes another one, where matches end just when they become promising.
Bytes zerosWithMarks(std::size_t size, std::size_t distance) {
    Bytes bytes(size);
    for (std::size_t at = distance; at < size; at += distance)
        bytes[at] = static_cast<std::byte>(at / distance);
    return bytes;
}

class MatchingEffortOf : public ::testing::TestWithParam<Growing> {};

TEST_P(MatchingEffortOf, GrowsAsTheFilesDo) {
    constexpr std::size_t kSmall = std::size_t{1} << 20;
    const auto effortFor = [&](std::size_t size) {
        MatchingEffort effort;
        const MemoryFile before(GetParam().before(size));
        const MemoryFile after(GetParam().after(size));
        const auto matches = matchesOf(before, after, {}, &effort);
        EXPECT_LE(matches.size(), size / 8);
        return effort;
    };
    const MatchingEffort small = effortFor(kSmall);
    const MatchingEffort large = effortFor(4 * kSmall);
    EXPECT_LE(large.bytes, 6 * small.bytes + kSmall);
    EXPECT_LE(large.looks, 6 * small.looks + 1000);
    EXPECT_LE(large.bytes, 60 * 4 * kSmall);
    EXPECT_LE(large.looks, 4 * kSmall);
}

INSTANTIATE_TEST_SUITE_P(
    Contents, MatchingEffortOf,
    ::testing::Values(
        Growing{"zeros", [](std::size_t n) { return Bytes(n); },
                [](std::size_t n) { return Bytes(n); }},
        Growing{"zerosAndOneByteInTheMiddle", [](std::size_t n) { return Bytes(n); },
                [](std::size_t n) {
                    Bytes bytes(n);
                    bytes[n / 2] = std::byte{1};
                    return bytes;
                }},
        Growing{"zerosAgainstMarks", [](std::size_t n) { return Bytes(n); },
                [](std::size_t n) { return zerosWithMarks(n, 1000); }},
        Growing{"marksAgainstOtherMarks", [](std::size_t n) { return zerosWithMarks(n, 900); },
                [](std::size_t n) { return zerosWithMarks(n, 1000); }},
        Growing{"marksCloseTogether", [](std::size_t n) { return zerosWithMarks(n, 30); },
                [](std::size_t n) { return zerosWithMarks(n, 31); }},
        Growing{"aPeriod", [](std::size_t n) { return tests::repeated("ab", n); },
                [](std::size_t n) { return tests::repeated("ab", n + 1); }},
        Growing{"aPeriodAgainstAnother", [](std::size_t n) { return tests::repeated("ab", n); },
                [](std::size_t n) { return tests::repeated("aab", n); }},
        Growing{"eachStretchOnce", [](std::size_t n) { return deBruijn(n); },
                [](std::size_t n) { return deBruijn(n + 3); }},
        Growing{"noise", [](std::size_t n) { return tests::randomBytes(n, 1); },
                [](std::size_t n) { return tests::randomBytes(n, 2); }}),
    [](const auto& each) { return std::string(each.param.name); });

TEST(Matching, ThirtyTwoMegabytesOfZerosAreOneMatch) {
    const MemoryFile zeros(Bytes(std::size_t{32} << 20));
    MatchingEffort effort;
    EXPECT_EQ(matchesOf(zeros, zeros, {}, &effort).size(), 1u);
    EXPECT_LE(effort.looks, 10u);
}

} // namespace
} // namespace tools
