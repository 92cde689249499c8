#include "platform/posix/FinderFileStore.h"

#include <cerrno>
#include <chrono>
#include <map>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/formats/AliasRecord.h"
#include "platform/formats/ResourceFork.h"
#include "tests/formats/BytesInTests.h"
#include "tests/support/TemporaryFolder.h"

namespace posix {
namespace {

using formats::AppleDouble;
using formats::Bytes;
using formats::fourCharacters;
using formats::testing::bytesOf;
using formats::testing::hex;
using formats::testing::readFile;
using formats::testing::writeFile;
using formats::testing::operator+;
using ports::FinderInformation;
using Names = std::vector<std::string>;

const FinderInformation kText{fourCharacters("TEXT"), fourCharacters("ttxt"), 0x0040};
const FinderInformation kOther{fourCharacters("APPL"), fourCharacters("aplt"), 0x2000};
const Bytes kIcon = bytesOf("icns") + hex("00000014") + bytesOf("ic07") + hex("0000000C 89504E47");
const Bytes kOtherIcon = bytesOf("icns") + hex("00000010") + bytesOf("TOC ") + hex("00000008");

FinderBytes bytesWith(const Bytes& start) {
    FinderBytes bytes{};
    std::ranges::copy(start, bytes.begin());
    return bytes;
}

// A store in a folder of its own whose extended attributes are kept in memory, so that a test can
// look at them and refuse them on any file system.
class FinderFileStoreTest : public ::testing::Test {
  protected:
    std::string file(const std::string& name, const Bytes& bytes = {}) {
        writeFile(folder.path(name), bytes);
        return folder.path(name);
    }
    std::string directory(const std::string& name) {
        std::filesystem::create_directory(folder.path(name));
        return folder.path(name);
    }
    void refuseAttributesWith(int error) { refusal = error; }
    FinderInformation informationOf(const std::string& path) {
        const auto answer = store.finderInformation(path);
        EXPECT_EQ(answer.error, 0);
        return answer.information;
    }
    AppleDouble appleDouble(const std::string& name) {
        const auto value = formats::readAppleDouble(readFile(folder.path(name)));
        EXPECT_TRUE(value) << name;
        return value.value_or(AppleDouble{});
    }

