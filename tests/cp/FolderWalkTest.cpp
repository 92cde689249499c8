#include "cp/FolderWalk.h"

#include <dirent.h>
#include <fcntl.h>
#include <random>
#include <set>
#include <sys/resource.h>
#include <sys/stat.h>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "cp/private/FileDescriptor.h"
#include "cp/private/FolderReader.h"
#include "cp/private/TreeWalk.h"
#include "tests/cp/FolderTest.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Settled.h"

using namespace Corvaldine::CP;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAreArray;

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

bool beginsWithW(std::string_view name) {
    return name.starts_with('W');
}

class FolderWalks : public FolderTest {
  protected:
    void make(const std::string& name) { fs::create_directories(at(name)); }
    /// Without the folder's own path.
    Names below(Names paths) const {
        for (std::string& path : paths) {
            EXPECT_TRUE(path.starts_with(folder.path() + "/")) << path;
            path.erase(0, folder.path().size() + 1);
        }
        return paths;
    }
    Names find(const FolderWalk::Wanted& wanted = beginsWithW) {
        return below(FolderWalk(wanted).find(folder.path()));
    }
};

/// Only so many descriptors may be open until the end of the scope.
class FewDescriptors {
  public:
    explicit FewDescriptors(rlim_t most) {
        ::getrlimit(RLIMIT_NOFILE, &m_before);
        const rlimit few{most, m_before.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    }
    ~FewDescriptors() { ::setrlimit(RLIMIT_NOFILE, &m_before); }
    FewDescriptors(const FewDescriptors&) = delete;
    FewDescriptors& operator=(const FewDescriptors&) = delete;

  private:
    rlimit m_before{};
};

} // namespace

TEST_F(FolderWalks, ItemsOfEveryKindAreFoundInTheOrderOfTheirNamesEachBeforeWhatIsBelowIt) {
    make("W/W1");
    make("W 2");
    make("a/W");
    write("a/V", "");
    write("W/0/W", "");
    ASSERT_EQ(::mkfifo(at("a/W pipe").c_str(), 0600), 0);
    fs::create_symlink("absent", at("W+"));
    EXPECT_THAT(find(), ElementsAre("W", "W/0/W", "W/W1", "W 2", "W+", "a/W", "a/W pipe"));
}

TEST_F(FolderWalks, BundlesAreItemsAndAreNeverLookedInto) {
    for (const std::string name : {"W.app", "W.bundle", "a.app", "b/c.bundle", "..app"})
        make(name + "/W");
    EXPECT_THAT(find(), ElementsAre("W.app", "W.bundle"));
}

TEST_F(FolderWalks, AFolderWhoseNameOnlyLooksLikeABundlesIsLookedInto) {
    for (const std::string name : {".app", ".bundle", "a.App", "b.apps", "c.localized", "app"})
        make(name + "/W");
    EXPECT_THAT(find(), ElementsAre(".app/W", ".bundle/W", "a.App/W", "app/W", "b.apps/W",
                                    "c.localized/W"));
}

TEST_F(FolderWalks, LinksAreItemsAndAreNotFollowedButTheFolderItselfMayBeOne) {
    make("a/W");
    fs::create_directory_symlink("..", at("a/circle"));
    fs::create_directory_symlink("../a", at("a/W link"));
    const Names expected{"a/W", "a/W link"};
    EXPECT_EQ(find(), expected);
    fs::create_directory_symlink(folder.path(), at("top"));
    EXPECT_THAT(FolderWalk(beginsWithW).find(folder.path("top/a")),
                ElementsAre(folder.path("top/a/W"), folder.path("top/a/W link")));
    EXPECT_THAT(FolderWalk(beginsWithW).find(folder.path("top")).size(), 2u);
}

TEST_F(FolderWalks, TheFolderStaysSpelledAsItWasGiven) {
    make("a/W");
    EXPECT_THAT(FolderWalk(beginsWithW).find(folder.path("a/")), ElementsAre(folder.path("a/W")));
    EXPECT_THAT(FolderWalk(beginsWithW).find(folder.path("a//../a")),
                ElementsAre(folder.path("a//../a/W")));
}

