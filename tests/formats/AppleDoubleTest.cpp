#include "platform/formats/AppleDouble.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/formats/BytesInTests.h"

namespace formats {
namespace {

using testing::bytesOf;
using testing::changed;
using testing::hex;
using testing::operator+;

// Finder information and a resource fork of three bytes, as RFC 1740 lays them out.
const Bytes kPlain = hex("00051607 00020000 00000000 00000000 00000000 00000000 0002"
                         "00000009 00000032 00000020"
                         "00000002 00000052 00000003"
                         "5445585474747874 0400 000000000000 00000000000000000000000000000000"
                         "414243");

// The same with two extended attributes: "a" is "xyz", "user.tag" is empty.
const Bytes kWithAttributes =
    hex("00051607 00020000 00000000 00000000 00000000 00000000 0002"
        "00000009 00000032 0000006D"
        "00000002 0000009F 00000003"
        "5445585474747874 0400 000000000000 00000000000000000000000000000000"
        "0000"
        "41545452 00000000 0000009F 0000009C 00000003 00000000 00000000 00000000 0000 0002"
        "0000009C 00000003 0000 02 6100 000000"
        "0000009F 00000000 0000 09 757365722E74616700"
        "78797A"
        "414243");

AppleDouble plainValue() {
    AppleDouble value;
    std::ranges::copy(hex("5445585474747874 0400"), value.finderInformation.begin());
    value.resourceFork = bytesOf("ABC");
    return value;
}

AppleDouble valueWithAttributes() {
    AppleDouble value = plainValue();
    value.attributes = {{"a", bytesOf("xyz")}, {"user.tag", {}}};
    return value;
}

TEST(AppleDouble, AKnownImageIsRead) {
    EXPECT_EQ(readAppleDouble(kPlain), plainValue());
}

TEST(AppleDouble, AKnownImageIsWrittenByteForByte) {
    EXPECT_EQ(writeAppleDouble(plainValue()), kPlain);
}

TEST(AppleDouble, AKnownImageWithAttributesIsRead) {
    EXPECT_EQ(readAppleDouble(kWithAttributes), valueWithAttributes());
}

TEST(AppleDouble, AKnownImageWithAttributesIsWrittenByteForByte) {
    EXPECT_EQ(writeAppleDouble(valueWithAttributes()), kWithAttributes);
}

TEST(AppleDouble, EveryTruncationIsRefused) {
    for (const Bytes& image : {kPlain, kWithAttributes})
        testing::forEachTruncation(image, [](auto part) {
            EXPECT_FALSE(readAppleDouble(part)) << part.size() << " bytes";
        });
}

TEST(AppleDouble, BytesAfterTheEndArePassedOver) {
    EXPECT_EQ(readAppleDouble(kWithAttributes + bytesOf("more")), valueWithAttributes());
}

TEST(AppleDouble, AnotherMagicNumberOrVersionIsRefused) {
    EXPECT_FALSE(readAppleDouble(changed(kPlain, 0, hex("00051600"))));
    EXPECT_FALSE(readAppleDouble(changed(kPlain, 4, hex("00010000"))));
}

TEST(AppleDouble, OffsetsThatWouldWrapAroundAreRefused) {
    for (const std::size_t field : {30, 34, 42, 46})
        EXPECT_FALSE(readAppleDouble(changed(kPlain, field, hex("FFFFFFFF")))) << field;
    EXPECT_FALSE(readAppleDouble(changed(kPlain, 30, hex("FFFFFFF0 00000020"))));
    for (const std::size_t field : {120, 124, 140, 144})
        EXPECT_FALSE(readAppleDouble(changed(kWithAttributes, field, hex("FFFFFFFF")))) << field;
}

TEST(AppleDouble, MoreEntriesThanThereAreIsRefused) {
    EXPECT_FALSE(readAppleDouble(changed(kPlain, 24, hex("FFFF"))));
    EXPECT_FALSE(readAppleDouble(changed(kWithAttributes, 118, hex("FFFF"))));
}

TEST(AppleDouble, TheSameEntryTwiceIsRefused) {
    EXPECT_FALSE(readAppleDouble(changed(kPlain, 38, hex("00000009 00000032 00000020"))));
}

TEST(AppleDouble, AnEntryOfAnotherKindIsPassedOver) {
    AppleDouble withoutFork = plainValue();
    withoutFork.resourceFork.clear();
    EXPECT_EQ(readAppleDouble(changed(kPlain, 38, hex("00000008"))), withoutFork);
}

TEST(AppleDouble, ShortFinderInformationIsRefused) {
    EXPECT_FALSE(readAppleDouble(changed(kPlain, 34, hex("0000001F"))));
}

TEST(AppleDouble, WithoutTheMarkThereAreNoAttributes) {
    EXPECT_EQ(readAppleDouble(changed(kWithAttributes, 84, hex("00000000"))), plainValue());
}

TEST(AppleDouble, AnAttributeWithoutANameIsRefused) {
    EXPECT_FALSE(readAppleDouble(changed(kWithAttributes, 131, hex("00"))));
    EXPECT_FALSE(readAppleDouble(changed(kWithAttributes, 130, hex("00"))));
}

TEST(AppleDouble, AnAttributeNameWithoutItsZeroByteIsRefused) {
    EXPECT_FALSE(readAppleDouble(changed(kWithAttributes, 132, hex("62"))));
}

TEST(AppleDouble, AttributesThatShareTheirBytesToFillMemoryAreRefused) {
    // Both values claim the whole file.
    Bytes image = changed(kWithAttributes, 120, hex("00000000 000000A2"));
    EXPECT_TRUE(readAppleDouble(image));
    image = changed(image, 136, hex("00000000 000000A2"));
    EXPECT_FALSE(readAppleDouble(image));
}

TEST(AppleDouble, AnAttributeNameThatTheFormatCannotHoldIsLeftOut) {
    AppleDouble value = plainValue();
    const std::string longest(254, 'n');
    value.attributes = {{"", bytesOf("1")},
                        {longest + "n", bytesOf("2")},
                        {std::string("a\0b", 3), bytesOf("3")},
                        {longest, bytesOf("4")}};
    AppleDouble expected = plainValue();
    expected.attributes = {{longest, bytesOf("4")}};
    EXPECT_EQ(readAppleDouble(writeAppleDouble(value)), expected);
}

TEST(AppleDouble, NothingAtAllStillMakesAFile) {
    EXPECT_EQ(readAppleDouble(writeAppleDouble({})), AppleDouble{});
    EXPECT_FALSE(AppleDouble{}.hasFinderInformation());
    EXPECT_TRUE(plainValue().hasFinderInformation());
}

TEST(AppleDouble, RandomValuesComeBackTheSame) {
    std::mt19937 random(1740);
    for (int round = 0; round < 300; ++round) {
        AppleDouble value;
        for (std::byte& byte : value.finderInformation)
            byte = static_cast<std::byte>(random());
        value.resourceFork = testing::randomBytes(random, 300);
        value.attributes.resize(random() % 6);
        for (ExtendedAttribute& attribute : value.attributes) {
            attribute.name = std::string(1 + random() % 254, static_cast<char>(1 + random() % 255));
            attribute.value = testing::randomBytes(random, 200);
        }
        ASSERT_EQ(readAppleDouble(writeAppleDouble(value)), value) << "round " << round;
    }
}

} // namespace
} // namespace formats
