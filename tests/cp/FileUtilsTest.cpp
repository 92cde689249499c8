#include "cp/CFileUtils.h"

#include <fcntl.h>
#include <string>
#include <sys/stat.h>

#include "cp/CFileType.h"
#include "tests/cp/FinderInformationWriter.h"
#include "tests/cp/FolderTest.h"

using namespace Corvaldine::CP;

namespace {

using Files = FolderTest;

struct stat statusOf(const std::filesystem::path& path) {
    struct stat status{};
    EXPECT_EQ(::lstat(path.c_str(), &status), 0) << path;
    return status;
}

} // namespace

TEST_F(Files, CopyingOntoItselfLeavesTheFileAndAnswersFalse) {
    write("p", "content");
    EXPECT_FALSE(CFileUtils::copy(path("p"), path("p"), true));
    EXPECT_EQ(read("p"), "content");
}

TEST_F(Files, CopyingOntoAnExistingFileNeedsOverwrite) {
    write("new", "new");
    write("old", "old");
    EXPECT_FALSE(CFileUtils::copy(path("new"), path("old"), false));
    EXPECT_EQ(read("old"), "old");
    EXPECT_TRUE(CFileUtils::copy(path("new"), path("old"), true));
    EXPECT_EQ(read("old"), "new");
    EXPECT_EQ(read("new"), "new");
}

TEST_F(Files, OverwritingRemovesTheOldFileRatherThanWritingIntoIt) {
    write("new", "new");
    write("old", "old");
    std::filesystem::create_hard_link(at("old"), at("other name"));
    EXPECT_TRUE(CFileUtils::copy(path("new"), path("old"), true));
    EXPECT_EQ(read("other name"), "old");
}

TEST_F(Files, AFolderIsNoFileToCopyNorToCopyOnto) {
    std::filesystem::create_directory(at("folder"));
    write("file", "x");
    EXPECT_FALSE(CFileUtils::copy(path("folder"), path("copy"), true));
    EXPECT_FALSE(CFileUtils::copy(path("file"), path("folder"), true));
    EXPECT_FALSE(CFileUtils::copy(path("missing"), path("copy"), true));
    EXPECT_FALSE(path("copy").exists());
    EXPECT_TRUE(path("folder").is_directory());
}

TEST_F(Files, ACopyHasDataPermissionsTimesAndAttributes) {
    std::string data;
    for (int i = 0; i < 300000; ++i)
        data += std::to_string(i);
    write("file", data);
    ASSERT_EQ(::chmod(at("file").c_str(), 0641), 0);
    const timespec times[2] = {{1000000000, 111}, {1100000000, 222}};
    ASSERT_EQ(::utimensat(AT_FDCWD, at("file").c_str(), times, 0), 0);
    ASSERT_TRUE(CFileUtils::copy(path("file"), path("copy"), false));
    EXPECT_TRUE(read("copy") == data);
    const struct stat status = statusOf(at("copy"));
    EXPECT_EQ(status.st_mode & 07777, 0641u);
    EXPECT_TRUE(std::filesystem::last_write_time(at("copy")) ==
                std::filesystem::last_write_time(at("file")));
    EXPECT_EQ(status.st_mtime, 1100000000);
}

TEST_F(Files, ACopyHasTheExtendedAttributes) {
    write("file.xyz", "");
    if (!writeFinderInformation(at("file.xyz").string(), "KEEP" + std::string(28, '\0')))
        GTEST_SKIP() << "no extended attributes here";
    ASSERT_TRUE(CFileUtils::copy(path("file.xyz"), path("copy.xyz"), false));
    CFileType type;
    path("copy.xyz").get_filetype(type);
    EXPECT_EQ(type.get_type(), 0x4B454550u);
}

TEST_F(Files, AnEmptyFileIsCopied) {
    write("empty", "");
    EXPECT_TRUE(CFileUtils::copy(path("empty"), path("copy"), false));
    EXPECT_EQ(statusOf(at("copy")).st_size, 0);
}

TEST_F(Files, AFileWithoutAKnownLengthIsCopied) {
    if (!CPath("/proc/self/status").exists())
        GTEST_SKIP() << "no such files here";
    EXPECT_TRUE(CFileUtils::copy("/proc/self/status", path("copy"), false));
    EXPECT_NE(read("copy").find("Pid:"), std::string::npos);
}