TEST_F(FolderWalks, WhatIsNoFolderHasNothingBelow) {
    write("W", "");
    ASSERT_EQ(::mkfifo(at("pipe").c_str(), 0600), 0);
    FolderWalk walk(beginsWithW, FolderWalk::Memory::folders);
    for (const std::string name : {"W", "absent", "pipe"})
        EXPECT_THAT(walk.find(folder.path(name)), IsEmpty());
    EXPECT_THAT(walk.find(""), IsEmpty());
}

TEST_F(FolderWalks, NamesMayHoldAnyBytes) {
    const Names names{"W\n/W\n\n", "W|||x", "W\xFF\xFE", "W\xE2\x80\xA8", std::string(255, 'W')};
    for (const std::string& name : names)
        make(name);
    Names expected = names;
    expected.emplace_back("W\n");
    EXPECT_THAT(find(), UnorderedElementsAreArray(expected));
}

TEST_F(FolderWalks, AFolderThatCannotBeReadOrEnteredIsPassedOver) {
    make("a/W");
    make("b/c/W");
    make("d/W");
    fs::permissions(at("a"), fs::perms::owner_exec);
    fs::permissions(at("b"), fs::perms::owner_read); // its names show, and nothing more
    const tests::AsOrdinaryUser ordinary(folder.path());
    FolderWalk remembering(beginsWithW, FolderWalk::Memory::folders);
    for (int i = 0; i < 2; ++i) {
        EXPECT_THAT(find(), ElementsAre("d/W"));
        EXPECT_THAT(below(remembering.find(folder.path())), ElementsAre("d/W"));
    }
}

TEST_F(FolderWalks, AFolderThatGoesAwayDuringTheWalkIsPassedOver) {
    make("a/W");
    make("b/W");
    // The names are known by now, and the folders not yet open.
    bool isFirst = true;
    const auto removing = [&](std::string_view name) {
        if (std::exchange(isFirst, false))
            fs::remove_all(at("a"));
        return beginsWithW(name);
    };
    EXPECT_THAT(find(removing), ElementsAre("b/W"));
}

TEST_F(FolderWalks, ALinkThatTakesAFoldersPlaceDuringTheWalkIsNotFollowed) {
    make("tree/a/W");
    make("elsewhere/W");
    bool isFirst = true;
    const FolderWalk::Wanted swapping = [&](std::string_view name) {
        if (std::exchange(isFirst, false)) {
            fs::remove_all(at("tree/a"));
            fs::create_directory_symlink(at("elsewhere"), at("tree/a"));
        }
        return beginsWithW(name);
    };
    EXPECT_THAT(FolderWalk(swapping).find(folder.path("tree")), IsEmpty());
}

TEST_F(FolderWalks, HundredsOfLevelsNeedFewDescriptors) {
    std::string path = folder.path();
    for (int i = 0; i < 300; ++i) {
        fs::create_directory(path + "/a"); // so that the walk comes back to each level
        fs::create_directory(path += "/d");
    }
    fs::create_directory(path + "/W");
    const FewDescriptors few(48);
    EXPECT_THAT(FolderWalk(beginsWithW).find(folder.path()), ElementsAre(path + "/W"));
}

TEST_F(FolderWalks, AFolderBelowALongerPathThanTheSystemTakesIsReached) {
    const std::string name(100, 'd');
    Private::FileDescriptor level(::open(folder.path().c_str(), O_RDONLY | O_CLOEXEC));
    for (int i = 0; i < 60; ++i) {
        ASSERT_EQ(::mkdirat(level.number(), "a", 0700), 0);
        ASSERT_EQ(::mkdirat(level.number(), name.c_str(), 0700), 0);
        level = Private::open_folder(level.number(), name.c_str());
    }
    ASSERT_EQ(::mkdirat(level.number(), "W", 0700), 0);
    const Names found = find();
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].size(), 60u * 101 + 1);
}

