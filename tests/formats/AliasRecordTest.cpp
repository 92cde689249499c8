#include "platform/formats/AliasRecord.h"

#include <stdexcept>

#include <gtest/gtest.h>

#include "platform/formats/ResourceFork.h"
#include "tests/formats/BytesInTests.h"

namespace formats {
namespace {

using testing::bytesOf;
using testing::changed;
using testing::hex;
using testing::operator+;

AliasTarget target() {
    AliasTarget value;
    value.kind = AliasTarget::Kind::folder;
    value.volumeName = "Disk";
    value.volumeCreated = 0x01020304;
    value.folderNumber = 0x11121314;
    value.name = "Ä:b";
    value.number = 0x21222324;
    value.created = 0x31323334;
    value.type = fourCharacters("TEXT");
    value.creator = fourCharacters("ttxt");
    value.folderName = "me";
    value.path = "/me/Ä:b";
    value.mountPoint = "/Volumes/Disk";
    return value;
}

const Bytes kRecord = hex("00000000 00D8 0002 0001") + hex("04 4469736B") + Bytes(23) +
                      hex("01020304 482B 0000 11121314") + hex("03 80 2F 62") + Bytes(60) +
                      hex("21222324 31323334 54455854 74747874 FFFF FFFF 00000000 0000") +
                      Bytes(10) +
                      hex("0000 0002 6D65"
                          "000E 0008 0003 00C4 002F 0062"
                          "000F 000A 0004 0044 0069 0073 006B"
                          "0012 0008 2F6D652FC3843A62"
                          "0013 000D 2F566F6C756D65732F4469736B 00"
                          "FFFF 0000");

TEST(AliasRecord, FieldsStandAtTheirOffsets) {
    const Bytes record = writeAliasRecord(target());
    const auto at = [&](std::size_t offset, std::size_t length) {
        return Bytes(record.begin() + static_cast<std::ptrdiff_t>(offset),
                     record.begin() + static_cast<std::ptrdiff_t>(offset + length));
    };
    EXPECT_EQ(at(4, 2), hex("00 D8")) << "size";
    EXPECT_EQ(record.size(), 0xD8u);
    EXPECT_EQ(at(6, 2), hex("0002")) << "version";
    EXPECT_EQ(at(8, 2), hex("0001")) << "kind";
    EXPECT_EQ(at(10, 28), hex("04 4469736B") + Bytes(23)) << "volume name";
    EXPECT_EQ(at(38, 4), hex("01020304")) << "volume's date";
    EXPECT_EQ(at(42, 2), bytesOf("H+")) << "volume's signature";
    EXPECT_EQ(at(46, 4), hex("11121314")) << "folder number";
    EXPECT_EQ(at(50, 64), hex("03 80 2F 62") + Bytes(60)) << "name";
    EXPECT_EQ(at(114, 4), hex("21222324")) << "number";
    EXPECT_EQ(at(118, 4), hex("31323334")) << "date";
    EXPECT_EQ(at(122, 8), bytesOf("TEXTttxt")) << "type and creator";
    EXPECT_EQ(at(130, 4), hex("FFFF FFFF")) << "levels";
    EXPECT_EQ(at(150, 6), hex("0000 0002 6D65")) << "folder name";
    EXPECT_EQ(at(record.size() - 4, 4), hex("FFFF 0000")) << "end mark";
}

TEST(AliasRecord, AKnownImageIsWrittenByteForByte) {
    EXPECT_EQ(writeAliasRecord(target()), kRecord);
}

TEST(AliasRecord, AKnownImageIsRead) {
    EXPECT_EQ(readAliasRecord(kRecord), target());
}

TEST(AliasRecord, EveryTruncationIsRefused) {
    testing::forEachTruncation(writeAliasRecord(target()), [](auto part) {
        EXPECT_FALSE(readAliasRecord(part)) << part.size() << " bytes";
    });
}

TEST(AliasRecord, ARecordThatStatesLessThanItHoldsIsRefused) {
    const Bytes record = writeAliasRecord(target());
    for (std::uint8_t size = 0; size < record.size(); ++size)
        EXPECT_FALSE(readAliasRecord(changed(record, 5, {std::byte{size}}))) << int{size};
}

TEST(AliasRecord, BytesBehindTheRecordArePassedOver) {
    EXPECT_EQ(readAliasRecord(writeAliasRecord(target()) + bytesOf("more")), target());
}

TEST(AliasRecord, AnotherVersionIsRefused) {
    EXPECT_FALSE(readAliasRecord(changed(writeAliasRecord(target()), 6, hex("0003"))));
}

TEST(AliasRecord, NamesLongerThanTheirFieldsAreRefused) {
    const Bytes record = writeAliasRecord(target());
    EXPECT_TRUE(readAliasRecord(changed(record, 10, hex("1B"))));
    EXPECT_FALSE(readAliasRecord(changed(record, 10, hex("1C"))));
    EXPECT_TRUE(readAliasRecord(changed(record, 50, hex("3F"))));
    EXPECT_FALSE(readAliasRecord(changed(record, 50, hex("40"))));
}

TEST(AliasRecord, AUnicodeNameLongerThanItsExtraIsRefused) {
    const Bytes record = writeAliasRecord(target());
    EXPECT_FALSE(readAliasRecord(changed(record, 160, hex("0004"))));
    EXPECT_FALSE(readAliasRecord(changed(record, 160, hex("FFFF"))));
}

TEST(AliasRecord, ClassicNamesAreCutAndFullNamesKept) {
    AliasTarget value = target();
    value.name = std::string(40, 'n');
    value.volumeName = std::string(40, 'v');
    const Bytes record = writeAliasRecord(value);
    EXPECT_EQ(record[10], std::byte{27});
    EXPECT_EQ(record[50], std::byte{31});
    EXPECT_EQ(record[50 + 32], std::byte{0});
    EXPECT_EQ(readAliasRecord(record), value);
}

TEST(AliasRecord, WithoutUnicodeNamesTheClassicOnesAreGiven) {
    Bytes record = writeAliasRecord(target());
    record = changed(record, 150, hex("FFFF 0000"));
    const auto read = readAliasRecord(record);
    ASSERT_TRUE(read);
    EXPECT_EQ(read->name, "Ä:b");
    EXPECT_EQ(read->volumeName, "Disk");
    EXPECT_EQ(read->path, "");
}

TEST(AliasRecord, AnExtraOfAnotherKindIsPassedOver) {
    AliasTarget withoutFolderName = target();
    withoutFolderName.folderName.clear();
    EXPECT_EQ(readAliasRecord(changed(writeAliasRecord(target()), 150, hex("0009"))),
              withoutFolderName);
}

TEST(AliasRecord, ATargetThatNeedsMoreThan64KiBIsAnError) {
    AliasTarget value = target();
    value.path = std::string(65400, 'p');
    EXPECT_THROW(writeAliasRecord(value), std::length_error);
    value.path = std::string(65000, 'p');
    EXPECT_EQ(readAliasRecord(writeAliasRecord(value)), value);
}

TEST(AliasRecord, DatesCountFrom1904) {
    EXPECT_EQ(secondsSince1904(0), 2082844800u);
    EXPECT_EQ(secondsSince1904(-2082844800), 0u);
    EXPECT_EQ(secondsSince1904(-2082844801), 0u);
    EXPECT_EQ(secondsSince1904(2212122495), 0xFFFFFFFFu);
    EXPECT_EQ(secondsSince1904(4000000000), 0xFFFFFFFFu);
}

TEST(AliasRecord, RandomTargetsComeBackTheSame) {
    std::mt19937 random(1904);
    const auto number = [&] { return static_cast<std::uint32_t>(random()); };
    const auto name = [&](std::size_t most) {
        std::string text;
        for (std::size_t i = random() % most; i > 0; --i)
            text +=
                random() % 4 == 0 ? "€" : std::string(1, static_cast<char>('!' + random() % 90));
        return text;
    };
    for (int round = 0; round < 300; ++round) {
        const AliasTarget value{.kind = AliasTarget::Kind{static_cast<std::uint16_t>(random())},
                                .volumeName = name(60),
                                .volumeCreated = number(),
                                .folderNumber = number(),
                                .name = name(200),
                                .number = number(),
                                .created = number(),
                                .type = number(),
                                .creator = number(),
                                .folderName = name(80),
                                .path = name(2000),
                                .mountPoint = name(50)};
        ASSERT_EQ(readAliasRecord(writeAliasRecord(value)), value) << "round " << round;
    }
}

} // namespace
} // namespace formats
