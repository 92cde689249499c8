#include "platform/posix/FinderFileCalls.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <gtest/gtest.h>
#include <map>

#include "cp/private/FinderInformation.h"
#include "platform/macos/ResourceForkWriter.h"
#include "tests/macos/FakeDarwin.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using fakes::darwin;
using Bytes = std::vector<std::byte>;

Bytes bytesOf(const std::string& text) {
    const auto bytes = std::as_bytes(std::span(text));
    return {bytes.begin(), bytes.end()};
}

class FinderFileCallsOfMacOs : public testing::Test {
  protected:
    FinderFileCallsOfMacOs() {
        darwin() = {};
        darwin().getxattr = [this](const std::string& path, const std::string& name, void* value,
                                   std::size_t size, std::uint32_t position, int options) {
            links.push_back(options);
            const auto found = attributes.find(path + " " + name);
            if (found == attributes.end() || size_t{position} > found->second.size()) {
                errno = ENODATA;
                return ssize_t{-1};
            }
            const std::string rest = found->second.substr(position);
            if (value == nullptr)
                return static_cast<ssize_t>(sizeOf.value_or(rest.size()));
            const std::size_t given = std::min({size, rest.size(), atOnce});
            std::memcpy(value, rest.data(), given);
            return static_cast<ssize_t>(given);
        };
        darwin().setxattr = [this](const std::string& where, const std::string& name,
                                   const std::string& value, std::uint32_t position, int options) {
            EXPECT_EQ(position, 0u);
            links.push_back(options);
            if (refusal != 0) {
                errno = refusal;
                return -1;
            }
            attributes[where + " " + name] = value;
            return 0;
        };
    }

    tests::TemporaryFolder folder;
    std::map<std::string, std::string> attributes;
    std::vector<int> links; ///< the options of each call
    std::optional<std::size_t> sizeOf;
    std::size_t atOnce = 1 << 20;
    int refusal = 0;
    const posix::FinderFileCalls calls = posix::finderFileCalls();
};

TEST_F(FinderFileCallsOfMacOs, InformationIsReadWholeOrNotAtAll) {
    EXPECT_FALSE(calls.readAttribute("/a"));
    attributes["/a com.apple.FinderInfo"] = "TEXTttxt" + std::string(24, '.');
    const auto bytes = calls.readAttribute("/a");
    ASSERT_TRUE(bytes);
    EXPECT_EQ(Bytes(bytes->begin(), bytes->end()), bytesOf("TEXTttxt" + std::string(24, '.')));
    EXPECT_EQ(links, (std::vector{XATTR_NOFOLLOW, XATTR_NOFOLLOW}));
    attributes["/a com.apple.FinderInfo"] = "TEXTttxt";
    EXPECT_FALSE(calls.readAttribute("/a"));
}

TEST_F(FinderFileCallsOfMacOs, InformationIsWrittenToTheItemItself) {
    posix::FinderBytes value{};
    value[0] = std::byte{'T'};
    EXPECT_EQ(calls.writeAttribute("/a", value), 0);
    EXPECT_EQ(attributes["/a com.apple.FinderInfo"], "T" + std::string(31, '\0'));
    EXPECT_EQ(links, std::vector{XATTR_NOFOLLOW});
    refusal = EPERM;
    EXPECT_EQ(calls.writeAttribute("/a", value), EPERM);
}

TEST_F(FinderFileCallsOfMacOs, AForkIsReadToItsEndInPieces) {
    const std::string fork(1000, 'f');
    attributes["/a com.apple.ResourceFork"] = fork + "end";
    atOnce = 300;
    EXPECT_EQ(calls.readFork("/a"), bytesOf(fork + "end"));
    EXPECT_EQ(links, std::vector(5, XATTR_NOFOLLOW)); // its size, and four pieces
    EXPECT_TRUE(calls.readFork("/none").empty());
}

TEST_F(FinderFileCallsOfMacOs, AForkThatCannotBeReadIsEmpty) {
    attributes["/a com.apple.ResourceFork"] = "short";
    sizeOf = 10; // it has become shorter since
    EXPECT_TRUE(calls.readFork("/a").empty());
    sizeOf = (std::size_t{256} << 20) + 1; // more than is taken into memory
    EXPECT_TRUE(calls.readFork("/a").empty());
}

TEST_F(FinderFileCallsOfMacOs, AForkIsWrittenToAnOpenFile) {
    EXPECT_EQ(macoshost::writeResourceFork(7, bytesOf("fork")), 0);
    EXPECT_EQ(attributes["#7 com.apple.ResourceFork"], "fork");
    refusal = ENOSPC;
    EXPECT_EQ(macoshost::writeResourceFork(7, bytesOf("fork")), ENOSPC);
}

TEST_F(FinderFileCallsOfMacOs, AnItemWasMadeWhenTheFileSystemSays) {
    std::int64_t made = 1000;
    darwin().addStatus = [&](DarwinStat& status) {
        status.st_birthtimespec = {.tv_sec = made, .tv_nsec = 0};
        status.st_mtimespec = {.tv_sec = 3000, .tv_nsec = 0};
        status.st_ctimespec = {.tv_sec = 2000, .tv_nsec = 0};
    };
    EXPECT_EQ(calls.creationTime(folder.path()), 1000);
    for (const std::int64_t unknown : {0, -1}) {
        made = unknown;
        EXPECT_EQ(calls.creationTime(folder.path()), 2000);
    }
    EXPECT_EQ(calls.creationTime(folder.path("none")), 0);
}

TEST_F(FinderFileCallsOfMacOs, TheLibraryReadsAFilesTypeThroughLinks) {
    std::uint32_t code = 1;
    EXPECT_FALSE(Corvaldine::CP::Private::finder_file_type("/a", code));
    attributes["/a com.apple.FinderInfo"] = "TEXTttxt" + std::string(24, '\0');
    EXPECT_TRUE(Corvaldine::CP::Private::finder_file_type("/a", code));
    EXPECT_EQ(code, 0x54455854u);
    EXPECT_EQ(links.back(), 0);
    attributes["/a com.apple.FinderInfo"] = "TEX";
    EXPECT_FALSE(Corvaldine::CP::Private::finder_file_type("/a", code));
}

} // namespace
