#include "cp/CDir.h"

#include <algorithm>
#include <climits>
#include <set>
#include <string>

#include "cp/CException.h"
#include "tests/cp/FolderTest.h"

using namespace Corvaldine::CP;

namespace {

class Directories : public FolderTest {
  protected:
    std::set<std::string> entries(const CPath& directory) const {
        std::set<std::string> names;
        for (const CPath& entry : CDir(directory)) {
            CPath parent;
            entry.get_item(CPath::item_parent, parent);
            EXPECT_EQ(parent, directory);
            std::string name;
            entry.copy_ansi_item(CPath::item_name, name, CStringConverter::utf8);
            EXPECT_TRUE(names.insert(name).second) << name;
        }
        return names;
    }
};

} // namespace

TEST_F(Directories, EveryEntryIsGivenOnce) {
    std::filesystem::create_directory(at("a"));
    write("b", "");
    write("\xC3\xA9", "");
    std::filesystem::create_symlink("nowhere", at("link"));
    EXPECT_EQ(entries(top()), (std::set<std::string>{"a", "b", "\xC3\xA9", "link"}));
    EXPECT_TRUE(entries(path("a")).empty());
}

TEST_F(Directories, WhatIsNoFolderHasNoEntries) {
    write("file", "");
    for (const CPath& directory : {path("file"), path("missing"), CPath()}) {
        CDir dir(directory);
        EXPECT_TRUE(dir.begin() == dir.end());
        EXPECT_TRUE(dir.begin() == CDir::kEnd);
    }
}

TEST_F(Directories, AnIteratorAdvancesByAnyNumberOfEntries) {
    for (const char* name : {"a", "b", "c", "d"})
        write(name, "");
    CDir dir{top()};
    auto entry = dir.begin();
    const CPath first = *entry;
    entry._get_next(0);
    entry._get_next(-3);
    EXPECT_EQ(*entry, first);
    entry._get_next(3);
    EXPECT_FALSE(*entry == first);
    EXPECT_TRUE(entry != dir.end());
    entry._get_next(1);
    EXPECT_TRUE(entry == dir.end());
    EXPECT_EQ(*entry, CPath());
    entry._get_next(1);
    EXPECT_TRUE(entry == dir.end());
    auto other = dir.begin();
    other._get_next(100);
    EXPECT_TRUE(other == dir.end());
}

TEST_F(Directories, AnIteratorOutlivesItsDirectoryObject) {
    write("a", "");
    auto entry = CDir(top()).begin();
    EXPECT_EQ(*entry++, path("a"));
    EXPECT_TRUE(entry == CDir::kEnd);
}

TEST_F(Directories, ANameThatIsNotTextIsLeftOut) {
    if (!std::ofstream(at("\xFF")).good())
        GTEST_SKIP() << "no such names here";
    write("a", "");
    EXPECT_EQ(entries(top()), std::set<std::string>{"a"});
}

TEST_F(Directories, RecursiveCreationMakesTheMissingParents) {
    std::filesystem::create_directory(at("a"));
    EXPECT_TRUE(CDir::create(path("a/b/c"), true));
    EXPECT_TRUE(path("a/b/c").is_directory());
    EXPECT_TRUE(CDir::create(path("a/b/c"), true));
}

TEST_F(Directories, PlainCreationFailsWithoutTheParentByExceptionCodeZero) {
    try {
        static_cast<void>(CDir::create(path("a/b/c"), false));
        ADD_FAILURE() << "nothing thrown";
    } catch (const CException& error) {
        EXPECT_EQ(error.get_code(), 0u);
    }
    EXPECT_THROW(static_cast<void>(CDir::create(CPath(), false)), CException);
}

TEST_F(Directories, PlainCreationMakesExactlyOneFolder) {
    EXPECT_TRUE(CDir::create(path("a"), false));
    EXPECT_TRUE(path("a").is_directory());
    EXPECT_FALSE(CDir::create(path("a"), false));
    write("file", "");
    EXPECT_FALSE(CDir::create(path("file"), false));
    EXPECT_FALSE(CDir::create(path("file/below"), false));
    EXPECT_TRUE(CDir::create(path("a/b/"), false));
    EXPECT_TRUE(path("a/b").is_directory());
}

TEST_F(Directories, RecursiveCreationEndsWhereNothingCanBeMade) {
    write("file", "");
    EXPECT_FALSE(CDir::create(path("file/a/b"), true));
    EXPECT_FALSE(CDir::create(path("nowhere/.."), true));
    EXPECT_FALSE(CDir::create(CPath(), true));
    EXPECT_TRUE(CDir::create(CPath("/"), true));
}

TEST_F(Directories, RecursiveCreationOfAVeryLongPathFails) {
    // Longer than any path may be, with names as long as they may be: few levels are enough.
    std::string deep = folder.path();
    while (deep.size() <= PATH_MAX)
        deep += "/" + std::string(NAME_MAX, 'd');
    EXPECT_FALSE(CDir::create(CPath(deep), true));
    EXPECT_TRUE(path(std::string(NAME_MAX, 'd')).is_directory()) << "it went as deep as it could";
}
