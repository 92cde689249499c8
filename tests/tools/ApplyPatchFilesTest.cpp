// What becomes of each kind of entry when a patch is applied: what users added, permissions,
// attributes, times, links, changes of kind.
#include <cstdint>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/tools/PatchesInTests.h"

namespace tools::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class ApplyPatchFiles : public PatchTest {
  protected:
    void update() const {
        makePatch();
        makeCopy();
        expectUpdate();
    }
    void expectUpdate() const {
        const Outcome outcome = apply();
        EXPECT_EQ(outcome.status, kDone) << outcome.output;
        EXPECT_THAT(leftovers(), IsEmpty());
    }
    void expectRefusal(const std::string& path, const std::string& text) const {
        const auto before = everything("copy");
        const Outcome outcome = apply();
        EXPECT_EQ(outcome.status, kDiffers);
        EXPECT_THAT(outcome.output, HasSubstr("applyPatch: " + path + ": " + text));
        EXPECT_EQ(apply({"-n"}).status, kDiffers);
        EXPECT_EQ(everything("copy"), before);
        EXPECT_THAT(leftovers(), IsEmpty());
    }
    unsigned mode(const std::string& path) const { return statusOf(path).st_mode & 07777; }
};

TEST_F(ApplyPatchFiles, WhatUsersAddedStaysAsItIs) {
    makePatch();
    makeCopy();
    write("copy/own", "mine");
    write("copy/sub/own", "mine, too");
    write("copy/own folder/deep/file", "mine as well");
    setMode("copy/own folder/deep", 0500);
    setMode("copy/own", 0460);
    setTime("copy/own folder/deep", 1000);
    setTime("copy/own folder", 2000);
    fs::create_symlink("/nowhere", at("copy/own link"));
    setTime("copy/own link", 3000);
    const struct stat file = statusOf("copy/own");
    expectUpdate();
    EXPECT_EQ(statusOf("copy/own").st_ino, file.st_ino);
    EXPECT_EQ(mode("copy/own"), 0460u);
    EXPECT_EQ(contentsOf(at("copy/sub/own")), "mine, too");
    EXPECT_EQ(contentsOf(at("copy/own folder/deep/file")), "mine as well");
    EXPECT_EQ(mode("copy/own folder/deep"), 0500u);
    EXPECT_EQ(statusOf("copy/own folder/deep").st_mtim.tv_sec, 1000);
    EXPECT_EQ(statusOf("copy/own folder").st_mtim.tv_sec, 2000);
    EXPECT_EQ(fs::read_symlink(at("copy/own link")), "/nowhere");
    EXPECT_EQ(statusOf("copy/own link").st_mtim.tv_sec, 3000);
    EXPECT_EQ(contentsOf(at("copy/sub/inner")), "inner, new");
}

TEST_F(ApplyPatchFiles, PipesAndSocketsThatSomebodyPutThereStay) {
    makePatch();
    makeCopy();
    ASSERT_EQ(::mkfifo(at("copy/pipe").c_str(), 0620), 0);
    const ino_t pipe = statusOf("copy/pipe").st_ino;
    expectUpdate();
    EXPECT_TRUE(S_ISFIFO(statusOf("copy/pipe").st_mode));
    EXPECT_EQ(statusOf("copy/pipe").st_ino, pipe);
}

TEST_F(ApplyPatchFiles, AFolderThatTheNewVersionDropsStaysForWhatUsersPutThere) {
    write("before/dropped/a/file", "goes");
    write("before/dropped/b/file", "goes");
    makePatch();
    makeCopy();
    write("copy/dropped/a/own", "stays");
    setMode("copy/dropped/a", 0751);
    expectUpdate();
    EXPECT_THAT(contents("copy/dropped"), ::testing::ElementsAre("a/", "a/own: stays"));
    EXPECT_EQ(mode("copy/dropped/a"), 0751u);
    EXPECT_EQ(apply({"--verify"}).status, kDone);
}

TEST_F(ApplyPatchFiles, WhatStandsInTheWayOfANewFileIsADifference) {
    makePatch();
    makeCopy();
    write("copy/new/folder/file", "something else");
    expectRefusal("new/folder/file", "was put where the new version has a file of its own");
}

