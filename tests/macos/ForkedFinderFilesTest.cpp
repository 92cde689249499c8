#include "platform/macos/ForkedFinderFiles.h"

#include <cerrno>
#include <filesystem>
#include <map>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/formats/AliasRecord.h"
#include "platform/formats/ResourceFork.h"
#include "platform/posix/FinderFileStore.h"
#include "tests/formats/BytesInTests.h"
#include "tests/support/TemporaryFolder.h"

namespace macoshost {
namespace {

using formats::Bytes;
using formats::fourCharacters;
using formats::testing::bytesOf;
using formats::testing::hex;
using formats::testing::readFile;
using formats::testing::writeFile;
using formats::testing::operator+;
using ports::FinderInformation;
using posix::FinderBytes;
using Names = std::vector<std::string>;

const FinderInformation kText{fourCharacters("TEXT"), fourCharacters("ttxt"), 0x0040};
const FinderInformation kOther{fourCharacters("APPL"), fourCharacters("aplt"), 0x2000};

FinderBytes bytesWith(const Bytes& start) {
    FinderBytes bytes{};
    std::ranges::copy(start, bytes.begin());
    return bytes;
}

// Real files in a folder of its own; the attributes, which this system would call otherwise, are
// kept in memory, so that a test can look at them and refuse them.
class ForkedFinderFilesTest : public ::testing::Test {
  protected:
    std::string file(const std::string& name, const Bytes& bytes = {}) {
        writeFile(folder.path(name), bytes);
        return folder.path(name);
    }
    std::string directory(const std::string& name) {
        std::filesystem::create_directory(folder.path(name));
        return folder.path(name);
    }
    FinderInformation informationOf(const std::string& path) {
        const auto answer = files.finderInformation(path);
        EXPECT_EQ(answer.error, 0);
        return answer.information;
    }
    int keepFork(int descriptor, std::span<const std::byte> fork) {
        if (refusal == 0) {
            const auto path =
                std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor));
            forks[path.string()].assign(fork.begin(), fork.end());
        }
        return refusal;
    }
    posix::FinderFileCalls calls() {
        return {.readAttribute = [this](const std::string& path) -> std::optional<FinderBytes> {
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
                .creationTime =
                    [](const std::string& path) {
                        return std::int64_t{86400} + static_cast<std::int64_t>(path.size());
                    }};
    }

    tests::TemporaryFolder folder;
    std::map<std::string, FinderBytes> attributes;
    std::map<std::string, Bytes> forks;
    Names iconsSet;
    bool iconAnswer = true;
    int refusal = 0;
    posix::AliasVolume volume{.mountPoint = "/", .name = "Macintosh HD"};
    ForkedFinderFiles files{{.calls = calls(),
                             .writeFork =
                                 [this](int descriptor, std::span<const std::byte> fork) {
                                     return keepFork(descriptor, fork);
                                 },
                             .volume = [this](const std::string&) { return volume; },
                             .setFolderIcon =
                                 [this](const std::string& path, const std::string& icon) {
                                     iconsSet.push_back(path + " " + icon);
                                     return iconAnswer;
                                 }}};
};

TEST_F(ForkedFinderFilesTest, AnItemResolvesAndAMissingOneDoesNot) {
    EXPECT_EQ(files.resolve(file("a")), 0);
    EXPECT_EQ(files.resolve(folder.path("none")), -43);
    std::filesystem::create_symlink("none", folder.path("dangling"));
    EXPECT_EQ(files.resolve(folder.path("dangling")), -43);
}

TEST_F(ForkedFinderFilesTest, InformationIsThatOfTheAttributeAndZeroWithoutOne) {
    const std::string path = file("a");
    EXPECT_EQ(informationOf(path), FinderInformation{});
    attributes[path] = bytesWith(bytesOf("TEXTttxt") + hex("0040"));
    EXPECT_EQ(informationOf(path), kText);
    EXPECT_EQ(files.finderInformation(folder.path("none")).error, -43);
}

TEST_F(ForkedFinderFilesTest, InformationKeepsTheBytesAfterTheFlags) {
    const std::string path = file("a");
    attributes[path].fill(std::byte{0xEE});
    EXPECT_EQ(files.setFinderInformation(path, kText), 0);
    FinderBytes expected;
    expected.fill(std::byte{0xEE});
    std::ranges::copy(bytesOf("TEXTttxt") + hex("0040"), expected.begin());
    EXPECT_EQ(attributes.at(path), expected);
    EXPECT_EQ(folder.names(), Names{"a"});
}

TEST_F(ForkedFinderFilesTest, InformationThatIsRefusedIsAnError) {
    const std::string path = file("a");
    for (const auto& [error, number] :
         {std::pair{EACCES, -61}, {EPERM, -61}, {EROFS, -61}, {ENOTSUP, -36}, {EIO, -36}}) {
        refusal = error;
        EXPECT_EQ(files.setFinderInformation(path, kText), number);
    }
    EXPECT_EQ(files.setFinderInformation(folder.path("none"), kText), -43);
    EXPECT_TRUE(attributes.empty());
}

TEST_F(ForkedFinderFilesTest, QuestionsFollowSymbolicLinksAndChangesDoNot) {
    const std::string path = file("a");
    ASSERT_EQ(files.setFinderInformation(path, kText), 0);
    forks[path] = hex("11");
    std::filesystem::create_symlink("a", folder.path("link"));
    EXPECT_EQ(informationOf(folder.path("link")), kText);
    EXPECT_EQ(files.resourceFork(folder.path("link")), hex("11"));
    EXPECT_EQ(files.setFinderInformation(folder.path("link"), kOther), -36);
    EXPECT_EQ(files.setFinderInformation(folder.path("link/"), kOther), -36);
    EXPECT_EQ(informationOf(path), kText);
    EXPECT_EQ(attributes.size(), 1u);
}

TEST_F(ForkedFinderFilesTest, WhereThereIsNoForkItIsEmpty) {
    EXPECT_EQ(files.resourceFork(file("a")), Bytes());
    EXPECT_EQ(files.resourceFork(folder.path("none")), Bytes());
}

TEST_F(ForkedFinderFilesTest, SlashesAtTheEndDoNotBelongToTheName) {
    directory("sub");
    EXPECT_EQ(files.setFinderInformation(folder.path("sub//"), kText), 0);
    EXPECT_EQ(files.setFinderInformation(folder.path("sub/."), kOther), 0);
    EXPECT_EQ(attributes.size(), 1u);
    EXPECT_EQ(informationOf(folder.path("sub")), kOther);
}

TEST_F(ForkedFinderFilesTest, AnAliasFileHasAnEmptyDataForkAndTheRecordAsResourceOfItsFork) {
    const Bytes record = files.aliasRecord(file("target"));
    EXPECT_EQ(files.createAliasFile(folder.path("alias"), record), 0);
    EXPECT_EQ(folder.names(), (Names{"alias", "target"}));
    EXPECT_EQ(readFile(folder.path("alias")), Bytes{});
    const std::vector<formats::Resource> expected{{fourCharacters("alis"), 0, "", record}};
    EXPECT_EQ(formats::readResourceFork(files.resourceFork(folder.path("alias"))), expected);
}

TEST_F(ForkedFinderFilesTest, AnAliasFileReplacesNothing) {
    const std::string path = file("a", bytesOf("data"));
    directory("sub");
    std::filesystem::create_symlink("none", folder.path("dangling"));
    for (const char* name : {"a", "sub", "sub/", "dangling"})
        EXPECT_EQ(files.createAliasFile(folder.path(name), hex("00")), -48) << name;
    EXPECT_EQ(readFile(path), bytesOf("data"));
    EXPECT_EQ(folder.names(), (Names{"a", "dangling", "sub"}));
    EXPECT_TRUE(forks.empty());
}

TEST_F(ForkedFinderFilesTest, AnAliasFileWhoseForkCannotBeWrittenIsTakenAway) {
    for (const auto& [error, number] : {std::pair{ENOSPC, -36}, {EPERM, -61}, {ENOTSUP, -36}}) {
        refusal = error;
        EXPECT_EQ(files.createAliasFile(folder.path("alias"), hex("00")), number);
        EXPECT_EQ(folder.names(), Names{});
    }
}

TEST_F(ForkedFinderFilesTest, AnAliasFileInAMissingFolderIsAnError) {
    EXPECT_EQ(files.createAliasFile(folder.path("none/alias"), hex("00")), -43);
    EXPECT_EQ(files.createAliasFile(file("a") + "/alias", hex("00")), -43);
    EXPECT_TRUE(forks.empty());
}

TEST_F(ForkedFinderFilesTest, AnAliasRecordHasTheSameBytesAsOnASystemWithoutForks) {
    posix::FinderFileStore store({.calls = calls()});
    const std::string path = file("Größe:1");
    attributes[path] = bytesWith(bytesOf("TEXTttxt"));
    for (const std::string& target : {path, directory("sub"), std::string("/")}) {
        const Bytes there = store.aliasRecord(target);
        const auto read = formats::readAliasRecord(there);
        ASSERT_TRUE(read);
        volume = {.mountPoint = read->mountPoint, .name = read->volumeName};
        EXPECT_EQ(files.aliasRecord(target), there) << target;
    }
}

TEST_F(ForkedFinderFilesTest, AnAliasFilesForkHasTheSameBytesAsThatInAnAppleDoubleFile) {
    const Bytes record = files.aliasRecord(file("target"));
    posix::FinderFileStore store({.calls = calls()});
    ASSERT_EQ(store.createAliasFile(folder.path("there"), record), 0);
    ASSERT_EQ(files.createAliasFile(folder.path("here"), record), 0);
    const auto beside = formats::readAppleDouble(readFile(folder.path("._there")));
    ASSERT_TRUE(beside);
    EXPECT_EQ(forks.at(folder.path("here")), beside->resourceFork);
}

TEST_F(ForkedFinderFilesTest, AnAliasRecordNamesTheVolumeAsItIsCalled) {
    const std::string path = file("a");
    const auto record = formats::readAliasRecord(files.aliasRecord(path));
    ASSERT_TRUE(record);
    EXPECT_EQ(record->volumeName, "Macintosh HD");
    EXPECT_EQ(record->mountPoint, "/");
    EXPECT_EQ("/" + record->path, path);
    EXPECT_EQ(record->volumeCreated, 2082844800u + 86400u + 1u);
    EXPECT_EQ(record->created, 2082844800u + 86400u + path.size());

    const auto root = formats::readAliasRecord(files.aliasRecord("/"));
    ASSERT_TRUE(root);
    EXPECT_EQ(root->name, "Macintosh HD");
    EXPECT_EQ(root->path, "/");

    volume = {.mountPoint = folder.path(), .name = "Disk"};
    const auto other = formats::readAliasRecord(files.aliasRecord(path));
    ASSERT_TRUE(other);
    EXPECT_EQ(other->volumeName, "Disk");
    EXPECT_EQ(other->path, "/a");
}

TEST_F(ForkedFinderFilesTest, ThereIsNoAliasRecordOfAMissingTarget) {
    EXPECT_TRUE(files.aliasRecord(folder.path("none")).empty());
    EXPECT_TRUE(files.aliasRecord("").empty());
}

TEST_F(ForkedFinderFilesTest, AFolderGetsItsIconFromTheSystem) {
    const std::string path = directory("product");
    EXPECT_TRUE(files.setFolderIcon(path + "/", "/x.icns"));
    EXPECT_EQ(iconsSet, Names{path + " /x.icns"});
    iconAnswer = false;
    EXPECT_FALSE(files.setFolderIcon(path, "/x.icns"));
}

TEST_F(ForkedFinderFilesTest, OnlyAFolderItselfGetsAFolderIcon) {
    directory("product");
    std::filesystem::create_directory_symlink("product", folder.path("link"));
    for (const std::string& path :
         {folder.path("link"), folder.path("link/"), file("a"), folder.path("none")})
        EXPECT_FALSE(files.setFolderIcon(path, "/x.icns")) << path;
    EXPECT_TRUE(iconsSet.empty());
}

} // namespace
} // namespace macoshost
