#include "platform/formats/ResourceFork.h"

#include <algorithm>
#include <stdexcept>

#include <gtest/gtest.h>

#include "tests/formats/BytesInTests.h"

namespace formats {
namespace {

using testing::bytesOf;
using testing::changed;
using testing::hex;
using testing::operator+;

// Two types: 'vers' 1 without a name, 'STR ' 128 "Hi" and -1 without a name.
const Bytes kFork = hex("00000100 00000115 00000015 00000055") + Bytes(240) +
                    hex("00000002 0102"
                        "00000003 414243"
                        "00000004 FFFFFFFF") +
                    hex("00000100 00000115 00000015 00000055 00000000 0000 0000 001C 0052") +
                    hex("0001"
                        "76657273 0000 0012"
                        "53545220 0001 001E"
                        "0001 FFFF 00 000000 00000000"
                        "0080 0000 00 000006 00000000"
                        "FFFF FFFF 00 00000D 00000000"
                        "02 4869");
constexpr std::size_t kMap = 256 + 21;

std::vector<Resource> forkValue() {
    return {{fourCharacters("vers"), 1, "", hex("0102")},
            {fourCharacters("STR "), 128, "Hi", bytesOf("ABC")},
            {fourCharacters("STR "), -1, "", hex("FFFFFFFF")}};
}

TEST(ResourceFork, AKnownImageIsRead) {
    EXPECT_EQ(readResourceFork(kFork), forkValue());
}

TEST(ResourceFork, AKnownImageIsWrittenByteForByte) {
    EXPECT_EQ(writeResourceFork(forkValue()), kFork);
}

TEST(ResourceFork, OneResourceIsFoundByTypeAndNumber) {
    EXPECT_EQ(findResource(kFork, fourCharacters("STR "), -1), hex("FFFFFFFF"));
    EXPECT_EQ(findResource(kFork, fourCharacters("vers"), 1), hex("0102"));
    EXPECT_FALSE(findResource(kFork, fourCharacters("vers"), 2));
    EXPECT_FALSE(findResource(kFork, fourCharacters("VERS"), 1));
}

TEST(ResourceFork, EveryTruncationIsRefused) {
    testing::forEachTruncation(kFork, [](auto part) {
        EXPECT_FALSE(readResourceFork(part)) << part.size() << " bytes";
        EXPECT_FALSE(findResource(part, fourCharacters("vers"), 1)) << part.size() << " bytes";
    });
}

TEST(ResourceFork, AForkWithoutResourcesIsWellFormed) {
    const Bytes empty = writeResourceFork({});
    EXPECT_EQ(empty.size(), 286u);
    EXPECT_EQ(readResourceFork(empty), std::vector<Resource>{});
    EXPECT_FALSE(findResource(empty, fourCharacters("vers"), 1));
}

TEST(ResourceFork, OffsetsThatWouldWrapAroundAreRefused) {
    for (const std::size_t field : {0, 4, 8, 12})
        EXPECT_FALSE(readResourceFork(changed(kFork, field, hex("FFFFFFFF")))) << field;
    EXPECT_FALSE(readResourceFork(changed(kFork, 0, hex("FFFFFF00"))));
}

TEST(ResourceFork, HostileOffsetsInTheMapAreRefused) {
    EXPECT_FALSE(readResourceFork(changed(kFork, kMap + 24, hex("FFF0")))) << "type list";
    EXPECT_FALSE(readResourceFork(changed(kFork, kMap + 26, hex("FFF0")))) << "name list";
    EXPECT_FALSE(readResourceFork(changed(kFork, kMap + 28, hex("FFFE")))) << "number of types";
    EXPECT_FALSE(readResourceFork(changed(kFork, kMap + 34, hex("FFFF")))) << "number of a type";
    EXPECT_FALSE(readResourceFork(changed(kFork, kMap + 36, hex("FFF0")))) << "reference list";
    EXPECT_FALSE(readResourceFork(changed(kFork, kMap + 51, hex("FFFFFF")))) << "resource";
    EXPECT_FALSE(readResourceFork(changed(kFork, kMap + 60, hex("FFF0")))) << "name";
}

TEST(ResourceFork, AResourceThatReachesPastTheDataIsRefused) {
    EXPECT_FALSE(readResourceFork(changed(kFork, 256, hex("00000012"))));
    EXPECT_FALSE(readResourceFork(changed(kFork, 256, hex("FFFFFFFF"))));
    EXPECT_FALSE(findResource(changed(kFork, 256, hex("FFFFFFFF")), fourCharacters("vers"), 1));
}

TEST(ResourceFork, ResourcesThatShareTheirBytesToFillMemoryAreRefused) {
    // All three are the whole data part.
    Bytes image = changed(kFork, 256, hex("00000011"));
    EXPECT_EQ(findResource(image, fourCharacters("vers"), 1)->size(), 17u);
    for (const std::size_t reference : {46, 58, 70})
        image = changed(image, kMap + reference + 5, hex("000000"));
    EXPECT_FALSE(readResourceFork(image));
}

TEST(ResourceFork, TypesThatShareTheirListsToMultiplyResourcesAreRefused) {
    // A map of a thousand types, each of which claims the same thousand resources.
    Bytes map = Bytes(24) + hex("001C FFFF 03E7");
    for (int type = 0; type < 1000; ++type)
        map = map + hex("41414141 03E7 0002");
    const Bytes fork = hex("00000010 00000014 00000004 00001F5E") + hex("00000000") + map;
    ASSERT_EQ(map.size(), 0x1F5Eu);
    EXPECT_FALSE(readResourceFork(fork));
    EXPECT_FALSE(findResource(fork, fourCharacters("AAAA"), 1));
}

TEST(ResourceFork, TypesStandTogetherInTheOrderOfTheirFirstResource) {
    const auto a = fourCharacters("AAAA");
    const auto b = fourCharacters("BBBB");
    const std::vector<Resource> mixed{{b, 2, "", {}}, {a, 1, "", {}}, {b, 1, "", {}}};
    const std::vector<Resource> grouped{{b, 2, "", {}}, {b, 1, "", {}}, {a, 1, "", {}}};
    EXPECT_EQ(readResourceFork(writeResourceFork(mixed)), grouped);
}

TEST(ResourceFork, WhatTheFormatCannotHoldIsAnError) {
    const auto type = fourCharacters("TEXT");
    EXPECT_THROW(writeResourceFork({{type, 1, std::string(256, 'n'), {}}}), std::length_error);
    EXPECT_THROW(writeResourceFork(std::vector<Resource>(5500, Resource{type, 1, "", {}})),
                 std::length_error);
    EXPECT_THROW(writeResourceFork({{type, 1, "", Bytes(0x1000000)}, {type, 2, "", {}}}),
                 std::length_error);
    EXPECT_NO_THROW(writeResourceFork({{type, 1, std::string(255, 'n'), Bytes(0x1000000)}}));
}

TEST(ResourceFork, RandomResourcesComeBackTheSame) {
    std::mt19937 random(286);
    for (int round = 0; round < 200; ++round) {
        std::vector<Resource> resources(random() % 12);
        for (Resource& resource : resources) {
            resource.type = fourCharacters("AAAA") + static_cast<std::uint32_t>(random() % 3);
            resource.number = static_cast<std::int16_t>(random());
            resource.name = std::string(random() % 256, static_cast<char>(random()));
            resource.data = testing::randomBytes(random, 400);
        }
        const auto read = readResourceFork(writeResourceFork(resources));
        ASSERT_TRUE(read) << "round " << round;
        EXPECT_TRUE(std::ranges::is_permutation(*read, resources)) << "round " << round;
    }
}

} // namespace
} // namespace formats