TEST_F(ApplyPatchFiles, AFileWhereTheNewVersionHasAFolderIsADifference) {
    makePatch();
    makeCopy();
    write("copy/new", "a file");
    expectRefusal("new", "was put where the new version has a folder of its own");
}

TEST_F(ApplyPatchFiles, APipeInTheWayIsADifference) {
    makePatch();
    makeCopy();
    ASSERT_EQ(::mkfifo(at("copy/new").c_str(), 0600), 0);
    expectRefusal("new", "was put where the new version has a folder of its own");
}

TEST_F(ApplyPatchFiles, WhatIsAlreadyThereOfTheNewVersionIsNoDifference) {
    makePatch();
    makeCopy();
    write("copy/new/folder/file", "brought along");
    setMode("copy/new/folder/file", 0640);
    fs::create_directory(at("copy/new empty"));
    const ino_t inode = statusOf("copy/new/folder/file").st_ino;
    expectUpdate();
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_EQ(statusOf("copy/new/folder/file").st_ino, inode);
    EXPECT_EQ(mode("copy/new/folder/file"), 0640u);
}

TEST_F(ApplyPatchFiles, WhatUsersPutIntoAFolderThatBecomesAFileIsADifference) {
    write("before/kind/file", "x");
    write("after/kind", "now a file");
    makePatch();
    makeCopy();
    write("copy/kind/own", "mine");
    expectRefusal("kind/own", "was put where the new version has no folder");
}

TEST_F(ApplyPatchFiles, UnchangedFilesAreTheSameFilesAndOthersAreNew) {
    makePatch();
    makeCopy();
    const ino_t same = statusOf("copy/same").st_ino;
    const ino_t changed = statusOf("copy/changed").st_ino;
    expectUpdate();
    EXPECT_EQ(statusOf("copy/same").st_ino, same);
    EXPECT_EQ(statusOf("copy/same").st_nlink, 1u);
    EXPECT_NE(statusOf("copy/changed").st_ino, changed);
}

TEST_F(ApplyPatchFiles, AFileThatIsAlsoNamedElsewhereIsNotChangedThere) {
    makePatch();
    makeCopy();
    fs::create_hard_link(at("copy/changed"), at("backup"));
    fs::create_hard_link(at("copy/gone"), at("backup of gone"));
    const std::string old = contentsOf(at("backup"));
    expectUpdate();
    EXPECT_EQ(contentsOf(at("backup")), old);
    EXPECT_EQ(contentsOf(at("backup of gone")), "will go");
}

TEST_F(ApplyPatchFiles, SeveralNamesOfOneFileStaySeveralNamesOfIt) {
    write("before/two", "two names");
    fs::create_hard_link(at("before/two"), at("before/sub/names"));
    fs::create_hard_link(at("before/two"), at("before/third"));
    write("after/two", "two names");
    write("after/sub/names", "two names");
    write("after/third", "two names, and one of them changes");
    for (const char* name : {"two", "sub/names"})
        setTime("after/" + std::string(name), 5000);
    setTime("before/two", 5000);
    update();
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_EQ(statusOf("copy/two").st_ino, statusOf("copy/sub/names").st_ino);
    EXPECT_EQ(statusOf("copy/two").st_nlink, 2u);
}

TEST_F(ApplyPatchFiles, PermissionsFollowTheNewVersionUnlessSomebodySetThem) {
    for (const char* name : {"a", "b", "c"}) {
        write("before/" + std::string(name), "x");
        write("after/" + std::string(name), "x");
    }
    setMode("before/a", 0644);
    setMode("after/a", 0755);
    setMode("before/b", 0644);
    setMode("after/b", 0755);
    setMode("before/c", 0600);
    setMode("after/c", 0600);
    setMode("before/sub", 0755);
    setMode("after/sub", 0750);
    setMode("before/changed", 0644);
    setMode("after/changed", 0644);
    makePatch();
    makeCopy();
    setMode("copy/b", 0604);
    setMode("copy/c", 0666);
    setMode("copy/changed", 0640);
    const ino_t a = statusOf("copy/a").st_ino;
    fs::create_hard_link(at("copy/a"), at("other name of a"));
    expectUpdate();
    EXPECT_EQ(mode("copy/a"), 0755u);
    EXPECT_NE(statusOf("copy/a").st_ino, a) << "the old file must not change";
    EXPECT_EQ(mode("other name of a"), 0644u);
    EXPECT_EQ(mode("copy/b"), 0604u);
    EXPECT_EQ(mode("copy/c"), 0666u);
    EXPECT_EQ(mode("copy/sub"), 0750u);
    EXPECT_EQ(mode("copy/changed"), 0640u);
}

