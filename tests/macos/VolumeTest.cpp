#include "cp/private/Volume.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <vector>

#include "cp/CPath.h"
#include "tests/macos/FakeDarwin.h"
#include "tests/support/TemporaryFolder.h"

using Corvaldine::CP::Private::volume_of;
using fakes::darwin;

namespace {

class VolumeOfMacOs : public testing::Test {
  protected:
    VolumeOfMacOs() {
        darwin() = {};
        darwin().statfs = [this](const std::string& path, struct statfs& status) {
            asked.push_back(path);
            if (statfsError != 0) {
                errno = statfsError;
                return -1;
            }
            std::strcpy(status.f_mntonname, mountPoint.c_str());
            return 0;
        };
        darwin().getattrlist = [this](const std::string& path, const attrlist& wanted, void* answer,
                                      std::size_t size) {
            named.push_back(path);
            EXPECT_EQ(wanted.bitmapcount, 5);
            EXPECT_EQ(wanted.volattr, 0x80002000u); // ATTR_VOL_INFO, ATTR_VOL_NAME
            EXPECT_EQ(wanted.commonattr | wanted.dirattr | wanted.fileattr | wanted.forkattr, 0u);
            if (!name) {
                errno = ENOTSUP;
                return -1;
            }
            return give(answer, size);
        };
    }

    // As the system packs it: the length of all, where the name begins, counted from the reference
    // itself, its length with the zero, and the name; what does not fit is cut off.
    int give(void* answer, std::size_t size) const {
        std::string bytes(12, '\0');
        bytes += std::string(gap, '#') + *name + '\0';
        const std::uint32_t length =
            says.value_or(static_cast<std::uint32_t>(std::min(size, (bytes.size() + 3) / 4 * 4)));
        const std::int32_t offset = startsAt.value_or(static_cast<std::int32_t>(8 + gap));
        const auto nameLength = static_cast<std::uint32_t>(name->size() + 1);
        std::memcpy(bytes.data(), &length, 4);
        std::memcpy(bytes.data() + 4, &offset, 4);
        std::memcpy(bytes.data() + 8, &nameLength, 4);
        std::memcpy(answer, bytes.data(), std::min(size, bytes.size()));
        return 0;
    }

    tests::TemporaryFolder folder;
    std::string mountPoint = "/";
    std::optional<std::string> name = "Macintosh HD";
    std::size_t gap = 0;
    std::optional<std::int32_t> startsAt;
    std::optional<std::uint32_t> says; ///< the length of all, where it is not what was given
    int statfsError = 0;
    std::vector<std::string> asked;
    std::vector<std::string> named;
};

TEST_F(VolumeOfMacOs, HasTheNameThatItWasGiven) {
    EXPECT_EQ(volume_of("/").name, "Macintosh HD");
    EXPECT_EQ(volume_of("/").mount_point, "/");
    mountPoint = folder.path();
    name = "Größe";
    EXPECT_EQ(volume_of(folder.path()).name, "Größe");
    EXPECT_EQ(volume_of(folder.path()).mount_point, folder.path());
    EXPECT_EQ(named.back(), folder.path());
}

TEST_F(VolumeOfMacOs, IsThatOfWhatALinkLeadsTo) {
    std::filesystem::create_directory(folder.path("real"));
    std::filesystem::create_directory_symlink("real", folder.path("link"));
    EXPECT_EQ(volume_of(folder.path("link")).name, "Macintosh HD");
    EXPECT_EQ(asked, std::vector{folder.path("real")});
}

TEST_F(VolumeOfMacOs, IsTheStartupDiskForAPathThatSaysNothingOfItsMountPoint) {
    mountPoint = "/System/Volumes/Data";
    EXPECT_EQ(volume_of(folder.path()).mount_point, "/");
    EXPECT_EQ(volume_of(folder.path()).name, "Macintosh HD");
    EXPECT_EQ(named, (std::vector<std::string>{"/", "/"}));
    // A name that only begins alike is another folder's.
    mountPoint = folder.path("a");
    std::filesystem::create_directory(folder.path("ab"));
    EXPECT_EQ(volume_of(folder.path("ab")).mount_point, "/");
}

TEST_F(VolumeOfMacOs, IsNoneForAPathThatDoesNotResolve) {
    EXPECT_EQ(volume_of(folder.path("none")).name, "");
    EXPECT_EQ(volume_of(folder.path("none")).mount_point, "");
    EXPECT_TRUE(asked.empty());
    statfsError = EIO;
    EXPECT_EQ(volume_of(folder.path()).name, "");
    EXPECT_TRUE(named.empty());
}

TEST_F(VolumeOfMacOs, TheNameBeginsWhereTheAnswerSays) {
    gap = 8;
    EXPECT_EQ(volume_of("/").name, "Macintosh HD");
}

TEST_F(VolumeOfMacOs, TheLongestNameIsWhole) {
    // 255 characters of three bytes.
    name = "";
    for (int i = 0; i < 255; ++i)
        *name += "語";
    EXPECT_EQ(volume_of("/").name, *name);
}

TEST_F(VolumeOfMacOs, ANameThatIsCutOffIsNotReadPastTheAnswer) {
    name = std::string(5000, 'n');
    EXPECT_EQ(volume_of("/").name, std::string(768, 'n'));
}

TEST_F(VolumeOfMacOs, ANameEndsWithTheAnswerWhateverItsOwnLengthSays) {
    says = 12 + 9;
    EXPECT_EQ(volume_of("/").name, "Macintosh");
}

TEST_F(VolumeOfMacOs, AnAnswerThatPointsOutsideItselfGivesTheMountPointsName) {
    mountPoint = folder.path();
    const std::string last = std::filesystem::path(folder.path()).filename();
    for (const std::int32_t at : {-100, 0, 7, 100000, 0x7FFFFFFF}) {
        startsAt = at;
        EXPECT_EQ(volume_of(folder.path()).name, last) << at;
    }
}

TEST_F(VolumeOfMacOs, WithoutAGivenNameTheMountPointsNameCounts) {
    mountPoint = folder.path();
    name.reset();
    EXPECT_EQ(volume_of(folder.path()).name, std::filesystem::path(folder.path()).filename());
    name = "";
    EXPECT_EQ(volume_of(folder.path()).name, std::filesystem::path(folder.path()).filename());
}

TEST_F(VolumeOfMacOs, IsWhatAPathSaysOfItsVolume) {
    std::wstring item;
    Corvaldine::CP::CPath(folder.path())
        .copy_unicode_item(Corvaldine::CP::CPath::item_volume, item);
    EXPECT_EQ(item, L"Macintosh HD");
}

} // namespace
