#include "platform/formats/VersionResource.h"

#include <gtest/gtest.h>

#include "tests/formats/BytesInTests.h"

namespace formats {
namespace {

using testing::bytesOf;
using testing::hex;

// Version 16.2.1 beta 3 for region 0 with two texts.
const Bytes kVersion = hex("16 21 60 03 0001 03 312E32 04 4C6F6E67");

VersionResource version() {
    return {.major = 0x16,
            .minorAndBug = 0x21,
            .stage = 0x60,
            .nonRelease = 3,
            .region = 1,
            .shortVersion = "1.2",
            .longVersion = "Long"};
}

TEST(VersionResource, AKnownImageIsRead) {
    EXPECT_EQ(readVersionResource(kVersion), version());
}

TEST(VersionResource, AKnownImageIsWrittenByteForByte) {
    EXPECT_EQ(writeVersionResource(version()), kVersion);
}

TEST(VersionResource, EveryTruncationIsRefused) {
    testing::forEachTruncation(kVersion, [](auto part) {
        EXPECT_FALSE(readVersionResource(part)) << part.size() << " bytes";
    });
}

TEST(VersionResource, TheFourBytesAreGivenAsTheyStand) {
    EXPECT_EQ(versionBytes(kVersion), (std::array<std::uint8_t, 4>{0x16, 0x21, 0x60, 0x03}));
}

TEST(VersionResource, TheFourBytesAreGivenAlsoWhenTheRestIsCutOff) {
    EXPECT_EQ(versionBytes(hex("01020304")), (std::array<std::uint8_t, 4>{1, 2, 3, 4}));
    EXPECT_FALSE(versionBytes(hex("010203")));
}

TEST(VersionResource, LongTextsAreCut) {
    VersionResource value = version();
    value.shortVersion = std::string(300, 's');
    const auto read = readVersionResource(writeVersionResource(value));
    ASSERT_TRUE(read);
    EXPECT_EQ(read->shortVersion, std::string(255, 's'));
    EXPECT_EQ(read->longVersion, "Long");
}

} // namespace
} // namespace formats
