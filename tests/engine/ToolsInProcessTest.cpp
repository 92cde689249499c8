// The played tools do to the disk what the real ones do, for every call that the engine makes.
#include "tests/engine/ToolsInProcess.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "platform/posix/SpawnedTools.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/support/TreeOf.h"

namespace {

namespace fs = std::filesystem;

struct Call {
    std::string tool;
    std::vector<std::string> arguments; ///< a "/" at the start stands for the test's folder
};

struct ToolsInProcess : testing::Test {
    posix::SpawnedTools tools{{.ownToolsFolder = SCRIVEL_TOOLS}};

    static void prepare(const tests::TemporaryFolder& folder) {
        folder.write("source/file", "file");
        folder.write("source/.hidden", "");
        folder.write("source/inner/deep/file", "deep");
        folder.write("old/file", "old");
        folder.write("old/other", "other");
        folder.write("old/inner/deep/mine", "mine");
        folder.write("blocked/file/inner", "a folder where the source has a file");
        folder.write("blocked2/inner", "a file where the source has a folder");
        folder.write("single", "single");
        fs::create_symlink("file", folder.path("source/link"));
        fs::create_symlink("../single", folder.path("old/link"));
        fs::create_directory_symlink("source", folder.path("link to folder"));
        fs::create_directories(folder.path("empty"));
        fs::permissions(folder.path("source"), fs::perms(0750));
        fs::permissions(folder.path("source/inner"), fs::perms(0705));
        fs::permissions(folder.path("source/file"), fs::perms(0640));
        fs::permissions(folder.path("old"), fs::perms(0777));
        fs::permissions(folder.path("single"), fs::perms(0604));
    }
    static ports::ToolCall in(const tests::TemporaryFolder& folder, const Call& call) {
        ports::ToolCall made{call.tool, call.arguments};
        for (std::string& argument : made.arguments)
            if (argument.starts_with('/'))
                argument.insert(0, folder.path());
        return made;
    }
    /// Both do the calls, each in a folder of its own, and come to the same.
    void compare(const std::vector<Call>& calls) {
        const tests::TemporaryFolder real;
        const tests::TemporaryFolder played;
        prepare(real);
        prepare(played);
        for (const Call& call : calls) {
            SCOPED_TRACE(call.tool + " " + testing::PrintToString(call.arguments));
            EXPECT_EQ(tests::runInProcess(in(played, call)) == 0, tools.run(in(real, call)) == 0);
            EXPECT_EQ(tests::treeOf(played.path()), tests::treeOf(real.path()));
        }
    }
    void ditto(const std::string& from, const std::string& to) {
        compare({{"/usr/bin/ditto", {"-rsrcFork", from, to}}});
    }
};

TEST_F(ToolsInProcess, CopyingAFolderMergesAndTakesTheSourcesModes) {
    ditto("/source", "/new");
    ditto("/source", "/new/with/parents");
    ditto("/source", "/old");
    ditto("/source", "/empty");
    ditto("/empty", "/old");
    compare({{"/usr/bin/ditto", {"-rsrcFork", "/source", "/old"}},
             {"/usr/bin/ditto", {"-rsrcFork", "/source", "/old"}}});
}

TEST_F(ToolsInProcess, CopyingWhereAFolderMeetsAFileFailsForThatAndGoesOn) {
    ditto("/source", "/blocked");
    ditto("/source", "/blocked2");
    ditto("/source", "/single");
}

TEST_F(ToolsInProcess, CopyingAFilePutsItIntoAFolderThatIsThere) {
    ditto("/single", "/old");
    ditto("/single", "/old/other");
    ditto("/single", "/old/link");
    ditto("/single", "/new/with/parents");
    ditto("/source/file", "/blocked");
    ditto("/source/file", "/empty");
}

TEST_F(ToolsInProcess, RemovingTakesWhatItIsToldTo) {
    compare({{"/bin/rm", {"-f", "/single"}},
             {"/bin/rm", {"-f", "/single"}},
             {"/bin/rm", {"-f", "/old"}},
             {"/bin/rm", {"-rf", "/old"}},
             {"/bin/rm", {"-rf", "/old"}},
             {"/bin/rm", {"-f", "/source/link"}},
             {"/bin/rm", {"-rf", "/link to folder"}}});
}

TEST_F(ToolsInProcess, FoldersAreMadeWithTheirParents) {
    compare({{"/bin/mkdir", {"-p", "/a/b"}},
             {"/bin/mkdir", {"-p", "/a/b"}},
             {"/bin/mkdir", {"-p", "/single/b"}},
             {"/bin/mkdir", {"-p", "/single"}},
             {"/bin/chmod", {"777", "/a/b"}},
             {"/bin/chmod", {"777", "/none"}}});
}

TEST_F(ToolsInProcess, MovingAndCopyingGoIntoAFolderThatIsThere) {
    compare({{"/bin/mv", {"/source", "/renamed"}},
             {"/bin/mv", {"/renamed", "/old"}},
             {"/bin/mv", {"/none", "/other"}},
             {"/bin/cp", {"/single", "/new"}},
             {"/bin/cp", {"/single", "/old/other"}},
             {"/bin/cp", {"/single", "/old"}},
             {"/bin/cp", {"/none", "/other"}},
             {"/bin/cp", {"/single", "/no/such/folder"}}});
}

TEST_F(ToolsInProcess, FlagsOfWhatIsNotThereCanNotBeCleared) {
    compare({{"/usr/bin/chflags", {"nouchg", "/single"}},
             {"/usr/bin/chflags", {"-R", "nouchg", "/old"}},
             {"/usr/bin/chflags", {"nouchg", "/none"}}});
}

TEST_F(ToolsInProcess, AToolThatIsNotPlayedCanNotBeStarted) {
    EXPECT_EQ(tests::runInProcess({"/bin/no-such-tool", {}}), ports::Tools::kCannotStart);
    EXPECT_EQ(tests::runInProcess({"/Resources/KillSVService.sh", {}}), 0);
}

} // namespace
