#include "cp/private/CopyFile.h"

#include <cerrno>
#include <filesystem>
#include <gtest/gtest.h>
#include <vector>

#include "tests/macos/FakeDarwin.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using Corvaldine::CP::Private::copy_file;
using Corvaldine::CP::Private::kCopyAll;
using Corvaldine::CP::Private::kCopyRecursive;
using fakes::darwin;
using Names = std::vector<std::string>;

constexpr std::uint32_t kTree = kCopyAll | kCopyRecursive;
constexpr std::uint32_t kExclusivelyAndLinksAsLinks = 1u << 17 | 1u << 18 | 1u << 19;

int failWith(int error) {
    errno = error;
    return -1;
}

// The system's call does with real files what each test makes of it.
class CopyOfMacOs : public testing::Test {
  protected:
    CopyOfMacOs() {
        darwin() = {};
        darwin().addStatus = [](DarwinStat& status) { status.st_flags = 0; };
        folder.write("file", "text");
        fs::create_directories(folder.path("tree/sub"));
        folder.write("tree/sub/file", "text");
    }
    ~CopyOfMacOs() override { EXPECT_EQ(darwin().copyStates, 0); }

    // What the system tells of an entry of a tree; false when it is to stop.
    static bool tell(DarwinCopyState* state, int what, int stage) {
        return state->tell(what, stage) == COPYFILE_CONTINUE;
    }
    bool copy(const char* from, const std::string& to, std::uint32_t flags) {
        return copy_file(folder.path(from), folder.path(to), flags);
    }

    tests::TemporaryFolder folder;
};

TEST_F(CopyOfMacOs, OfAFileIsOneCallWithEverythingOfIt) {
    int calls = 0;
    darwin().copyfile = [&](const std::string& from, const std::string& to, DarwinCopyState* state,
                            std::uint32_t flags) {
        ++calls;
        EXPECT_EQ(from, folder.path("file"));
        EXPECT_EQ(to, folder.path("copy"));
        EXPECT_NE(state, nullptr);
        EXPECT_EQ(flags, 15u | kExclusivelyAndLinksAsLinks);
        fs::copy(from, to);
        return 0;
    };
    EXPECT_TRUE(copy("file", "copy", kCopyAll));
    EXPECT_TRUE(copy("file", "copy", kCopyAll) == false && calls == 1);
    fs::remove(folder.path("copy"));
    fs::create_symlink("file", folder.path("link"));
    EXPECT_TRUE(copy("link", "copy/", kTree));
    EXPECT_EQ(calls, 2);
}

TEST_F(CopyOfMacOs, OfATreeIsOneCallWithEverythingInIt) {
    darwin().copyfile = [&](const std::string& from, const std::string& to, DarwinCopyState* state,
                            std::uint32_t flags) {
        EXPECT_EQ(flags, 32783u | kExclusivelyAndLinksAsLinks);
        EXPECT_EQ(to, folder.path("copy"));
        EXPECT_TRUE(tell(state, COPYFILE_RECURSE_DIR, COPYFILE_START));
        fs::copy(from, to, fs::copy_options::recursive);
        EXPECT_TRUE(tell(state, COPYFILE_RECURSE_DIR, COPYFILE_FINISH));
        return 0;
    };
    EXPECT_TRUE(copy("tree", "copy", kTree));
    EXPECT_EQ(folder.names("copy/sub"), Names{"file"});
}

TEST_F(CopyOfMacOs, ThatMayNotBeMadeIsNotTried) {
    folder.write("there", "theirs");
    fs::create_directory(folder.path("empty"));
    fs::create_symlink("none", folder.path("dangling"));
    for (const char* to : {"there", "empty", "empty/", "dangling", "none/copy", "file/copy"})
        for (const char* from : {"file", "tree"})
            EXPECT_FALSE(copy(from, to, kTree)) << from << to;
    EXPECT_FALSE(copy("none", "copy", kTree));
    EXPECT_FALSE(copy("tree", "copy", kCopyAll)); // a folder without what is in it
    EXPECT_FALSE(copy("tree", "tree/sub/copy", kTree));
    EXPECT_FALSE(copy_file("/", folder.path("copy"), kTree));
    EXPECT_EQ(folder.read("there"), "theirs");
    EXPECT_EQ(folder.names(), (Names{"dangling", "empty", "file", "there", "tree"}));
}

TEST_F(CopyOfMacOs, ThatStopsHalfWayIsClearedAway) {
    darwin().copyfile = [&](const std::string&, const std::string& to, DarwinCopyState*,
                            std::uint32_t) {
        folder.write(to, "te");
        return failWith(ENOSPC);
    };
    EXPECT_FALSE(copy("file", "copy", kCopyAll));
    EXPECT_FALSE(fs::exists(folder.path("copy")));

    // A write-protected folder in it, and a name that the target's file system has already.
    for (const int error : {ENOSPC, EACCES, EEXIST}) {
        darwin().copyfile = [&](const std::string&, const std::string& to, DarwinCopyState* state,
                                std::uint32_t) {
            fs::create_directories(to + "/sub");
            EXPECT_TRUE(tell(state, COPYFILE_RECURSE_DIR, COPYFILE_FINISH));
            folder.write(to + "/sub/file", "te");
            fs::permissions(to + "/sub", fs::perms::owner_read | fs::perms::owner_exec);
            errno = error;
            EXPECT_FALSE(tell(state, COPYFILE_RECURSE_FILE, COPYFILE_ERR));
            return failWith(ECANCELED);
        };
        EXPECT_FALSE(copy("tree", "copy", kTree));
        EXPECT_FALSE(fs::exists(folder.path("copy"))) << error;
    }
}