    tests::TemporaryFolder folder;
    std::map<std::string, FinderBytes> attributes;
    std::map<std::string, Bytes> forks;
    int refusal = 0;
    FinderFileStore store{
        {.calls = {.readAttribute = [this](const std::string& path) -> std::optional<FinderBytes> {
                       const auto found = attributes.find(path);
                       if (found == attributes.end())
                           return std::nullopt;
                       return found->second;
                   },
                   .readFork = [this](const std::string& path) { return forks[path]; },
                   .writeAttribute =
                       [this](const std::string& path, const FinderBytes& value) {
                           if (refusal == 0)
                               attributes[path] = value;
                           return refusal;
                       },
                   .creationTime = [](const std::string&) { return std::int64_t{86400}; }}}};
};

TEST_F(FinderFileStoreTest, AnItemResolvesAndAMissingOneDoesNot) {
    EXPECT_EQ(store.resolve(file("a")), 0);
    EXPECT_EQ(store.resolve(folder.path()), 0);
    EXPECT_EQ(store.resolve(folder.path("none")), -43);
    std::filesystem::create_symlink("none", folder.path("dangling"));
    EXPECT_EQ(store.resolve(folder.path("dangling")), -43);
}

TEST_F(FinderFileStoreTest, InformationIsZeroWhereNoneIsKept) {
    EXPECT_EQ(informationOf(file("a")), FinderInformation{});
}

TEST_F(FinderFileStoreTest, InformationOfAMissingItemIsAnError) {
    EXPECT_EQ(store.finderInformation(folder.path("none")).error, -43);
    EXPECT_EQ(store.setFinderInformation(folder.path("none"), kText), -43);
}

TEST_F(FinderFileStoreTest, InformationComesFromTheAttributeBeforeTheAppleDoubleFile) {
    const std::string path = file("a");
    file("._a", formats::writeAppleDouble(
                    {.finderInformation = bytesWith(bytesOf("APPLaplt") + hex("2000")),
                     .resourceFork = {},
                     .attributes = {}}));
    EXPECT_EQ(informationOf(path), kOther);
    attributes[path] = bytesWith(bytesOf("TEXTttxt") + hex("0040"));
    EXPECT_EQ(informationOf(path), kText);
}

TEST_F(FinderFileStoreTest, InformationGoesIntoTheAttribute) {
    const std::string path = file("a");
    EXPECT_EQ(store.setFinderInformation(path, kText), 0);
    EXPECT_EQ(attributes.at(path), bytesWith(bytesOf("TEXTttxt") + hex("0040")));
    EXPECT_EQ(folder.names(), Names{"a"});
    EXPECT_EQ(informationOf(path), kText);
}

TEST_F(FinderFileStoreTest, BytesAfterTheFlagsStayAsTheyAre) {
    const std::string path = file("a");
    attributes[path].fill(std::byte{0xEE});
    EXPECT_EQ(store.setFinderInformation(path, kText), 0);
    FinderBytes expected;
    expected.fill(std::byte{0xEE});
    std::ranges::copy(bytesOf("TEXTttxt") + hex("0040"), expected.begin());
    EXPECT_EQ(attributes.at(path), expected);
}

TEST_F(FinderFileStoreTest, InformationGoesIntoANewAppleDoubleFileWhenAttributesAreRefused) {
    const std::string path = file("a", bytesOf("data"));
    for (const int error : {ENOTSUP, EPERM, ENOSPC}) {
        refuseAttributesWith(error);
        EXPECT_EQ(store.setFinderInformation(path, kText), 0);
        EXPECT_EQ(folder.names(), (Names{"._a", "a"}));
        EXPECT_EQ(informationOf(path), kText);
        EXPECT_EQ(readFile(path), bytesOf("data"));
        std::filesystem::remove(folder.path("._a"));
    }
}

TEST_F(FinderFileStoreTest, NoPermissionForTheAttributeIsAnError) {
    const std::string path = file("a");
    refuseAttributesWith(EACCES);
    EXPECT_EQ(store.setFinderInformation(path, kText), -61);
    EXPECT_EQ(folder.names(), Names{"a"});
}

TEST_F(FinderFileStoreTest, AnAppleDoubleFileKeepsItsForkAndAttributes) {
    const std::string path = file("a");
    AppleDouble value{.finderInformation = {},
                      .resourceFork = bytesOf("fork"),
                      .attributes = {{"user.tag", bytesOf("red")}}};
    file("._a", formats::writeAppleDouble(value));
    EXPECT_EQ(store.setFinderInformation(path, kText), 0);
    std::ranges::copy(bytesOf("TEXTttxt") + hex("0040"), value.finderInformation.begin());
    EXPECT_EQ(appleDouble("._a"), value);
    EXPECT_TRUE(attributes.empty());
    EXPECT_EQ(folder.names(), (Names{"._a", "a"}));
}

TEST_F(FinderFileStoreTest, InformationThatIsKeptInBothPlacesChangesInBoth) {
    const std::string path = file("a");
    file("._a", formats::writeAppleDouble({}));
    attributes[path] = {};
    EXPECT_EQ(store.setFinderInformation(path, kText), 0);
    EXPECT_EQ(attributes.at(path), appleDouble("._a").finderInformation);
    EXPECT_EQ(informationOf(path), kText);
}

TEST_F(FinderFileStoreTest, WhenOneOfBothPlacesFailsNeitherChanges) {
    const std::string path = file("a");
    const Bytes before = formats::writeAppleDouble({});
    file("._a", before);
    attributes[path] = {};
    refuseAttributesWith(EIO);
    EXPECT_EQ(store.setFinderInformation(path, kText), -36);
    EXPECT_EQ(readFile(folder.path("._a")), before);
    EXPECT_EQ(folder.names(), (Names{"._a", "a"}));
}

TEST_F(FinderFileStoreTest, AFileThatIsNoAppleDoubleFileIsNeverTouched) {
    const std::string path = file("a");
    file("._a", bytesOf("my notes"));
    EXPECT_EQ(store.setFinderInformation(path, kText), 0);
    EXPECT_EQ(informationOf(path), kText);
    attributes.clear();
    refuseAttributesWith(ENOTSUP);
    EXPECT_EQ(store.setFinderInformation(path, kText), -36);
    EXPECT_EQ(readFile(folder.path("._a")), bytesOf("my notes"));
}

TEST_F(FinderFileStoreTest, AnAppleDoubleFileIsNotReadThroughASymbolicLink) {
    const std::string path = file("a");
    AppleDouble value;
    value.finderInformation = bytesWith(bytesOf("TEXTttxt"));
    file("elsewhere", formats::writeAppleDouble(value));
    std::filesystem::create_symlink("elsewhere", folder.path("._a"));
    EXPECT_EQ(informationOf(path), FinderInformation{});
}

TEST_F(FinderFileStoreTest, QuestionsFollowSymbolicLinksAndChangesDoNot) {
    const std::string path = file("a");
    ASSERT_EQ(store.setFinderInformation(path, kText), 0);
    std::filesystem::create_symlink("a", folder.path("link"));
    EXPECT_EQ(informationOf(folder.path("link")), kText);
    EXPECT_EQ(store.setFinderInformation(folder.path("link"), kOther), -36);
    EXPECT_EQ(store.setFinderInformation(folder.path("link/"), kOther), -36);
    EXPECT_EQ(informationOf(path), kText);
    EXPECT_EQ(folder.names(), (Names{"a", "link"}));
}

TEST_F(FinderFileStoreTest, AResourceForkIsThatOfTheAppleDoubleFile) {
    const Bytes fork = formats::writeResourceFork({{fourCharacters("vers"), 1, "", hex("11")}});
    AppleDouble beside;
    beside.resourceFork = fork;
    file("._a", formats::writeAppleDouble(beside));
    EXPECT_EQ(store.resourceFork(file("a")), fork);
    std::filesystem::create_symlink("a", folder.path("link"));
    EXPECT_EQ(store.resourceFork(folder.path("link")), fork);
}

TEST_F(FinderFileStoreTest, AResourceForkInTheAttributeCountsBeforeThatOfTheAppleDoubleFile) {
    AppleDouble beside;
    beside.resourceFork = hex("11");
    file("._a", formats::writeAppleDouble(beside));
    const std::string path = file("a");
    forks[path] = hex("22");
    EXPECT_EQ(store.resourceFork(path), hex("22"));
    std::filesystem::create_symlink("a", folder.path("link"));
    EXPECT_EQ(store.resourceFork(folder.path("link")), hex("22"));
    forks[path] = {};
    EXPECT_EQ(store.resourceFork(path), hex("11"));
}

TEST_F(FinderFileStoreTest, WhereThereIsNoForkItIsEmpty) {
    EXPECT_EQ(store.resourceFork(file("a")), Bytes());
    EXPECT_EQ(store.resourceFork(folder.path("none")), Bytes());
    file("._a", bytesOf("no AppleDouble file"));
    EXPECT_EQ(store.resourceFork(folder.path("a")), Bytes());
    AppleDouble beside;
    beside.resourceFork = hex("00");
    file("._gone", formats::writeAppleDouble(beside));
    EXPECT_EQ(store.resourceFork(folder.path("gone")), Bytes());
}

TEST_F(FinderFileStoreTest, SlashesAtTheEndDoNotBelongToTheName) {
    directory("sub");
    refuseAttributesWith(ENOTSUP);
    EXPECT_EQ(store.setFinderInformation(folder.path("sub//"), kText), 0);
    EXPECT_EQ(store.setFinderInformation(folder.path("sub/."), kOther), 0);
    EXPECT_EQ(folder.names(), (Names{"._sub", "sub"}));
    EXPECT_EQ(informationOf(folder.path("sub")), kOther);
}

TEST_F(FinderFileStoreTest, AnAliasFileHasAnEmptyDataForkAndTheRecordAsResource) {
    const std::string target = file("target");
    const Bytes record = store.aliasRecord(target);
    EXPECT_EQ(store.createAliasFile(folder.path("alias"), record), 0);
    EXPECT_EQ(folder.names(), (Names{"._alias", "alias", "target"}));
    EXPECT_EQ(readFile(folder.path("alias")), Bytes{});
    const std::vector<formats::Resource> expected{{fourCharacters("alis"), 0, "", record}};
    EXPECT_EQ(formats::readResourceFork(appleDouble("._alias").resourceFork), expected);
}

TEST_F(FinderFileStoreTest, InformationOfAnAliasFileJoinsItsForkInTheAppleDoubleFile) {
    const Bytes record = store.aliasRecord(file("target"));
    ASSERT_EQ(store.createAliasFile(folder.path("alias"), record), 0);
    const FinderInformation alias{kText.type, kText.creator, FinderInformation::kIsAlias};
    EXPECT_EQ(store.setFinderInformation(folder.path("alias"), alias), 0);
    EXPECT_EQ(informationOf(folder.path("alias")), alias);
    EXPECT_TRUE(attributes.empty());
    const AppleDouble beside = appleDouble("._alias");
    EXPECT_EQ(beside.finderInformation, bytesWith(bytesOf("TEXTttxt") + hex("8000")));
    EXPECT_EQ(formats::findResource(beside.resourceFork, fourCharacters("alis"), 0), record);
}

TEST_F(FinderFileStoreTest, AnAliasFileReplacesNothing) {
    const std::string path = file("a", bytesOf("data"));
    directory("sub");
    std::filesystem::create_symlink("none", folder.path("dangling"));
    for (const char* name : {"a", "sub", "sub/", "dangling"})
        EXPECT_EQ(store.createAliasFile(folder.path(name), hex("00")), -48) << name;
    EXPECT_EQ(readFile(path), bytesOf("data"));
    EXPECT_EQ(folder.names(), (Names{"a", "dangling", "sub"}));
}

TEST_F(FinderFileStoreTest, AnAliasFileReplacesAnAppleDoubleFileThatLostItsFile) {
    file("._alias", formats::writeAppleDouble({}));
    EXPECT_EQ(store.createAliasFile(folder.path("alias"), hex("00")), 0);
    EXPECT_FALSE(appleDouble("._alias").resourceFork.empty());
}

TEST_F(FinderFileStoreTest, AnAliasFileReplacesNoOtherFileBesideIt) {
    file("._alias", bytesOf("my notes"));
    EXPECT_EQ(store.createAliasFile(folder.path("alias"), hex("00")), -48);
    EXPECT_EQ(readFile(folder.path("._alias")), bytesOf("my notes"));
    EXPECT_EQ(folder.names(), Names{"._alias"});
}

TEST_F(FinderFileStoreTest, AnAliasFileInAMissingFolderIsAnError) {
    EXPECT_EQ(store.createAliasFile(folder.path("none/alias"), hex("00")), -43);
}

TEST_F(FinderFileStoreTest, AnAliasFileWhoseForkCannotBePlacedIsTakenBack) {
    // The name is as long as a name may be, so that "._name" is too long.
    const std::string name(255, 'n');
    EXPECT_EQ(store.createAliasFile(folder.path(name), hex("00")), -36);
    EXPECT_EQ(folder.names(), Names{});
}

TEST_F(FinderFileStoreTest, AnAliasFileInAFolderOfAnotherUserIsNotPermitted) {
    const std::string sub = directory("sub");
    const bool administrator = ::geteuid() == 0;
    ASSERT_EQ(::chmod(folder.path().c_str(), 0755), 0);
    ASSERT_EQ(::chmod(sub.c_str(), 0555), 0);
    constexpr uid_t kNobody = 65534;
    if (administrator) {
        ASSERT_EQ(::seteuid(kNobody), 0);
    }
    const int error = store.createAliasFile(sub + "/alias", hex("00"));
    if (administrator) {
        ASSERT_EQ(::seteuid(0), 0);
    }
    EXPECT_EQ(error, -61);
    EXPECT_EQ(folder.names("sub"), Names{});
    EXPECT_EQ(::chmod(sub.c_str(), 0755), 0);
}

TEST_F(FinderFileStoreTest, AnAliasRecordLeadsToItsTarget) {
    const std::string path = file("Größe:1");
    attributes[path] = bytesWith(bytesOf("TEXTttxt"));
    const auto record = formats::readAliasRecord(store.aliasRecord(path));
    ASSERT_TRUE(record);
    struct stat facts{};
    struct stat parent{};
    ASSERT_EQ(::stat(path.c_str(), &facts), 0);
    ASSERT_EQ(::stat(folder.path().c_str(), &parent), 0);
    EXPECT_EQ(record->kind, formats::AliasTarget::Kind::file);
    EXPECT_EQ(record->name, "Größe:1");
    EXPECT_EQ(record->number, static_cast<std::uint32_t>(facts.st_ino));
    EXPECT_EQ(record->folderNumber, static_cast<std::uint32_t>(parent.st_ino));
    EXPECT_EQ(record->folderName, std::filesystem::path(folder.path()).filename());
    EXPECT_EQ(record->created, 2082844800u + 86400u);
    EXPECT_EQ(record->volumeCreated, 2082844800u + 86400u);
    EXPECT_EQ(record->type, kText.type);
    EXPECT_EQ(record->creator, kText.creator);
    EXPECT_EQ(record->mountPoint + record->path, path);
    struct stat volume{};
    ASSERT_EQ(::stat(record->mountPoint.c_str(), &volume), 0);
    EXPECT_EQ(volume.st_dev, facts.st_dev);
}

TEST_F(FinderFileStoreTest, AnAliasRecordOfAFolderSaysSo) {
    const auto record = formats::readAliasRecord(store.aliasRecord(directory("sub") + "/"));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->kind, formats::AliasTarget::Kind::folder);
    EXPECT_EQ(record->name, "sub");
}

TEST_F(FinderFileStoreTest, AnAliasRecordOfAVolumeHasTheVolumesName) {
    const auto record = formats::readAliasRecord(store.aliasRecord("/"));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->name, "File System");
    EXPECT_EQ(record->volumeName, "File System");
    EXPECT_EQ(record->path, "/");
    EXPECT_EQ(record->mountPoint, "/");
}

