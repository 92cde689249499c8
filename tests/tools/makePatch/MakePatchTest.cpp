// makePatch as it is started, and its patches read back without applyPatch: every new entry is made
// from the old tree and compared with the new one.
#include <fstream>
#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

#include "patcher/format/Block.h"
#include "patcher/format/PatchFile.h"
#include "tests/tools/ProgramsInTests.h"
#include "tests/tools/makePatch/PairsOfFiles.h"

namespace tools::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string text(const patch::Bytes& bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

class MakePatch : public ToolTest {
  protected:
    /// Both versions with something of everything.
    void makeTrees() const {
        const patch::Bytes noise = tests::randomBytes(300000, 1);
        for (const char* version : {"old", "new"}) {
            const std::string top = std::string(version) + '/';
            write(top + "same.txt", "same");
            write(top + "empty", "");
            write(top + "run", "#!/bin/sh\n");
            fs::permissions(at(top + "run"), fs::perms(0755));
            fs::create_directories(at(top + "nothing in it/nor here"));
            fs::create_symlink("same.txt", at(top + "link"));
            write(top + "zeros", std::string(1 << 20, '\0'));
        }
        write("old/program", text(tests::program(false)));
        write("new/program", text(tests::program(true)));
        write("old/text/a", text(noise));
        write("new/text/a", text(tests::edited(noise, 20, 2)));
        write("old/text/gone", "gone");
        write("old/moved", "content that moves to another name");
        write("new/text/moved here", "content that moves to another name");
        write("old/chapter one.txt", text(tests::randomBytes(40000, 3)));
        write("new/chapter 1.txt", text(tests::edited(tests::randomBytes(40000, 3), 9, 4)));
        write("new/fresh", std::string(100000, 'f'));
        write("old/becomes a folder", "file");
        write("new/becomes a folder/file", "inside");
        write("old/grows", "");
        write("new/grows", "something");
        write("old/shrinks", "something else");
        write("new/shrinks", "");
        fs::remove(at("new/link"));
        fs::create_symlink("program", at("new/link"));
        fs::permissions(at("new/run"), fs::perms(0700));
        fs::create_directories(at("new/another folder"));
        write("new/Product-Support/Content.bundle/Plants/Set/Item", "item");
    }

    Outcome make(std::vector<std::string> more = {}) const {
        std::vector<std::string> command{MAKE_PATCH, "old", "new", "-o", "a.patch"};
        command.insert(command.end(), more.begin(), more.end());
        return run(command);
    }

    static patch::PublicKey testKey() {
        return patch::publicKeyOf(patch::fromHexadecimal(contentsOf(SCRIVEL_TEST_KEY_FILE)));
    }
    std::vector<std::string> withTestKey() const { return {"--key", SCRIVEL_TEST_KEY_FILE}; }

    patch::MemoryFile fileAt(const std::string& path) const {
        return patch::MemoryFile(patch::bytesOf(contentsOf(at(path))));
    }

    /// Makes every entry of the patch from the old tree and compares it with the new one.
    patch::Manifest readBack() const {
        const patch::MemoryFile file = fileAt("a.patch");
        const patch::PatchReader reader(file, testKey());
        const patch::Manifest& manifest = reader.manifest();
        std::vector<std::string> paths;
        for (const patch::NewEntry& entry : manifest.newEntries) {
            const fs::path path = at("new/" + entry.entry.path);
            paths.push_back(entry.entry.path);
            switch (entry.entry.kind) {
            case patch::Kind::link:
                EXPECT_EQ(fs::read_symlink(path), entry.entry.target);
                continue;
            case patch::Kind::folder:
                EXPECT_TRUE(fs::is_directory(path));
                continue;
            case patch::Kind::file:
                break;
            }
            struct stat status{};
            EXPECT_EQ(::lstat(path.c_str(), &status), 0);
            EXPECT_EQ(status.st_mode & 07777, entry.entry.mode);
            if (!entry.unchanged) {
                EXPECT_EQ(status.st_mtim.tv_sec, entry.modified.seconds);
            }
            patch::MemoryFile made;
            patch::MemoryFile base;
            if (patch::hasBase(entry.method))
                base = fileAt("old/" + manifest.oldEntries[entry.base].path);
            patch::makeContent(
                entry.method,
                {.patch = file, .offset = reader.blockOffset(entry), .length = entry.length}, base,
                entry.entry.size, made);
            EXPECT_EQ(made.bytes, fileAt("new/" + entry.entry.path).bytes) << path;
        }
        std::vector<std::string> expected;
        for (const auto& item : fs::recursive_directory_iterator(at("new")))
            expected.push_back(item.path().lexically_relative(at("new")).string());
        EXPECT_THAT(paths, ::testing::UnorderedElementsAreArray(expected));
        return manifest;
    }

    /// What lies in the folder beside the two trees.
    std::vector<std::string> beside() const {
        std::vector<std::string> names;
        for (const auto& item : fs::directory_iterator(at(".")))
            if (const std::string name = item.path().filename(); name != "old" && name != "new")
                names.push_back(name);
        return names;
    }
};

TEST_F(MakePatch, APatchMakesTheNewTreeFromTheOldOne) {
    makeTrees();
    const Outcome outcome = make(
        {"--key", SCRIVEL_TEST_KEY_FILE, "--name", "Scrivel 21", "--from", "21.0", "--to", "21.1"});
    ASSERT_EQ(outcome.status, 0) << outcome.output;
    const patch::Manifest manifest = readBack();
    EXPECT_EQ(manifest.product, "Scrivel 21");
    EXPECT_EQ(manifest.oldVersion, "21.0");
    EXPECT_EQ(manifest.newVersion, "21.1");
    EXPECT_EQ(manifest.categoryItems,
              (std::vector<patch::CategoryItem>{
                  {"Item", "Product-Support/Content.bundle/Plants/Set/Item"}}));
    const auto methodOf = [&](const char* path) {
        return patch::entryAt(manifest.newEntries, path)->method;
    };
    EXPECT_EQ(methodOf("program"), patch::Method::delta);
    EXPECT_EQ(methodOf("text/moved here"), patch::Method::old);
    EXPECT_EQ(methodOf("fresh"), patch::Method::whole);
    EXPECT_TRUE(patch::hasBase(methodOf("chapter 1.txt")));
    EXPECT_THAT(
        outcome.output,
        HasSubstr("a.patch: " + std::to_string(fs::file_size(at("a.patch"))) + " bytes for "));
    EXPECT_THAT(beside(), ::testing::ElementsAre("a.patch"));
}

TEST_F(MakePatch, TheSameTreesGiveTheSameBytesOnOneCoreAsOnSeveral) {
    makeTrees();
    ASSERT_EQ(make(withTestKey()).status, 0);
    fs::rename(at("a.patch"), at("first"));
    ASSERT_EQ(run({"taskset", "1", MAKE_PATCH, "old", "new", "-o", "a.patch", "--key",
                   SCRIVEL_TEST_KEY_FILE})
                  .status,
              0);
    EXPECT_EQ(contentsOf(at("first")), contentsOf(at("a.patch")));
}

TEST_F(MakePatch, AttributesAloneAreADifference) {
    write("old/a", "x");
    write("new/a", "x");
    if (::setxattr(at("new/a").c_str(), "user.note", "1", 1, 0) != 0)
        GTEST_SKIP() << "the file system keeps no attributes";
    ASSERT_EQ(make(withTestKey()).status, 0);
    const patch::Manifest manifest = readBack();
    EXPECT_EQ(manifest.newEntries[0].entry.attributes.size(), 1u);
    EXPECT_EQ(manifest.newEntries[0].method, patch::Method::old);
}

TEST_F(MakePatch, TreesWithoutADifferenceGiveNoPatch) {
    write("old/a", "x");
    write("new/a", "x");
    const Outcome outcome = make(withTestKey());
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("no difference"));
    EXPECT_THAT(beside(), IsEmpty());
}