TEST_F(CopyOfMacOs, OfATreeWhoseFirstFolderFailsIsClearedAway) {
    darwin().copyfile = [&](const std::string&, const std::string& to, DarwinCopyState* state,
                            std::uint32_t) {
        fs::create_directory(to);
        errno = ENOTSUP;
        EXPECT_FALSE(tell(state, COPYFILE_RECURSE_DIR, COPYFILE_ERR));
        return failWith(ENOTSUP);
    };
    EXPECT_FALSE(copy("tree", "copy", kTree));
    EXPECT_FALSE(fs::exists(folder.path("copy")));
}

TEST_F(CopyOfMacOs, LeavesWhatSomebodyElsePutThereMeanwhile) {
    darwin().copyfile = [&](const std::string&, const std::string& to, DarwinCopyState*,
                            std::uint32_t) {
        folder.write(to, "theirs");
        return failWith(EEXIST);
    };
    EXPECT_FALSE(copy("file", "copy", kCopyAll));
    EXPECT_EQ(folder.read("copy"), "theirs");
    fs::remove(folder.path("copy"));

    darwin().copyfile = [&](const std::string&, const std::string& to, DarwinCopyState* state,
                            std::uint32_t) {
        fs::create_directory(to);
        folder.write(to + "/notes", "theirs");
        errno = EEXIST;
        EXPECT_FALSE(tell(state, COPYFILE_RECURSE_DIR, COPYFILE_ERR));
        return failWith(ECANCELED);
    };
    EXPECT_FALSE(copy("tree", "copy", kTree));
    EXPECT_EQ(folder.names("copy"), Names{"notes"});
}

TEST_F(CopyOfMacOs, ThatIsLockedAlreadyIsUnlockedAndClearedAway) {
    std::vector<unsigned> written;
    darwin().addStatus = [](DarwinStat& status) { status.st_flags = UF_IMMUTABLE | 0x8000; };
    darwin().fchflags = [&](int, unsigned flags) {
        written.push_back(flags);
        return 0;
    };
    darwin().copyfile = [&](const std::string&, const std::string& to, DarwinCopyState* state,
                            std::uint32_t) {
        fs::create_directories(to + "/sub");
        tell(state, COPYFILE_RECURSE_DIR, COPYFILE_FINISH);
        return failWith(EIO);
    };
    EXPECT_FALSE(copy("tree", "copy", kTree));
    EXPECT_FALSE(fs::exists(folder.path("copy")));
    EXPECT_EQ(written, (std::vector<unsigned>{0x8000, 0x8000})); // the tree and its folder
}

TEST_F(CopyOfMacOs, LeavesOutAttributesThatAreRefused) {
    for (const char* from : {"file", "tree"})
        for (const int error : {ENOTSUP, EPERM, EACCES}) {
            darwin().copyfile = [&](const std::string& source, const std::string& to,
                                    DarwinCopyState* state, std::uint32_t) {
                fs::copy(source, to, fs::copy_options::recursive);
                EXPECT_TRUE(tell(state, COPYFILE_COPY_XATTR, COPYFILE_START));
                errno = error;
                EXPECT_TRUE(tell(state, COPYFILE_COPY_XATTR, COPYFILE_ERR)) << error;
                return 0;
            };
            EXPECT_TRUE(copy(from, "copy", kTree));
            fs::remove_all(folder.path("copy"));
        }
}

TEST_F(CopyOfMacOs, WhoseAttributesFailOtherwiseIsClearedAway) {
    for (const char* from : {"file", "tree"})
        for (const int error : {ENOSPC, EIO, EEXIST}) {
            darwin().copyfile = [&](const std::string& source, const std::string& to,
                                    DarwinCopyState* state, std::uint32_t) {
                fs::copy(source, to, fs::copy_options::recursive);
                errno = error;
                EXPECT_FALSE(tell(state, COPYFILE_COPY_XATTR, COPYFILE_ERR)) << error;
                return failWith(ECANCELED);
            };
            EXPECT_FALSE(copy(from, "copy", kTree));
            EXPECT_FALSE(fs::exists(folder.path("copy"))) << from << error;
        }
}

TEST_F(CopyOfMacOs, WithoutMemoryIsNotBegun) {
    darwin().refusesCopyState = true;
    EXPECT_FALSE(copy("file", "copy", kCopyAll));
    EXPECT_FALSE(copy("tree", "copy", kTree));
    EXPECT_EQ(folder.names(), (Names{"file", "tree"}));
}

} // namespace