TEST_F(FinderFileStoreTest, AnAliasRecordFollowsASymbolicLink) {
    const std::string path = file("a");
    std::filesystem::create_symlink("a", folder.path("link"));
    EXPECT_EQ(store.aliasRecord(folder.path("link")), store.aliasRecord(path));
}

TEST_F(FinderFileStoreTest, ThereIsNoAliasRecordOfAMissingTarget) {
    EXPECT_TRUE(store.aliasRecord(folder.path("none")).empty());
    EXPECT_TRUE(store.aliasRecord("").empty());
}

TEST_F(FinderFileStoreTest, AFolderIconIsAHiddenFileWithTheIconAsResource) {
    const std::string path = directory("product");
    EXPECT_TRUE(store.setFolderIcon(path, file("icon.icns", kIcon)));
    EXPECT_EQ(folder.names("product"), (Names{"._Icon\r", "Icon\r"}));
    EXPECT_EQ(readFile(path + "/Icon\r"), Bytes{});
    const AppleDouble beside = appleDouble("product/._Icon\r");
    EXPECT_EQ(beside.finderInformation, bytesWith(bytesOf("iconMACS") + hex("4400")));
    const std::vector<formats::Resource> expected{{fourCharacters("icns"), -16455, "", kIcon}};
    EXPECT_EQ(formats::readResourceFork(beside.resourceFork), expected);
}

