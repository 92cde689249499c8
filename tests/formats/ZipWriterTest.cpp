#include "platform/formats/ZipWriter.h"

#include <gtest/gtest.h>

#include "tests/formats/ZipInTests.h"

namespace formats {
namespace {

using namespace ::testing;
using namespace formats::testing;

struct Item {
    ZipEntry entry;
    std::string contents = {};
};

ZipEntry named(const std::string& path, ZipKind kind = ZipKind::file) {
    return {.path = path, .kind = kind};
}

std::string written(const std::vector<Item>& items, ZipWriter::Options options) {
    std::string archive;
    ZipWriter writer(
        [&archive](std::span<const std::byte> bytes) {
            archive.append(reinterpret_cast<const char*>(bytes.data()), bytes.size());
        },
        options);
    for (const Item& item : items)
        writer.add(item.entry, std::as_bytes(std::span(item.contents)));
    writer.finish();
    return archive;
}

std::string written(const std::vector<Item>& items) {
    return written(items, ZipWriter::Options{});
}

TEST(ZipWriter, WithoutMembersGivesTheShortestArchive) {
    EXPECT_EQ(written({}).size(), 22u);
}

TEST(ZipWriter, TheReaderGivesBackWhatWasAdded) {
    ZipEntry file = named("a/b");
    file.mode = 0751;
    file.modified = 1795230251;
    for (const bool zip64 : {false, true}) {
        const ZipReading reading = readArchive(written({{named("a", ZipKind::folder)},
                                                        {file, std::string(10000, 'x')},
                                                        {named("l", ZipKind::link), "a/b"}},
                                                       {.level = 9, .alwaysZip64 = zip64}));
        ASSERT_TRUE(reading.directory) << reading.error;
        const auto& members = reading.directory->members();
        ASSERT_EQ(members.size(), 3u);
        EXPECT_EQ(members[0].kind, ZipKind::folder);
        EXPECT_EQ(members[1].path, "a/b");
        EXPECT_EQ(members[1].mode, 0751);
        EXPECT_EQ(members[1].modified, 1795230251);
        EXPECT_EQ(members[1].size, 10000u);
        EXPECT_TRUE(members[1].deflated);
        EXPECT_EQ(members[2].kind, ZipKind::link);
        EXPECT_FALSE(members[2].deflated);
    }
}

TEST(ZipWriter, WhatDoesNotBecomeSmallerIsStored) {
    const ZipReading reading = readArchive(written({{named("a"), "x"}, {named("b"), "qwertz"}}));
    ASSERT_TRUE(reading.directory);
    EXPECT_FALSE(reading.directory->members()[0].deflated);
    EXPECT_FALSE(reading.directory->members()[1].deflated);
}

TEST(ZipWriter, LevelZeroStoresEverything) {
    const ZipReading reading =
        readArchive(written({{named("a"), std::string(1000, 'x')}}, {.level = 0}));
    ASSERT_TRUE(reading.directory);
    EXPECT_EQ(reading.directory->members()[0].packedSize, 1000u);
}

TEST(ZipWriter, MoreMembersThanTheOldEndRecordCountsNeedZip64) {
    std::vector<Item> items;
    for (int i = 0; i < 65536; ++i)
        items.push_back({named("f" + std::to_string(i))});
    const std::string archive = written(items);
    EXPECT_NE(archive.find(little(zip::kEnd64Mark, 4)), std::string::npos);
    const ZipReading reading = readArchive(archive);
    ASSERT_TRUE(reading.directory) << reading.error;
    EXPECT_EQ(reading.directory->members().size(), 65536u);
}

TEST(ZipWriter, TheDosTimeIsUtcAndBroughtIntoItsRange) {
    ZipEntry entry = named("a");
    for (const auto& [time, dos] : {std::pair<std::int64_t, std::uint64_t>{1795230250, 0x5D751885},
                                    {0, 0x00210000},
                                    {951782400, 0x285D0000}}) {
        entry.modified = time;
        const std::string archive = written({{entry}});
        EXPECT_EQ(archive.substr(10, 4), little(dos, 4)) << time;
    }
}

TEST(ZipWriter, TheSameCallsGiveTheSameBytes) {
    const std::vector<Item> items{{named("a"), std::string(5000, 'a')}};
    EXPECT_EQ(written(items), written(items));
}

} // namespace
} // namespace formats