TEST_F(ApplyPatchFiles, AttributesFollowTheNewVersionAndUsersOnesStay) {
    setAttribute("before/same", "user.goes", "old");
    setAttribute("before/same", "user.changes", "old");
    setAttribute("before/same", "user.stays", "old");
    setAttribute("after/same", "user.changes", "new");
    setAttribute("after/same", "user.stays", "old");
    setAttribute("after/same", "user.comes", "new");
    setAttribute("after/sub", "user.folder", "new");
    setAttribute("after/new/folder/file", "user.brought", "new");
    makePatch();
    makeCopy();
    ASSERT_EQ(run({"cp", "-a", "--preserve=xattr", "before/.", "copy"}).status, 0);
    setAttribute("copy/same", "user.own", "mine");
    setAttribute("copy/same", "user.stays", "mine");
    setAttribute("copy/changed", "user.own", "mine");
    setAttribute("copy/sub", "user.own", "mine");
    setAttribute("copy", "user.top", "mine");
    expectUpdate();
    EXPECT_EQ(attribute("copy/same", "user.goes"), "none");
    EXPECT_EQ(attribute("copy/same", "user.changes"), "new");
    EXPECT_EQ(attribute("copy/same", "user.stays"), "mine");
    EXPECT_EQ(attribute("copy/same", "user.comes"), "new");
    EXPECT_EQ(attribute("copy/same", "user.own"), "mine");
    EXPECT_EQ(attribute("copy/changed", "user.own"), "mine");
    EXPECT_EQ(attribute("copy/sub", "user.own"), "mine");
    EXPECT_EQ(attribute("copy/sub", "user.folder"), "new");
    EXPECT_EQ(attribute("copy/new/folder/file", "user.brought"), "new");
    EXPECT_EQ(attribute("copy", "user.top"), "mine");
}

TEST_F(ApplyPatchFiles, TimesAreTheNewVersionsWhereItChangedSomethingElseTheCopys) {
    setTime("after/changed", 7000);
    setTime("after/new/folder/file", 7001);
    setTime("after/new/folder", 7002);
    setTime("after/link", 7003);
    setMode("after/same", 0711);
    setTime("after/same", 7004);
    makePatch();
    makeCopy();
    setTime("copy/sub/kept", 8000);
    setTime("copy/sub", 8001);
    setTime("copy/empty", 8002);
    setTime("copy", 8003);
    expectUpdate();
    const auto time = [&](const std::string& path) { return statusOf("copy/" + path).st_mtim; };
    EXPECT_EQ(time("changed").tv_sec, 7000);
    EXPECT_EQ(time("changed").tv_nsec, 123456789);
    EXPECT_EQ(time("new/folder/file").tv_sec, 7001);
    EXPECT_EQ(time("new/folder").tv_sec, 7002);
    EXPECT_EQ(time("link").tv_sec, 7003);
    EXPECT_EQ(time("same").tv_sec, 7004);
    EXPECT_EQ(time("sub/kept").tv_sec, 8000);
    EXPECT_EQ(time("sub").tv_sec, 8001);
    EXPECT_EQ(time("empty").tv_sec, 8002);
    EXPECT_EQ(time("").tv_sec, 8003);
    EXPECT_EQ(time("").tv_nsec, 123456789);
}

TEST_F(ApplyPatchFiles, EmptyFoldersComeGoAndStay) {
    fs::create_directories(at("before/goes/inner"));
    update();
    EXPECT_TRUE(fs::is_directory(at("copy/empty")));
    EXPECT_TRUE(fs::is_directory(at("copy/new empty")));
    EXPECT_FALSE(fs::exists(at("copy/goes")));
}