TEST_F(FolderWalks, ADeepFolderThatIsMovedDuringTheWalkTakesOnlyDeepOnesAlong) {
    std::string path;
    std::string moved;
    for (int i = 0; i < 60; ++i) {
        make(path + "side/W" + std::to_string(i));
        make(path += "d/");
        if (i == 50)
            moved = path;
    }
    write(path + "last", "");
    make("elsewhere");
    const auto moving = [&](std::string_view name) {
        if (name == "last")
            fs::rename(folder.path() + "/" + moved, at("elsewhere/moved"));
        return beginsWithW(name);
    };
    std::set<std::string> names;
    for (const std::string& found : find(moving))
        names.insert(fs::path(found).filename().string());
    for (int i = 0; i < 30; ++i)
        EXPECT_TRUE(names.contains("W" + std::to_string(i))) << i;
}

TEST_F(FolderWalks, ALargeFolderIsReadToItsEnd) {
    Names expected;
    for (int i = 0; i < 1500; ++i) { // several times what is read at once
        expected.push_back(std::string(200, 'W') + std::to_string(i));
        write(expected.back(), "");
    }
    std::ranges::sort(expected);
    EXPECT_EQ(find(), expected);
}

// --- With a memory

namespace {

class RememberingWalks : public FolderWalks {
  protected:
    int asked = 0;
    FolderWalk walk{[this](std::string_view name) {
                        ++asked;
                        return beginsWithW(name);
                    },
                    FolderWalk::Memory::folders};
    Names findAgain() { return below(walk.find(folder.path())); }
    /// The number of items that were read for it.
    int readBy(const Names& expected) {
        asked = 0;
        EXPECT_EQ(findAgain(), expected);
        return asked;
    }
};

} // namespace

TEST_F(RememberingWalks, OnlyFoldersThatHaveChangedAreReadAgain) {
    make("a/b/W");
    make("a/c");
    make("d/W");
    write("a/c/x", "");
    ASSERT_TRUE(tests::becomesSettled(folder.path("a/c")));
    const Names first{"a/b/W", "d/W"};
    EXPECT_EQ(readBy(first), 7);
    EXPECT_EQ(readBy(first), 0);
    EXPECT_EQ(readBy(first), 0);
    make("a/c/W");
    const Names second{"a/b/W", "a/c/W", "d/W"};
    EXPECT_EQ(readBy(second), 2);
    fs::rename(at("a/c"), at("c"));
    EXPECT_EQ(readBy({"a/b/W", "c/W", "d/W"}), 3 + 1 + 2); // a move changes what is moved, too
    fs::remove(at("d/W"));
    EXPECT_THAT(findAgain(), ElementsAre("a/b/W", "c/W"));
    fs::remove_all(at("a"));
    EXPECT_THAT(findAgain(), ElementsAre("c/W"));
}

TEST_F(RememberingWalks, WhatIsPutInARememberedFoldersPlaceIsSeen) {
    make("a/b/W");
    make("other/W2");
    make("file");
    ASSERT_TRUE(tests::becomesSettled(folder.path("file")));
    EXPECT_THAT(findAgain(), ElementsAre("a/b/W", "other/W2"));
    fs::rename(at("a/b"), at("b"));
    fs::create_directory_symlink("../b", at("a/b"));
    EXPECT_THAT(findAgain(), ElementsAre("b/W", "other/W2"));
    fs::remove(at("a/b"));
    fs::rename(at("other"), at("a/b"));
    EXPECT_THAT(findAgain(), ElementsAre("a/b/W2", "b/W"));
    fs::remove(at("file"));
    write("file", "");
    EXPECT_THAT(findAgain(), ElementsAre("a/b/W2", "b/W"));
}