TEST_F(Files, CopyingALinkCopiesWhatItLeadsTo) {
    write("file", "content");
    std::filesystem::create_symlink("file", at("link"));
    EXPECT_TRUE(CFileUtils::copy(path("link"), path("copy"), false));
    EXPECT_FALSE(std::filesystem::is_symlink(at("copy")));
    EXPECT_EQ(read("copy"), "content");
}

TEST_F(Files, ALinkThatLeadsNowhereIsNotWrittenThrough) {
    write("file", "content");
    std::filesystem::create_symlink("elsewhere", at("link"));
    EXPECT_FALSE(CFileUtils::copy(path("file"), path("link"), false));
    EXPECT_FALSE(path("elsewhere").exists());
    EXPECT_TRUE(std::filesystem::is_symlink(at("link")));
}

TEST_F(Files, APipeIsRefusedWithoutWaitingForIt) {
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(CFileUtils::copy(path("pipe"), path("copy"), false));
    EXPECT_FALSE(path("copy").exists());
}

TEST_F(Files, RemovingTakesFilesAndLinksButNoFolders) {
    write("file", "");
    std::filesystem::create_directory(at("folder"));
    std::filesystem::create_directory_symlink("folder", at("link"));
    EXPECT_TRUE(CFileUtils::remove(path("file")));
    EXPECT_TRUE(CFileUtils::remove(path("link")));
    EXPECT_FALSE(CFileUtils::remove(path("folder")));
    EXPECT_FALSE(CFileUtils::remove(path("file")));
    EXPECT_FALSE(CFileUtils::remove(CPath()));
    EXPECT_TRUE(path("folder").is_directory());
}

TEST_F(Files, RenamingNeverReplacesAnything) {
    write("a", "a");
    write("b", "b");
    std::filesystem::create_symlink("elsewhere", at("dangling"));
    EXPECT_FALSE(CFileUtils::rename(path("a"), path("a")));
    EXPECT_FALSE(CFileUtils::rename(path("a"), path("b")));
    EXPECT_FALSE(CFileUtils::rename(path("a"), path("dangling")));
    EXPECT_FALSE(CFileUtils::rename(path("missing"), path("c")));
    EXPECT_EQ(read("b"), "b");
    EXPECT_TRUE(CFileUtils::rename(path("a"), path("c")));
    EXPECT_EQ(read("c"), "a");
    EXPECT_FALSE(path("a").exists());
}

TEST_F(Files, TwoNamesOfOneFileAreTwoEntriesToRename) {
    write("a", "a");
    std::filesystem::create_hard_link(at("a"), at("b"));
    EXPECT_FALSE(CFileUtils::rename(path("a"), path("b")));
    EXPECT_TRUE(path("a").exists());
}

TEST_F(Files, SizeIsTheLengthOfAFilesData) {
    write("file", "12345");
    std::filesystem::create_directory(at("folder"));
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
    long long bytes = 7;
    EXPECT_TRUE(CFileUtils::size(path("file"), bytes));
    EXPECT_EQ(bytes, 5);
    for (const char* name : {"folder", "missing", "pipe"}) {
        bytes = 7;
        EXPECT_FALSE(CFileUtils::size(path(name), bytes)) << name;
        EXPECT_EQ(bytes, 0);
    }
}

TEST_F(Files, ALengthBeyondFourGigabytesIsTold) {
    write("file", "");
    std::error_code error;
    std::filesystem::resize_file(at("file"), 5000000000, error);
    if (error)
        GTEST_SKIP() << error.message();
    long long bytes = 0;
    EXPECT_TRUE(CFileUtils::size(path("file"), bytes));
    EXPECT_EQ(bytes, 5000000000);
}

TEST_F(Files, PermissionsAreTheNineBits) {
    write("file", "");
    ASSERT_EQ(::chmod(at("file").c_str(), 01644), 0);
    int mode = 0;
    EXPECT_TRUE(CFileUtils::get_permissions(path("file"), mode));
    EXPECT_EQ(mode, 0644);
    EXPECT_TRUE(CFileUtils::set_permissions(path("file"), 0700));
    EXPECT_TRUE(CFileUtils::get_permissions(path("file"), mode));
    EXPECT_EQ(mode, 0700);
    EXPECT_EQ(statusOf(at("file")).st_mode & 07777, 01700u);
    EXPECT_FALSE(CFileUtils::get_permissions(path("missing"), mode));
    EXPECT_FALSE(CFileUtils::set_permissions(path("missing"), 0700));
}