TEST_F(FinderFileStoreTest, AFolderIconSetsTheFoldersFlagAndKeepsItsOtherBits) {
    const std::string path = directory("product");
    attributes[path].fill(std::byte{0x11});
    EXPECT_TRUE(store.setFolderIcon(path + "/", file("icon.icns", kIcon)));
    FinderBytes expected;
    expected.fill(std::byte{0x11});
    expected[8] = std::byte{0x15};
    EXPECT_EQ(attributes.at(path), expected);
}

TEST_F(FinderFileStoreTest, AnExistingFolderIconIsReplaced) {
    const std::string path = directory("product");
    const std::string icon = file("icon.icns", kIcon);
    ASSERT_TRUE(store.setFolderIcon(path, file("other.icns", kOtherIcon)));
    ASSERT_TRUE(store.setFolderIcon(path, icon));
    EXPECT_EQ(formats::findResource(appleDouble("product/._Icon\r").resourceFork,
                                    fourCharacters("icns"), -16455),
              kIcon);
    EXPECT_EQ(folder.names("product"), (Names{"._Icon\r", "Icon\r"}));
}

TEST_F(FinderFileStoreTest, AFolderOnAFileSystemWithoutAttributesGetsItsFlagBesideIt) {
    const std::string path = directory("product");
    refuseAttributesWith(ENOTSUP);
    EXPECT_TRUE(store.setFolderIcon(path, file("icon.icns", kIcon)));
    EXPECT_EQ(informationOf(path).flags, FinderInformation::kHasCustomIcon);
    EXPECT_EQ(folder.names(), (Names{"._product", "icon.icns", "product"}));
}