TEST_F(RememberingWalks, AnyChangeAtAnyTimeIsSeenAtOnce) {
    // Some folders are settled, others have just changed, and so on as the changes go.
    std::vector<std::string> folders{"."};
    for (int i = 0; i < 60; ++i) {
        folders.push_back(folders[static_cast<std::size_t>(i) / 3] + "/" + std::to_string(i));
        make(folders.back());
        make(folders.back() + "/W.app");
    }
    ASSERT_TRUE(tests::becomesSettled(folder.path(folders.back())));
    std::mt19937 random(20211);
    const auto any = [&] { return at(folders[random() % folders.size()]); };
    std::error_code ignored; // what is impossible changes nothing
    for (int i = 0; i < 250; ++i) {
        const std::string name = (i % 3 ? "W" : "x") + std::to_string(random() % 8);
        switch (random() % 6) {
        case 0:
            fs::create_directory(any() / name, ignored);
            break;
        case 1:
            fs::create_directory_symlink(any(), any() / name, ignored);
            break;
        case 2:
            fs::remove_all(any() / name, ignored);
            break;
        case 3:
            fs::rename(any(), any() / name, ignored);
            break;
        case 4:
            fs::rename(any() / "W.app", any() / "W.app", ignored);
            break;
        default:
            fs::rename(any() / name, any(), ignored);
        }
        ASSERT_EQ(findAgain(), find()) << i;
    }
}

TEST_F(RememberingWalks, OnlyTheLastFolderIsRemembered) {
    make("a/b/W");
    make("c/W");
    ASSERT_TRUE(tests::becomesSettled(folder.path("c")));
    EXPECT_THAT(walk.find(folder.path("a")), ElementsAre(folder.path("a/b/W")));
    EXPECT_THAT(walk.find(folder.path("c")), ElementsAre(folder.path("c/W")));
    asked = 0;
    EXPECT_THAT(walk.find(folder.path("a")), ElementsAre(folder.path("a/b/W")));
    EXPECT_EQ(asked, 2); // "b" and "W"
}

// --- Reading one folder

TEST_F(FolderWalks, AnEntryIsAskedForItsKindOnlyWhereTheFolderDoesNotTellIt) {
    make("folder");
    write("file", "");
    fs::create_directory_symlink("folder", at("link"));
    const Private::FileDescriptor top(::open(folder.path().c_str(), O_RDONLY | O_CLOEXEC));
    EXPECT_TRUE(Private::is_folder(top.number(), "folder", DT_UNKNOWN));
    EXPECT_FALSE(Private::is_folder(top.number(), "file", DT_UNKNOWN));
    EXPECT_FALSE(Private::is_folder(top.number(), "link", DT_UNKNOWN));
    EXPECT_FALSE(Private::is_folder(top.number(), "absent", DT_UNKNOWN));
    EXPECT_TRUE(Private::is_folder(top.number(), "absent", DT_DIR));
    EXPECT_FALSE(Private::is_folder(top.number(), "folder", DT_REG));
    EXPECT_FALSE(Private::is_folder(top.number(), "folder", DT_LNK));
}

TEST_F(FolderWalks, AReaderTellsWhetherItReachedTheEnd) {
    make("folder");
    write("folder/file", "");
    Private::FolderReader reader;
    Private::FolderReader::Entry entry;
    const Private::FileDescriptor good(::open(folder.path("folder").c_str(), O_RDONLY | O_CLOEXEC));
    reader.start(good.number());
    ASSERT_TRUE(reader.next(entry));
    EXPECT_EQ(entry.name, "file");
    EXPECT_FALSE(entry.isFolder);
    EXPECT_FALSE(reader.isComplete());
    EXPECT_FALSE(reader.next(entry));
    EXPECT_TRUE(reader.isComplete());
    const Private::FileDescriptor bad(
        ::open(folder.path("folder/file").c_str(), O_RDONLY | O_CLOEXEC));
    reader.start(bad.number());
    EXPECT_FALSE(reader.next(entry));
    EXPECT_FALSE(reader.isComplete());
}