TEST_F(ApplyPatchFiles, EmptyFilesComeGoAndStay) {
    for (const char* path : {"before/stays", "after/stays", "before/goes", "after/comes",
                             "before/fills", "after/empties"})
        write(path, "");
    write("after/fills", "x");
    write("before/empties", "x");
    update();
    EXPECT_EQ(contents("copy"), contents("after"));
}

TEST_F(ApplyPatchFiles, LinksAreCarriedAsTheyStand) {
    write("outside/sentinel", "untouched");
    const std::string outside = at("outside").string();
    for (const char* version : {"before/", "after/"}) {
        const std::string top = version;
        fs::create_symlink("nowhere at all", at(top + "dangling"));
        fs::create_symlink(outside, at(top + "absolute"));
        fs::create_directory_symlink("sub", at(top + "to folder"));
        fs::create_symlink("..", at(top + "sub/up"));
        fs::create_symlink(std::string(4000, 'x'), at(top + "long"));
    }
    fs::create_symlink(outside, at("after/sub/new absolute"));
    fs::create_symlink("self", at("after/self"));
    update();
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_THAT(contents("outside"), ::testing::ElementsAre("sentinel: untouched"));
}

TEST_F(ApplyPatchFiles, EntriesChangeTheirKind) {
    write("before/file to folder", "x");
    write("after/file to folder/in it", "y");
    write("before/folder to link/in it", "x");
    fs::create_symlink("same", at("after/folder to link"));
    fs::create_symlink("same", at("before/link to file"));
    write("after/link to file", "was a link");
    fs::create_symlink("sub", at("before/link to folder"));
    write("after/link to folder/x", "y");
    write("before/folder to file/x", "y");
    write("after/folder to file", "was a folder");
    write("before/file to link", "x");
    fs::create_symlink("/dangling", at("after/file to link"));
    update();
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_EQ(contentsOf(at("copy/same")), "stays as it is");
}

TEST_F(ApplyPatchFiles, FilesThatMoveNeedNoNewContent) {
    write("before/one", std::string(9000, '1'));
    write("before/two", std::string(9000, '2'));
    write("after/one", std::string(9000, '2'));
    write("after/two", std::string(9000, '1'));
    write("after/another one", std::string(9000, '1'));
    update();
    EXPECT_EQ(contents("copy"), contents("after"));
}

TEST_F(ApplyPatchFiles, AFileThatMovedWithAllThatBelongsToItIsTheSameFile) {
    write("before/moves", "all of it");
    write("after/has moved", "all of it");
    write("after/sub/is there twice", "all of it");
    for (const char* path : {"before/moves", "after/has moved", "after/sub/is there twice"})
        setTime(path, 6000);
    makePatch();
    makeCopy();
    const ino_t inode = statusOf("copy/moves").st_ino;
    expectUpdate();
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_EQ(statusOf("copy/has moved").st_ino, inode);
    EXPECT_EQ(statusOf("copy/sub/is there twice").st_ino, inode);
}

TEST_F(ApplyPatchFiles, AFileThatStaysAndAlsoAppearsElsewhereIsTheSameFile) {
    setTime("before/same", 6000);
    setTime("after/same", 6000);
    write("after/a copy of same", "stays as it is");
    setTime("after/a copy of same", 6000);
    makePatch();
    makeCopy();
    const ino_t inode = statusOf("copy/same").st_ino;
    expectUpdate();
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_EQ(statusOf("copy/same").st_ino, inode);
}

// The list is the kernel's form: version 2, then for each entry its tag, its rights and whom it is
// about.
TEST_F(ApplyPatchFiles, RightsThatTheFolderAboveGivesByInheritanceAreNotGiven) {
    struct Entry {
        std::uint16_t tag;
        std::uint16_t rights;
        std::uint32_t whom;
    };
    constexpr std::uint32_t kNobodyNamed = 0xffffffff;
    const Entry entries[] = {{0x01, 7, kNobodyNamed},
                             {0x02, 7, 4444},
                             {0x04, 5, kNobodyNamed},
                             {0x10, 7, kNobodyNamed},
                             {0x20, 5, kNobodyNamed}};
    std::string list("\x02\0\0\0", 4);
    list.append(reinterpret_cast<const char*>(entries), sizeof entries);
    makePatch();
    makeCopy();
    if (::setxattr(at("").c_str(), "system.posix_acl_default", list.data(), list.size(), 0) != 0)
        GTEST_SKIP() << "the temporary folder's file system has no access lists";
    fs::create_directory(at("inheriting"));
    ASSERT_NE(attribute("inheriting", "system.posix_acl_access"), "none");
    expectUpdate();
    for (const char* path : {"copy", "copy/changed", "copy/new", "copy/new/folder/file"})
        for (const char* name : {"system.posix_acl_access", "system.posix_acl_default"})
            EXPECT_EQ(attribute(path, name), "none") << path;
}