TEST_F(FinderFileStoreTest, AFolderWhoseFlagCannotBeSetStaysAsItWas) {
    const std::string path = directory("product");
    const std::string icon = file("icon.icns", kIcon);
    refuseAttributesWith(EACCES);
    EXPECT_FALSE(store.setFolderIcon(path, icon));
    EXPECT_EQ(folder.names("product"), Names{});

    refuseAttributesWith(0);
    ASSERT_TRUE(store.setFolderIcon(path, file("other.icns", kOtherIcon)));
    const Bytes before = readFile(path + "/._Icon\r");
    refuseAttributesWith(EACCES);
    EXPECT_FALSE(store.setFolderIcon(path, icon));
    EXPECT_EQ(readFile(path + "/._Icon\r"), before);
    EXPECT_EQ(folder.names("product"), (Names{"._Icon\r", "Icon\r"}));
}

TEST_F(FinderFileStoreTest, AFolderInTheIconsPlaceLeavesEverythingAsItWas) {
    const std::string path = directory("product");
    const std::string icon = file("icon.icns", kIcon);
    directory("product/._Icon\r");
    EXPECT_FALSE(store.setFolderIcon(path, icon));
    EXPECT_EQ(folder.names("product"), Names{"._Icon\r"});
    EXPECT_TRUE(attributes.empty());
}