TEST_F(MakePatch, AFailureLeavesThePatchThatWasThere) {
    write("old/a", "x");
    write("new/a", "x");
    write("a.patch", "before");
    EXPECT_EQ(make(withTestKey()).status, 1);
    EXPECT_EQ(contentsOf(at("a.patch")), "before");
    write("new/a", "y");
    EXPECT_EQ(make(withTestKey()).status, 0);
    readBack();
}

TEST_F(MakePatch, APipeInATreeIsAnErrorThatNamesIt) {
    makeTrees();
    ASSERT_EQ(::mkfifo(at("new/text/pipe").c_str(), 0600), 0);
    const Outcome outcome = make(withTestKey());
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("new/text/pipe: neither file, folder nor link"));
    EXPECT_THAT(beside(), IsEmpty());
}

TEST_F(MakePatch, AFileThatCantBeReadIsAnErrorThatNamesIt) {
    makeTrees();
    fs::permissions(at("old/text/a"), fs::perms::none);
    const Outcome outcome = runAsOrdinaryUser(
        {MAKE_PATCH, "old", "new", "-o", "a.patch", "--key", SCRIVEL_TEST_KEY_FILE});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("old/text/a: Permission denied"));
    EXPECT_THAT(beside(), IsEmpty());
}

TEST_F(MakePatch, APathThatIsTooLongIsAnErrorThatNamesIt) {
    write("old/a", "x");
    fs::create_directories(at("new"));
    fs::path here = at("new");
    fs::current_path(here);
    for (int level = 0; level < 17; ++level) {
        fs::create_directory(std::string(250, 'd'));
        fs::current_path(std::string(250, 'd'));
    }
    fs::current_path("/");
    const Outcome outcome = make(withTestKey());
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("too long for a patch"));
    EXPECT_THAT(beside(), IsEmpty());
    EXPECT_EQ(run({"rm", "-rf", "new"}).status, 0);
}

