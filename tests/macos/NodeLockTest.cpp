#include "cp/private/NodeLock.h"

#include <cerrno>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <optional>

#include "cp/CFileUtils.h"
#include "tests/macos/FakeDarwin.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using namespace Corvaldine::CP::Private;
using fakes::darwin;

constexpr unsigned kLocked = 0x2;
constexpr unsigned kHidden = 0x8000;
constexpr unsigned kLockedByTheSystem = 0x20000;

class LockOfMacOs : public testing::Test {
  protected:
    LockOfMacOs() {
        darwin() = {};
        darwin().addStatus = [this](DarwinStat& status) { status.st_flags = flags; };
        darwin().fchflags = [this](int, unsigned wanted) {
            ++writes;
            if (refusal == 0) {
                flags = wanted;
                return 0;
            }
            errno = refusal;
            return -1;
        };
        folder.write("file", "");
    }
    FileDescriptor node() { return open_node(AT_FDCWD, folder.path("file").c_str(), false); }

    tests::TemporaryFolder folder;
    unsigned flags = 0;
    int refusal = 0;
    int writes = 0;
};

TEST_F(LockOfMacOs, IsTheUsersImmutableFlag) {
    bool locked = true;
    EXPECT_TRUE(read_locked(node(), locked));
    EXPECT_FALSE(locked);
    flags = kLocked;
    EXPECT_TRUE(read_locked(node(), locked));
    EXPECT_TRUE(locked);
    flags = kHidden | kLockedByTheSystem;
    EXPECT_TRUE(read_locked(node(), locked));
    EXPECT_FALSE(locked);
}

TEST_F(LockOfMacOs, IsSetAndClearedWithoutTouchingOtherFlags) {
    flags = kHidden | kLockedByTheSystem;
    EXPECT_TRUE(set_locked(node(), true));
    EXPECT_EQ(flags, kHidden | kLockedByTheSystem | kLocked);
    EXPECT_TRUE(set_locked(node(), false));
    EXPECT_EQ(flags, kHidden | kLockedByTheSystem);
    EXPECT_EQ(writes, 2);
}

TEST_F(LockOfMacOs, IsNotWrittenWhereItIsAsWanted) {
    refusal = EPERM;
    EXPECT_TRUE(set_locked(node(), false));
    flags = kLocked;
    EXPECT_TRUE(set_locked(node(), true));
    EXPECT_EQ(writes, 0);
}

TEST_F(LockOfMacOs, IsRefusedWhereTheSystemRefuses) {
    for (const int error : {EPERM, ENOTSUP, EROFS}) {
        refusal = error;
        EXPECT_FALSE(set_locked(node(), true));
    }
    darwin().refusesStatus = true;
    bool locked = false;
    EXPECT_FALSE(read_locked(node(), locked));
    EXPECT_FALSE(set_locked(node(), true));
}

TEST_F(LockOfMacOs, OfALinkIsNobodys) {
    std::filesystem::create_symlink("file", folder.path("link"));
    EXPECT_FALSE(open_node(AT_FDCWD, folder.path("link").c_str(), false).isOpen());
    EXPECT_TRUE(open_node(AT_FDCWD, folder.path("link").c_str(), true).isOpen());
}

TEST_F(LockOfMacOs, IsWhatTheLibrarySaysOfAFile) {
    const Corvaldine::CP::CPath path(folder.path("file"));
    EXPECT_TRUE(Corvaldine::CP::CFileUtils::lock(path, true));
    EXPECT_EQ(flags, kLocked);
    EXPECT_TRUE(Corvaldine::CP::CFileUtils::is_locked(path));
}

} // namespace