TEST_F(ApplyPatchFiles, ANameMayChangeInTheCaseOfItsLettersOnly) {
    write("before/readme.TXT", "read me");
    write("before/Folder/file", "x");
    write("after/ReadMe.txt", "read me");
    write("after/FOLDER/file", "x");
    update();
    EXPECT_EQ(contents("copy"), contents("after"));
}

TEST_F(ApplyPatchFiles, NamesAreAnyBytes) {
    for (const char* name : {"gr\xc3\xb6\xc3\x9f"
                             "er",
                             "\xff\xfe not text", "line\nend", " blank ", "-n", "\\", "~", "a.b",
                             "a-b", "a b", "\xe6\x97\xa5\xe6\x9c\xac"}) {
        write("before/" + std::string(name) + "/file", "old");
        write("after/" + std::string(name) + "/file", "new");
    }
    update();
    EXPECT_EQ(contents("copy"), contents("after"));
}

TEST_F(ApplyPatchFiles, WriteProtectedFilesAndFoldersAreUpdated) {
    write("before/locked/file", "old");
    write("before/locked/deep/gone", "old");
    write("after/locked/file", "new");
    for (const char* version : {"before/", "after/"}) {
        setMode(std::string(version) + "locked/file", 0400);
        setMode(std::string(version) + "locked", 0500);
    }
    setMode("before/locked/deep/gone", 0400);
    setMode("before/locked/deep", 0500);
    makePatch();
    makeCopy();
    if (isRoot()) {
        ASSERT_EQ(run({"chown", "-R", "65534:65534", "."}).status, 0);
    }
    const Outcome outcome = applyAsOrdinaryUser();
    EXPECT_EQ(outcome.status, kDone) << outcome.output;
    EXPECT_EQ(outcome.output.find("could not"), std::string::npos) << outcome.output;
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_EQ(mode("copy/locked"), 0500u);
    EXPECT_EQ(mode("copy/locked/file"), 0400u);
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(ApplyPatchFiles, AHugeSparseFileTakesNoRoom) {
    constexpr off_t kHuge = off_t{1} << 30;
    for (const char* path : {"before/huge", "after/huge moved"}) {
        write(path, "begin");
        ASSERT_EQ(::truncate(at(path).c_str(), 16 << 20), 0);
    }
    setMode("after/huge moved", 0600);
    makePatch();
    makeCopy();
    write("copy/own", "begin");
    ASSERT_EQ(::truncate(at("copy/own").c_str(), kHuge), 0);
    expectUpdate();
    EXPECT_EQ(statusOf("copy/huge moved").st_size, 16 << 20);
    EXPECT_LT(statusOf("copy/huge moved").st_blocks, 1000);
    EXPECT_EQ(statusOf("copy/own").st_size, kHuge);
    EXPECT_LT(statusOf("copy/own").st_blocks, 1000);
}

TEST_F(ApplyPatchFiles, ADeepTreeIsUpdated) {
    std::string path;
    for (int i = 0; i < 300; ++i)
        path += "deep/";
    write("before/" + path + "file", "old");
    write("after/" + path + "file", "new");
    update();
    EXPECT_EQ(contentsOf(at("copy/" + path + "file")), "new");
}

TEST_F(ApplyPatchFiles, AFileSystemWithoutFurtherNamesGetsCopiesWithAllThatBelongsToThem) {
    makePatch();
    makeCopy();
    setAttribute("copy/same", "user.own", "mine");
    setMode("copy/same", 0604);
    setTime("copy/same", 4000);
    setTime("copy/sub/kept", 4001);
    const ino_t inode = statusOf("copy/same").st_ino;
    for (const int error : {EPERM, EMLINK, EXDEV, EOPNOTSUPP}) {
        fs::remove_all(at("work"));
        ASSERT_EQ(run({"cp", "-a", "copy", "work"}).status, 0);
        const Outcome outcome = run({REFUSE_CALL, "linkat", std::to_string(error), APPLY_PATCH,
                                     "-d", "work", "-i", "patch"});
        EXPECT_EQ(outcome.status, kDone) << outcome.output;
        EXPECT_EQ(contents("work"), contents("after"));
        EXPECT_NE(statusOf("work/same").st_ino, inode);
        EXPECT_EQ(attribute("work/same", "user.own"), "mine");
        EXPECT_EQ(mode("work/same"), 0604u);
        EXPECT_EQ(statusOf("work/same").st_mtim.tv_sec, 4000);
        EXPECT_EQ(statusOf("work/sub/kept").st_mtim.tv_sec, 4001);
        EXPECT_THAT(leftovers(), IsEmpty());
    }
}

class ApplyPatchAsAdministrator : public ApplyPatchFiles {
  protected:
    void SetUp() override { AdministratorToolTest::SetUp(); }
};

TEST_F(ApplyPatchAsAdministrator, OwnersStayAndNewFilesGetTheirFoldersOwner) {
    makePatch();
    makeCopy();
    ASSERT_EQ(run({"chown", "-Rh", "1234:4321", "copy"}).status, 0);
    ASSERT_EQ(::lchown(at("copy/changed").c_str(), 77, 78), 0);
    ASSERT_EQ(::lchown(at("copy/sub").c_str(), 88, 89), 0);
    expectUpdate();
    const auto owner = [&](const std::string& path) {
        const struct stat status = statusOf(path);
        return std::pair(status.st_uid, status.st_gid);
    };
    const auto user = std::pair(uid_t{1234}, gid_t{4321});
    EXPECT_EQ(owner("copy"), user);
    EXPECT_EQ(owner("copy/same"), user);
    EXPECT_EQ(owner("copy/link"), user);
    EXPECT_EQ(owner("copy/new/folder/file"), user);
    EXPECT_EQ(owner("copy/new"), user);
    EXPECT_EQ(owner("copy/changed"), std::pair(uid_t{77}, gid_t{78}));
    EXPECT_EQ(owner("copy/sub"), std::pair(uid_t{88}, gid_t{89}));
    EXPECT_EQ(owner("copy/sub/moved to here"), std::pair(uid_t{88}, gid_t{89}));
    EXPECT_EQ(owner("copy/sub/inner"), user);
}

TEST_F(ApplyPatchAsAdministrator, RightsToRunAsTheOwnerOutlastTheChangeOfOwner) {
    write("before/tool", "old");
    write("after/tool", "new");
    setMode("before/tool", 04755);
    setMode("after/tool", 04755);
    makePatch();
    makeCopy();
    ASSERT_EQ(::lchown(at("copy/tool").c_str(), 77, 78), 0);
    setMode("copy/tool", 04755);
    expectUpdate();
    EXPECT_EQ(mode("copy/tool"), 04755u);
    EXPECT_EQ(statusOf("copy/tool").st_uid, 77u);
}

TEST_F(ApplyPatchAsAdministrator, AnOrdinaryUserGetsNoRightToRunAsAnotherOwner) {
    write("before/tool", "old");
    write("after/tool", "new");
    setMode("before/tool", 04755);
    setMode("after/tool", 04755);
    makePatch();
    makeCopy();
    ASSERT_EQ(run({"chown", "-R", "65534:65534", "."}).status, 0);
    ASSERT_EQ(::lchown(at("copy/tool").c_str(), 0, 0), 0);
    setMode("copy/tool", 04755);
    const Outcome outcome = applyAsOrdinaryUser();
    EXPECT_EQ(outcome.status, kDone) << outcome.output;
    EXPECT_EQ(statusOf("copy/tool").st_uid, 65534u);
    EXPECT_EQ(mode("copy/tool"), 0755u);
}

} // namespace
} // namespace tools::testing
