#include "cp/cpprocess.h"

#include <cstring>
#include <regex>
#include <string>
#include <unistd.h>

#include <gtest/gtest.h>

#include "cp/private/RunningProcess.h"

using namespace Corvaldine::CP;

namespace {

CPUUID made() {
    CPUUID uuid{};
    EXPECT_TRUE(cpprocess_uuid(&uuid));
    return uuid;
}

} // namespace

TEST(Process, IsIdentifiedByItsNumber) {
    ProcessSerialNumber id;
    ASSERT_TRUE(cpprocess_id(&id));
    EXPECT_EQ(id.highLongOfPSN, 0u);
    EXPECT_EQ(id.lowLongOfPSN, static_cast<std::uint32_t>(::getpid()));
    EXPECT_FALSE(cpprocess_id(nullptr));
}

TEST(Process, ItsExecutableIsFound) {
    ProcessSerialNumber id;
    ASSERT_TRUE(cpprocess_id(&id));
    EXPECT_TRUE(Private::process_executable(id).ends_with("/test_cp_paths"));
    id.lowLongOfPSN = 0x7FFFFFFF;
    EXPECT_EQ(Private::process_executable(id), "");
}

TEST(UniqueIdentifiers, AreRandomOfVersionFour) {
    const CPUUID first = made();
    EXPECT_EQ(first[6] >> 4, 4);
    EXPECT_EQ(first[8] >> 6, 2);
    EXPECT_FALSE(cpprocess_uuid_compare(first, made()));
    EXPECT_FALSE(cpprocess_uuid(nullptr));
}

TEST(UniqueIdentifiers, AreWrittenInUpperCaseInTheOrderOfTheirBytes) {
    const CPUUID uuid{0xAB, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 0xCD};
    char text[37];
    ASSERT_TRUE(cpprocess_uuid_to_string(uuid, text, sizeof text));
    EXPECT_STREQ(text, "AB010203-0405-0607-0809-0A0B0C0D0ECD");
}

TEST(UniqueIdentifiers, TheTextNeedsRoomForItsNul) {
    const CPUUID uuid = made();
    char text[38] = "untouched";
    EXPECT_FALSE(cpprocess_uuid_to_string(uuid, text, 36));
    EXPECT_FALSE(cpprocess_uuid_to_string(uuid, text, 0));
    EXPECT_FALSE(cpprocess_uuid_to_string(uuid, text, -1));
    EXPECT_FALSE(cpprocess_uuid_to_string(uuid, nullptr, 37));
    EXPECT_STREQ(text, "untouched");
    text[37] = 'x';
    EXPECT_TRUE(cpprocess_uuid_to_string(uuid, text, 37));
    EXPECT_EQ(std::strlen(text), 36u);
    EXPECT_EQ(text[37], 'x');
}

TEST(UniqueIdentifiers, AreTheSameAfterTheWayThroughText) {
    const CPUUID uuid = made();
    char text[37];
    CPUUID back{};
    ASSERT_TRUE(cpprocess_uuid_to_string(uuid, text, sizeof text));
    ASSERT_TRUE(cpprocess_uuid_from_string(text, &back));
    EXPECT_TRUE(cpprocess_uuid_compare(uuid, back));
}

TEST(UniqueIdentifiers, LowerCaseIsReadToo) {
    CPUUID uuid{};
    ASSERT_TRUE(cpprocess_uuid_from_string("ab010203-0405-0607-0809-0a0b0c0d0ecd", &uuid));
    EXPECT_EQ(uuid[0], 0xAB);
}

TEST(UniqueIdentifiers, OtherTextIsRefusedAndLeavesTheOutputUntouched) {
    const CPUUID before = made();
    CPUUID uuid = before;
    for (const char* text :
         {"not-a-uuid", "", "AB010203-0405-0607-0809-0A0B0C0D0ECD0",
          "AB010203-0405-0607-0809-0A0B0C0D0EC", "AB01020300405-0607-0809-0A0B0C0D0ECD",
          "AB010203-0405-0607-0809-0A0B0C0D0E\xC3\xA9", "GB010203-0405-0607-0809-0A0B0C0D0ECD"})
        EXPECT_FALSE(cpprocess_uuid_from_string(text, &uuid)) << text;
    EXPECT_FALSE(cpprocess_uuid_from_string(nullptr, &uuid));
    EXPECT_FALSE(cpprocess_uuid_from_string("AB010203-0405-0607-0809-0A0B0C0D0ECD", nullptr));
    EXPECT_TRUE(cpprocess_uuid_compare(uuid, before));
}

TEST(UniqueIdentifiers, DifferInAnyByte) {
    const CPUUID uuid = made();
    for (std::size_t i = 0; i < uuid.size(); ++i) {
        CPUUID other = uuid;
        other[i] ^= 1;
        EXPECT_FALSE(cpprocess_uuid_compare(uuid, other)) << i;
    }
}