TEST_F(FinderFileStoreTest, WhatIsNoIconFamilyIsNotSet) {
    const std::string path = directory("product");
    EXPECT_FALSE(store.setFolderIcon(path, file("icon.icns", bytesOf("a picture"))));
    EXPECT_FALSE(store.setFolderIcon(path, folder.path("none.icns")));
    EXPECT_FALSE(store.setFolderIcon(path, path));
    EXPECT_EQ(folder.names("product"), Names{});
    EXPECT_TRUE(attributes.empty());
}

TEST_F(FinderFileStoreTest, OnlyAFolderItselfGetsAFolderIcon) {
    const std::string icon = file("icon.icns", kIcon);
    const std::string path = directory("product");
    std::filesystem::create_directory_symlink("product", folder.path("link"));
    EXPECT_FALSE(store.setFolderIcon(folder.path("link"), icon));
    EXPECT_FALSE(store.setFolderIcon(folder.path("link/"), icon));
    EXPECT_FALSE(store.setFolderIcon(icon, icon));
    EXPECT_FALSE(store.setFolderIcon(folder.path("none"), icon));
    EXPECT_EQ(folder.names("product"), Names{});
}

TEST(FinderFileCalls, OnThisSystemInformationIsReadBackAndANewFileIsNew) {
    const tests::TemporaryFolder folder;
    writeFile(folder.path("a"), {});
    FinderFileStore store({.calls = finderFileCalls()});
    EXPECT_EQ(store.setFinderInformation(folder.path("a"), kText), 0);
    EXPECT_EQ(store.finderInformation(folder.path("a")).information, kText);

    const auto created = finderFileCalls().creationTime(folder.path("a"));
    // The precise clock: the coarse one of time(2) can be behind that of the file system.
    const auto now = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    EXPECT_LE(created, now);
    EXPECT_GT(created, now - 3600);
    EXPECT_EQ(finderFileCalls().creationTime(folder.path("none")), 0);
}

TEST(FinderFileCalls, AnAttributeIsNeverWrittenThroughASymbolicLink) {
    const tests::TemporaryFolder folder;
    writeFile(folder.path("a"), {});
    std::filesystem::create_symlink("a", folder.path("link"));
    EXPECT_NE(finderFileCalls().writeAttribute(folder.path("link"), bytesWith(bytesOf("TEXT"))), 0);
    EXPECT_FALSE(finderFileCalls().readAttribute(folder.path("a")));
}

TEST(FinderInformation, GivesTheTypeAsItsFourCharactersAndNothingForNone) {
    EXPECT_EQ(kOther.typeText(), "APPL");
    EXPECT_EQ(kText.typeText(), "TEXT");
    EXPECT_EQ(FinderInformation{}.typeText(), "");
}

} // namespace
} // namespace posix
