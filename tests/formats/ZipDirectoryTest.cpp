#include "platform/formats/ZipDirectory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/formats/ZipInTests.h"

namespace formats {
namespace {

using namespace ::testing;
using namespace formats::testing;

ZipDirectory directoryOf(const std::vector<RawMember>& members) {
    ZipReading reading = readArchive(rawArchive(members));
    EXPECT_TRUE(reading.directory.has_value()) << reading.error;
    return reading.directory ? std::move(*reading.directory) : ZipDirectory{};
}

std::string refusalOf(const std::string& archive) {
    const ZipReading reading = readArchive(archive);
    EXPECT_FALSE(reading.directory.has_value());
    return reading.error;
}

std::string refusalOf(const std::vector<RawMember>& members) {
    return refusalOf(rawArchive(members));
}

std::vector<std::string> pathsOf(const ZipDirectory& directory) {
    std::vector<std::string> paths;
    for (const ZipMember& member : directory.members())
        paths.emplace_back(member.path);
    return paths;
}

TEST(ZipDirectory, AnArchiveWithoutMembersIsValid) {
    const std::string archive = rawArchive({});
    ASSERT_EQ(archive.size(), 22u);
    const ZipReading reading = readArchive(archive);
    ASSERT_TRUE(reading.directory);
    EXPECT_TRUE(reading.directory->members().empty());
    EXPECT_EQ(reading.directory->folders().size(), 1u);
}

TEST(ZipDirectory, AFileOfNoBytesIsAnError) {
    EXPECT_EQ(refusalOf(""), "it is empty");
}

TEST(ZipDirectory, SomethingElseIsNoArchive) {
    EXPECT_EQ(refusalOf(std::string(10, 'x')), "it is not a zip archive");
    EXPECT_EQ(refusalOf(std::string(100000, 'x')), "it is not a zip archive");
}

TEST(ZipDirectory, MembersComeInTheArchivesOrderWithAllThatIsSaidOfThem) {
    const ZipDirectory directory =
        directoryOf({folder("b"), packedFile("b/x", std::string(5000, 'x')), linkTo("a", "b/x")});
    ASSERT_THAT(pathsOf(directory), ElementsAre("b", "b/x", "a"));
    const ZipMember& file = directory.members()[1];
    EXPECT_EQ(file.kind, ZipKind::file);
    EXPECT_EQ(file.size, 5000u);
    EXPECT_LT(file.packedSize, 100u);
    EXPECT_EQ(file.crc, crcOf(std::string(5000, 'x')));
    EXPECT_EQ(file.mode, 0644);
    EXPECT_TRUE(file.deflated);
    EXPECT_EQ(directory.members()[0].kind, ZipKind::folder);
    EXPECT_EQ(directory.members()[2].kind, ZipKind::link);
    EXPECT_EQ(directory.totalSize(), 5003u);
}

TEST(ZipDirectory, PathsAndNamesEndWithANul) {
    const ZipDirectory directory = directoryOf({file("folder/name", "")});
    EXPECT_STREQ(directory.members()[0].path.data(), "folder/name");
    EXPECT_STREQ(directory.members()[0].name().data(), "name");
}

TEST(ZipDirectory, FoldersThatArePartOfAPathOnlyAreKnownParentsFirst) {
    const ZipDirectory directory = directoryOf({file("a/b/c", ""), folder("a"), file("a/d", "")});
    ASSERT_EQ(directory.folders().size(), 3u);
    EXPECT_EQ(directory.folders()[1].path, "a");
    EXPECT_EQ(directory.folders()[1].member, 1u);
    EXPECT_EQ(directory.folders()[2].path, "a/b");
    EXPECT_EQ(directory.folders()[2].parent, 1u);
    EXPECT_EQ(directory.folders()[2].member, ZipMember::kNone);
    EXPECT_EQ(directory.members()[0].folder, 2u);
    EXPECT_EQ(directory.members()[2].folder, 1u);
}

TEST(ZipDirectory, RightsToRunAsTheOwnerAreDropped) {
    RawMember member = file("a", "");
    member.mode = 0106755;
    EXPECT_EQ(directoryOf({member}).members()[0].mode, 0755);
}

TEST(ZipDirectory, AnArchiveMadeElsewhereTellsNoModes) {
    RawMember member = file("a", "");
    member.system = 0;
    EXPECT_FALSE(directoryOf({member}).members()[0].hasMode);
}

TEST(ZipDirectory, DevicesAndPipesAreOfTheOtherKind) {
    RawMember device = file("device", "");
    device.mode = 0060600;
    RawMember pipe = file("pipe", "");
    pipe.mode = 0010600;
    const ZipDirectory directory = directoryOf({device, pipe});
    EXPECT_EQ(directory.members()[0].kind, ZipKind::other);
    EXPECT_EQ(directory.members()[1].kind, ZipKind::other);
}

TEST(ZipDirectory, TheTopFoldersOwnMemberAndDotComponentsAreLeftOut) {
    EXPECT_THAT(pathsOf(directoryOf({folder("."), file("./a/./b", "")})), ElementsAre("a/b"));
}

TEST(ZipDirectory, PathsThatCouldLeadOutOfTheFolderAreRefused) {
    for (const char* path :
         {"../a", "a/../../b", "..", "a/..", "/etc/passwd", "a\\b", "..\\a", "a//b", "/"})
        EXPECT_NE(refusalOf({file(path, "")}), "") << path;
    EXPECT_NE(refusalOf({file("", "")}), "");
    EXPECT_NE(refusalOf({file(std::string("a\0b", 3), "")}), "");
}

TEST(ZipDirectory, NamesMayBeAsLongAsTheSystemAllows) {
    const std::string component(255, 'x');
    EXPECT_THAT(pathsOf(directoryOf({file(component, "")})), ElementsAre(component));
    EXPECT_THAT(refusalOf({file(component + "x", "")}), HasSubstr("longer than 255"));
    std::string path = "x";
    while (path.size() < 4096)
        path = "x/" + path;
    path = path.substr(path.size() - 4095);
    EXPECT_THAT(pathsOf(directoryOf({file(path, "")})), ElementsAre(path));
    EXPECT_THAT(refusalOf({file("xxx/" + path, "")}), HasSubstr("longer than 4096"));
}

TEST(ZipDirectory, NamesThatDifferByLetterCaseOnlyAreRefused) {
    EXPECT_THAT(refusalOf({file("Read me", ""), file("read ME", "")}),
                HasSubstr("would be the same"));
    EXPECT_NE(refusalOf({file("A/x", ""), file("a/y", "")}), "");
    EXPECT_NE(refusalOf({file("Straße", ""), file("STRASSE", "")}), "");
    EXPECT_NE(refusalOf({file("ΣΑΣ", ""), file("σας", "")}), "");
}

TEST(ZipDirectory, NamesThatDifferByUnicodeFormOnlyAreRefused) {
    EXPECT_NE(refusalOf({file("caf\u00E9", ""), file("cafe\u0301", "")}), "");
    EXPECT_NE(refusalOf({file("\u212Bngstr\u00F6m", ""), file("a\u030Angstro\u0308m", "")}), "");
}

TEST(ZipDirectory, TheSameNameTwiceIsRefusedButForFolders) {
    EXPECT_NE(refusalOf({file("a", "1"), file("a", "2")}), "");
    EXPECT_THAT(pathsOf(directoryOf({folder("a"), folder("a")})), ElementsAre("a", "a"));
}

TEST(ZipDirectory, AFileThatIsAlsoAFolderIsRefused) {
    EXPECT_NE(refusalOf({file("a", ""), file("a/b", "")}), "");
    EXPECT_NE(refusalOf({file("a/b", ""), file("A", "")}), "");
    EXPECT_NE(refusalOf({linkTo("a", "/etc"), file("a/passwd", "")}), "");
}

TEST(ZipDirectory, ArchivesCutOffAnywhereAreRefused) {
    const std::string archive =
        rawArchive({folder("a"), packedFile("a/b", "some text"), linkTo("c", "a/b")});
    ASSERT_TRUE(readArchive(archive).directory);
    for (std::size_t length = 0; length < archive.size(); ++length)
        EXPECT_FALSE(readArchive(archive.substr(0, length)).directory) << length;
}

TEST(ZipDirectory, BytesAddedAtEitherEndAreRefused) {
    const std::string archive = rawArchive({file("a", "text")});
    EXPECT_NE(refusalOf("x" + archive), "");
    EXPECT_NE(refusalOf(archive + "x"), "");
}

TEST(ZipDirectory, ACommentMayFollow) {
    RawEnd end;
    end.comment = std::string(65535, 'c');
    EXPECT_TRUE(readArchive(rawArchive({file("a", "text")}, end)).directory);
}

TEST(ZipDirectory, AnEndRecordThatCountsWronglyIsRefused) {
    const std::vector<RawMember> members{file("a", "text"), file("b", "text")};
    RawEnd end;
    for (const int by : {-1, 1, 60000}) {
        end = {};
        end.countMore = by;
        EXPECT_NE(refusalOf(rawArchive(members, end)), "") << by;
        end = {};
        end.lengthMore = by;
        EXPECT_NE(refusalOf(rawArchive(members, end)), "") << by;
        end = {};
        end.startMore = by;
        EXPECT_NE(refusalOf(rawArchive(members, end)), "") << by;
    }
}

TEST(ZipDirectory, SeveralDisksAreRefused) {
    RawEnd end;
    end.disk = 1;
    EXPECT_EQ(refusalOf(rawArchive({file("a", "")}, end)),
              "it is part of an archive of several files");
}

TEST(ZipDirectory, EncryptedMembersAreRefusedByName) {
    for (const std::uint16_t flag : {0x0001, 0x0041, 0x2001}) {
        RawMember member = file("secret", "text");
        member.flags = flag;
        EXPECT_EQ(refusalOf({file("a", ""), member}), "secret: it is encrypted");
    }
}

TEST(ZipDirectory, UnknownMethodsAreRefusedByName) {
    RawMember member = file("a", "text");
    member.method = 12;
    member.size = 4;
    EXPECT_EQ(refusalOf({member}), "a: it is packed by method 12, which is not supported");
}

TEST(ZipDirectory, AStoredMemberHasOneSize) {
    RawMember member = file("a", "text");
    member.size = 5;
    EXPECT_THAT(refusalOf({member}), HasSubstr("can't have"));
}

TEST(ZipDirectory, SizesBeyondWhatDeflateCanReachAreRefused) {
    RawMember member = packedFile("a", "");
    member.data = std::string(100, '\0');
    member.size = 103200;
    EXPECT_TRUE(readArchive(rawArchive({member})).directory);
    member.size = 103201;
    EXPECT_THAT(refusalOf({member}), HasSubstr("can't have"));
    member.size = 0xFFFFFFF0;
    EXPECT_THAT(refusalOf({member}), HasSubstr("can't have"));
}

TEST(ZipDirectory, HonestDensestDataIsTaken) {
    EXPECT_TRUE(
        readArchive(rawArchive({packedFile("zeros", std::string(50'000'000, '\0'))})).directory);
}

TEST(ZipDirectory, MembersThatShareDataAreRefused) {
    // The second member's directory entry is made to lead to the first one's data.
    std::string archive = rawArchive({file("a", "text"), file("b", "text")});
    const std::size_t entry = archive.rfind(little(zip::kCentralMark, 4));
    archive.replace(entry + 42, 4, little(0, 4));
    EXPECT_EQ(refusalOf(archive), "members share the same data");
}

TEST(ZipDirectory, DataOutsideTheArchiveIsRefused) {
    std::string archive = rawArchive({file("a", "text")});
    const std::size_t entry = archive.rfind(little(zip::kCentralMark, 4));
    archive.replace(entry + 42, 4, little(1000, 4));
    EXPECT_THAT(refusalOf(archive), HasSubstr("outside the archive"));
}

TEST(ZipDirectory, MoreThanFourMillionMembersAreRefusedBeforeMemoryIsTaken) {
    std::string end = little(zip::kEnd64Mark, 4) + little(44, 8) + little(0x2D2D, 4) +
                      little(0, 8) + little(4'000'001, 8) + little(4'000'001, 8) + little(0, 8) +
                      little(0, 8);
    end += little(zip::kLocator64Mark, 4) + little(0, 4) + little(0, 8) + little(1, 4);
    end += little(zip::kEndMark, 4) + little(0, 4) + little(0xFFFF, 2) + little(0xFFFF, 2) +
           little(0xFFFFFFFF, 4) + little(0xFFFFFFFF, 4) + little(0, 2);
    EXPECT_EQ(refusalOf(end), "it holds more than 4,000,000 members");
}

TEST(ZipDirectory, NamesSaidToBeUtf8AreTakenSoAndRefusedWhenTheyAreNot) {
    RawMember member = file("\u00E4", "");
    member.system = 0;
    member.flags = zip::kNamesAreUtf8;
    EXPECT_THAT(pathsOf(directoryOf({member})), ElementsAre("\u00E4"));
    member.name = "\xE4";
    EXPECT_EQ(refusalOf({member}), "a member's name is not UTF-8");
}

TEST(ZipDirectory, NamesFromUnixAreTakenAsUtf8WhenTheyAreIt) {
    RawMember member = file("\u00E4", "");
    EXPECT_THAT(pathsOf(directoryOf({member})), ElementsAre("\u00E4"));
    member.system = 19;
    EXPECT_THAT(pathsOf(directoryOf({member})), ElementsAre("\u00E4"));
}

TEST(ZipDirectory, OtherNamesAreInCodePage437) {
    RawMember member = file("\x84\xE1\xDB", "");
    EXPECT_THAT(pathsOf(directoryOf({member})), ElementsAre("\u00E4\u00DF\u2588"));
    member.name = "\u00E4";
    member.system = 0;
    EXPECT_THAT(pathsOf(directoryOf({member})), ElementsAre("\u251C\u00F1"));
}

TEST(ZipDirectory, TheUnicodePathFieldReplacesTheNameItBelongsTo) {
    RawMember member = file("?", "");
    member.system = 0;
    member.centralExtra =
        extraField(zip::kUnicodePathExtra, little(1, 1) + little(crcOf("?"), 4) + "\u4E2D");
    EXPECT_THAT(pathsOf(directoryOf({member})), ElementsAre("\u4E2D"));
    member.centralExtra =
        extraField(zip::kUnicodePathExtra, little(1, 1) + little(crcOf("!"), 4) + "\u4E2D");
    EXPECT_THAT(pathsOf(directoryOf({member})), ElementsAre("?"));
    member.centralExtra =
        extraField(zip::kUnicodePathExtra, little(1, 1) + little(crcOf("?"), 4) + "../x");
    EXPECT_NE(refusalOf({member}), "");
}

TEST(ZipDirectory, TimesAreThoseOfTheUnixFieldsElseTheClockOnTheWall) {
    RawMember member = file("a", "");
    member.dosDate = 46 << 9 | 11 << 5 | 21; // 21 November 2026
    member.dosTime = 3 << 11 | 4 << 5 | 5;   // 03:04:10
    EXPECT_TRUE(directoryOf({member}).members()[0].timeIsLocal);
    EXPECT_EQ(directoryOf({member}).members()[0].modified, 1795230250);
    member.centralExtra = extraField(zip::kOldUnixExtra, little(5, 4) + little(7, 4));
    EXPECT_EQ(directoryOf({member}).members()[0].modified, 7);
    member.centralExtra += extraField(zip::kTimesExtra, little(3, 1) + little(0xFFFFFFFF, 4));
    EXPECT_EQ(directoryOf({member}).members()[0].modified, -1);
    EXPECT_FALSE(directoryOf({member}).members()[0].timeIsLocal);
}

TEST(ZipDirectory, AnImpossibleDosDateIsBroughtIntoTheCalendar) {
    RawMember member = file("a", "");
    member.dosDate = 0;
    EXPECT_EQ(directoryOf({member}).members()[0].modified, 315532800);
}

TEST(ZipDirectory, LargeNumbersComeFromTheZip64Field) {
    std::string archive = rawArchive({file("a", "text")});
    const std::size_t entry = archive.rfind(little(zip::kCentralMark, 4));
    archive.replace(entry + 20, 8, std::string(8, '\xFF'));
    EXPECT_EQ(refusalOf(archive), "a member's Zip64 field is missing or damaged");
    const std::string extra = extraField(zip::kZip64Extra, little(4, 8) + little(4, 8));
    archive.replace(entry + 30, 2, little(extra.size(), 2));
    archive.insert(entry + 47, extra);
    const std::size_t end = archive.rfind(little(zip::kEndMark, 4));
    archive.replace(end + 12, 4, little(end - entry, 4));
    const ZipReading reading = readArchive(archive);
    ASSERT_TRUE(reading.directory) << reading.error;
    EXPECT_EQ(reading.directory->members()[0].size, 4u);
}

TEST(ZipDirectory, AnAppleDoubleFileKnowsTheMemberItDescribes) {
    const ZipDirectory directory =
        directoryOf({folder("a"), file("a/b", ""), file("__MACOSX/a/._b", ""),
                     file("__MACOSX/._a", ""), file("__MACOSX/a/._gone", ""), file("c/._d", "")});
    EXPECT_EQ(directory.members()[2].describes, 1u);
    EXPECT_EQ(directory.members()[3].describes, 0u);
    EXPECT_EQ(directory.members()[4].describes, ZipMember::kNone);
    EXPECT_EQ(directory.members()[5].describes, ZipMember::kNone);
}

TEST(ZipDirectory, AMemberInTheWayOfAnAppleDoubleFileIsRefused) {
    EXPECT_NE(refusalOf({file("a", ""), file("._a", ""), file("__MACOSX/._a", "")}), "");
}

TEST(ZipDirectory, SixtyThousandMembersAreRead) {
    std::vector<RawMember> members;
    for (int i = 0; i < 60000; ++i)
        members.push_back(file("d" + std::to_string(i / 100) + "/f" + std::to_string(i), ""));
    EXPECT_EQ(directoryOf(members).members().size(), 60000u);
}

TEST(ZipDirectory, ReadsThatFailAreAnError) {
    const ZipReading reading =
        readZipDirectory(1000, [](std::uint64_t, std::span<std::byte>) { return false; });
    EXPECT_EQ(reading.error, "it can't be read");
}

TEST(ZipDirectory, TheDataStartsBehindTheLocalHeadersOwnNameAndFields) {
    RawMember member = file("name", "text");
    member.localExtra = extraField(0x9999, "12345");
    const std::string archive = rawArchive({member});
    const ZipReading reading = readArchive(archive);
    ASSERT_TRUE(reading.directory);
    const auto header = std::as_bytes(std::span(archive)).first<kZipLocalHeaderLength>();
    EXPECT_EQ(zipDataStart(header, reading.directory->members()[0]), 30u + 4 + 9);
}

TEST(ZipDirectory, ALocalHeaderOfAnotherMethodIsNone) {
    std::string archive = rawArchive({file("name", "text")});
    const ZipReading reading = readArchive(archive);
    ASSERT_TRUE(reading.directory);
    archive[8] = 8;
    EXPECT_FALSE(zipDataStart(std::as_bytes(std::span(archive)).first<kZipLocalHeaderLength>(),
                              reading.directory->members()[0]));
}

} // namespace
} // namespace formats