TEST_F(MakePatch, AFolderThatIsNotThereIsAnError) {
    write("old/a", "x");
    const Outcome outcome = make(withTestKey());
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("new: No such file or directory"));
}

TEST_F(MakePatch, AFolderInThePatchsPlaceIsAnError) {
    makeTrees();
    fs::create_directories(at("a.patch"));
    const Outcome outcome = make(withTestKey());
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("a.patch: Is a directory"));
    EXPECT_THAT(beside(), ::testing::ElementsAre("a.patch"));
}

TEST_F(MakePatch, WrongUsageIsSaidWithAStatusOfItsOwn) {
    EXPECT_EQ(run({MAKE_PATCH, "old"}).status, 2);
    EXPECT_EQ(run({MAKE_PATCH, "old", "new", "-o", "a", "--level", "99"}).status, 2);
    EXPECT_EQ(run({MAKE_PATCH, "--help"}).status, 0);
}

TEST_F(MakePatch, ANewKeySignsAndItsPublicHalfVerifies) {
    makeTrees();
    const Outcome made = run({MAKE_PATCH, "--new-key", "key"});
    ASSERT_EQ(made.status, 0);
    struct stat status{};
    ASSERT_EQ(::stat(at("key").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
    ASSERT_EQ(make({"--key", "key"}).status, 0);
    const patch::MemoryFile file = fileAt("a.patch");
    EXPECT_NO_THROW(patch::PatchReader(file, patch::fromHexadecimal(made.output)));
    EXPECT_THROW(patch::PatchReader(file, testKey()), patch::FormatError);
}

TEST_F(MakePatch, ANewKeyNeverReplacesOneThatIsThere) {
    write("key", "precious");
    const Outcome outcome = run({MAKE_PATCH, "--new-key", "key"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("key: File exists"));
    EXPECT_EQ(contentsOf(at("key")), "precious");
}

TEST_F(MakePatch, AKeyFileWithoutAKeyIsAnError) {
    makeTrees();
    write("key", "not a key");
    const Outcome outcome = make({"--key", "key"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.output, HasSubstr("64 hexadecimal digits"));
    EXPECT_EQ(make({"--key", "none"}).status, 1);
}

TEST_F(MakePatch, ProgressEndsWithEverythingDone) {
    makeTrees();
    const Outcome outcome =
        run({"sh", "-c",
             std::string("SCRIVEL_PROGRESS_FD=3 exec ") + MAKE_PATCH +
                 " old new -o a.patch --key " + SCRIVEL_TEST_KEY_FILE + " 3>progress"});
    ASSERT_EQ(outcome.status, 0) << outcome.output;
    std::ifstream lines(at("progress"));
    std::uint64_t done = 0;
    std::uint64_t total = 0;
    std::uint64_t files = 0;
    while (lines >> done >> total >> files)
        EXPECT_LE(done, total);
    EXPECT_EQ(done, total);
    EXPECT_GT(files, 0u);
}

// The signal comes while it is at work: when its file is there and a core is busy.
TEST_F(MakePatch, ASignalLeavesNothingBehind) {
    write("old/a", text(tests::randomBytes(std::size_t{12} << 20, 1)));
    write("new/a", text(tests::randomBytes(std::size_t{12} << 20, 2)));
    for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
        const pid_t child = ::fork();
        if (child == 0) {
            if (::chdir(at(".").c_str()) == 0)
                ::execl(MAKE_PATCH, MAKE_PATCH, "old", "new", "-o", "a.patch", "--key",
                        SCRIVEL_TEST_KEY_FILE, nullptr);
            ::_exit(127);
        }
        int status = 0;
        while (beside().empty() && ::waitpid(child, &status, WNOHANG) == 0)
            std::this_thread::yield();
        ::kill(child, signal);
        ::waitpid(child, &status, 0);
        ASSERT_TRUE(WIFSIGNALED(status)) << status;
        EXPECT_EQ(WTERMSIG(status), signal);
        EXPECT_THAT(beside(), IsEmpty());
    }
}

} // namespace
} // namespace tools::testing
