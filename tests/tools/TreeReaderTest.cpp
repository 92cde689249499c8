#include "tools/patchTree/TreeReader.h"

#include <algorithm>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/PatchMaker.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/files/Descriptor.h"
#include "tools/files/FileError.h"
#include "tools/patchTree/FileSource.h"

namespace tools {
namespace {

namespace fs = std::filesystem;
using ::testing::ElementsAre;

class TreeReaderTest : public ::testing::Test {
  protected:
    Descriptor top() const {
        return Descriptor(
            checked(::open(m_folder.path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)));
    }
    static std::vector<std::string> paths(const Tree& tree) {
        std::vector<std::string> all;
        for (const patch::Entry& entry : tree.entries)
            all.push_back(entry.path);
        return all;
    }
    const tests::TemporaryFolder m_folder;
};

TEST_F(TreeReaderTest, ListsFoldersBeforeWhatIsInThemInTheFormatsOrder) {
    for (const char* path : {"a/b", "a.c", "a b", "b/z/y", "b-", "a/a/a"})
        m_folder.write(path, "x");
    const Descriptor folder = top();
    const Tree tree = TreeReader(folder.number()).list();
    EXPECT_THAT(paths(tree),
                ElementsAre("a", "a/a", "a/a/a", "a/b", "a b", "a.c", "b", "b/z", "b/z/y", "b-"));
    EXPECT_TRUE(std::ranges::is_sorted(tree.entries, patch::pathOrder, &patch::Entry::path));
}

TEST_F(TreeReaderTest, FindsWhatAnotherReaderFinds) {
    m_folder.write("sub/file", "content");
    m_folder.write("empty", "");
    m_folder.write("large", std::string(3'000'000, 'l'));
    fs::create_directory(m_folder.path("folder"));
    fs::create_symlink("sub/file", m_folder.path("link"));
    fs::permissions(m_folder.path("sub/file"), fs::perms(04751));
    ASSERT_EQ(::setxattr(m_folder.path("large").c_str(), "user.name", "value", 5, 0), 0);
    ASSERT_EQ(::setxattr(m_folder.path("folder").c_str(), "user.other", "v", 1, 0), 0);
    const Descriptor folder = top();
    const TreeReader reader(folder.number());
    Tree tree = reader.list();
    std::atomic<std::uint64_t> read = 0;
    reader.addDigests(tree, [&](std::uint64_t bytes) { read += bytes; });
    EXPECT_EQ(read, 3'000'007u);
    EXPECT_EQ(tree.entries,
              tests::patchBetween(m_folder.path(), m_folder.path()).manifest.oldEntries);
}

TEST_F(TreeReaderTest, PipesStandApart) {
    m_folder.write("file", "x");
    ASSERT_EQ(::mkfifo(m_folder.path("pipe").c_str(), 0600), 0);
    const Descriptor folder = top();
    const Tree tree = TreeReader(folder.number()).list();
    EXPECT_THAT(paths(tree), ElementsAre("file"));
    ASSERT_EQ(tree.specials.size(), 1u);
    EXPECT_EQ(tree.specials.front().path, "pipe");
}

TEST_F(TreeReaderTest, AFileThatChangedSinceTheListIsAnErrorThatNamesIt) {
    m_folder.write("sub/file", "content");
    const Descriptor folder = top();
    const TreeReader reader(folder.number());
    Tree tree = reader.list();
    fs::remove(m_folder.path("sub/file"));
    m_folder.write("sub/file", "CONTENT");
    try {
        reader.addDigests(tree);
        FAIL() << "the change was not noticed";
    } catch (const FileError& error) {
        EXPECT_EQ(error.path(), "sub/file");
        EXPECT_EQ(error.code().value(), ESTALE);
    }
}

TEST_F(TreeReaderTest, AFileThatBecameALinkIsNotFollowed) {
    m_folder.write("file", "content");
    m_folder.write("other", "content");
    const Descriptor folder = top();
    const TreeReader reader(folder.number());
    Tree tree = reader.list();
    fs::remove(m_folder.path("file"));
    fs::create_symlink("other", m_folder.path("file"));
    EXPECT_THROW(reader.addDigests(tree), FileError);
}

TEST_F(TreeReaderTest, AFolderThatBecameALinkIsNotFollowed) {
    m_folder.write("sub/file", "content");
    const Descriptor folder = top();
    const TreeReader reader(folder.number());
    Tree tree = reader.list();
    fs::rename(m_folder.path("sub"), m_folder.path("elsewhere"));
    fs::create_directory_symlink("elsewhere", m_folder.path("sub"));
    EXPECT_THROW(reader.addDigests(tree), FileError);
}

TEST_F(TreeReaderTest, ASourceEndsWhereTheFileEnds) {
    m_folder.write("file", "0123456789");
    const Descriptor file(::open(m_folder.path("file").c_str(), O_RDONLY | O_CLOEXEC));
    const FileSource source(file.number());
    EXPECT_EQ(source.size(), 10u);
    patch::Bytes bytes(4);
    source.read(6, bytes);
    EXPECT_EQ(bytes[0], std::byte{'6'});
    EXPECT_THROW(source.read(7, bytes), patch::FormatError);
    const Descriptor folder = top();
    EXPECT_THROW(FileSource{folder.number()}, std::system_error);
}

} // namespace
} // namespace tools
