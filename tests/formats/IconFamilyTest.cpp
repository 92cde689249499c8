#include "platform/formats/IconFamily.h"

#include <gtest/gtest.h>

#include "platform/formats/ResourceFork.h"
#include "tests/formats/BytesInTests.h"

namespace formats {
namespace {

using testing::bytesOf;
using testing::changed;
using testing::hex;
using testing::operator+;

const Bytes kFamily = bytesOf("icns") + hex("0000001C") + bytesOf("ic07") +
                      hex("0000000C 89504E47") + bytesOf("TOC ") + hex("00000008");

TEST(IconFamily, ElementsAreGivenInTheirOrder) {
    EXPECT_EQ(iconFamilyElements(kFamily),
              (std::vector{fourCharacters("ic07"), fourCharacters("TOC ")}));
}

TEST(IconFamily, EveryTruncationIsRefused) {
    testing::forEachTruncation(kFamily, [](auto part) {
        EXPECT_FALSE(iconFamilyElements(part)) << part.size() << " bytes";
    });
}

TEST(IconFamily, BytesBehindTheFamilyArePassedOver) {
    EXPECT_EQ(iconFamilyElements(kFamily + bytesOf("more"))->size(), 2u);
}

TEST(IconFamily, AnotherMarkIsRefused) {
    EXPECT_FALSE(iconFamilyElements(changed(kFamily, 0, bytesOf("icnt"))));
}

TEST(IconFamily, AFamilyWithoutElementsIsRefused) {
    EXPECT_FALSE(iconFamilyElements(bytesOf("icns") + hex("00000008")));
    EXPECT_FALSE(iconFamilyElements(bytesOf("icns") + hex("00000000")));
}

TEST(IconFamily, AnElementOfAnImpossibleLengthIsRefused) {
    EXPECT_FALSE(iconFamilyElements(changed(kFamily, 12, hex("00000000")))) << "would never end";
    EXPECT_FALSE(iconFamilyElements(changed(kFamily, 12, hex("00000007"))));
    EXPECT_FALSE(iconFamilyElements(changed(kFamily, 12, hex("FFFFFFFF"))));
    EXPECT_FALSE(iconFamilyElements(changed(kFamily, 12, hex("0000000D")))) << "cuts the next one";
}

} // namespace
} // namespace formats
