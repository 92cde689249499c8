// What applyPatch answers: the command line, the check of the copy, patches that are none.
#include <filesystem>
#include <fstream>
#include <string>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "patcher/format/PatchFile.h"
#include "tests/tools/PatchesInTests.h"

namespace tools::testing {
namespace {

namespace fs = std::filesystem;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

class ApplyPatch : public PatchTest {
  protected:
    void expectUntouched(const std::vector<std::string>& before) const {
        EXPECT_EQ(everything("copy"), before);
        EXPECT_THAT(leftovers(), IsEmpty());
    }
    /// A byte of the patch is another one.
    void spoil(std::streamoff offset, std::ios::seekdir from) const {
        std::fstream file(at("patch"), std::ios::binary | std::ios::in | std::ios::out);
        file.seekg(offset, from);
        const int byte = file.get();
        file.seekp(offset, from);
        file.put(static_cast<char>(byte ^ 0x40));
    }
};

TEST_F(ApplyPatch, MakesTheCopyTheNewVersion) {
    makePatch();
    makeCopy();
    const Outcome outcome = apply();
    EXPECT_EQ(outcome.status, kDone) << outcome.output;
    EXPECT_THAT(outcome.output, HasSubstr("is Scrivel version 2 now"));
    EXPECT_EQ(contents("copy"), contents("after"));
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(ApplyPatch, ASecondTimeSaysThatThereIsNothingToDoAndIsDone) {
    makePatch();
    makeCopy();
    ASSERT_EQ(apply().status, kDone);
    const auto before = everything("copy");
    const Outcome again = apply();
    EXPECT_EQ(again.status, kDone);
    EXPECT_THAT(again.output, HasSubstr("is Scrivel version 2 already"));
    expectUntouched(before);
}

TEST_F(ApplyPatch, ADryRunIsZeroWhereThePatchAppliesAndChangesNothing) {
    makePatch();
    makeCopy();
    const auto before = everything("copy");
    const Outcome outcome = apply({"-n"});
    EXPECT_EQ(outcome.status, kDone);
    EXPECT_EQ(outcome.output, "");
    expectUntouched(before);
}

TEST_F(ApplyPatch, ADryRunOverTheNewVersionIsNotZeroAndSaysWhy) {
    makePatch();
    makeCopy();
    ASSERT_EQ(apply().status, kDone);
    const Outcome outcome = apply({"-n"});
    EXPECT_EQ(outcome.status, kCurrent);
    EXPECT_THAT(outcome.output, HasSubstr("is Scrivel version 2 already; there is nothing to do"));
}

TEST_F(ApplyPatch, ADryRunListsEveryEntryThatDiffers) {
    fs::create_symlink("sub", at("before/way"));
    makePatch();
    makeCopy();
    write("copy/same", "stays as it WAS");
    fs::remove(at("copy/gone"));
    fs::remove(at("copy/link"));
    fs::create_symlink("elsewhere", at("copy/link"));
    fs::remove(at("copy/way"));
    fs::create_directory(at("copy/way"));
    fs::remove(at("copy/changed"));
    ASSERT_EQ(::mkfifo(at("copy/changed").c_str(), 0600), 0);
    const auto before = everything("copy");
    for (const std::vector<std::string>& more : std::vector<std::vector<std::string>>{{"-n"}, {}}) {
        const Outcome outcome = apply(more);
        EXPECT_EQ(outcome.status, kDiffers);
        EXPECT_THAT(outcome.output, HasSubstr("It differs in 5 entries"));
        EXPECT_THAT(outcome.output, HasSubstr("applyPatch: same: has other content\n"));
        EXPECT_THAT(outcome.output, HasSubstr("applyPatch: gone: is missing\n"));
        EXPECT_THAT(outcome.output, HasSubstr("applyPatch: link: leads elsewhere\n"));
        EXPECT_THAT(outcome.output,
                    HasSubstr("applyPatch: way: is a folder instead of a symbolic link\n"));
        EXPECT_THAT(outcome.output, HasSubstr("applyPatch: changed: is a pipe, socket or device "
                                              "instead of a file\n"));
        expectUntouched(before);
    }
}

TEST_F(ApplyPatch, ALongListOfDifferencesIsCutOffWithACount) {
    for (int i = 0; i < 120; ++i)
        write("before/many/" + std::to_string(i), "x");
    makePatch();
    makeCopy();
    fs::remove_all(at("copy/many"));
    const Outcome outcome = apply({"-n"});
    EXPECT_EQ(outcome.status, kDiffers);
    EXPECT_THAT(outcome.output, HasSubstr("It differs in 121 entries"));
    EXPECT_THAT(outcome.output, HasSubstr("and 71 more entries differ"));
    EXPECT_LT(std::ranges::count(outcome.output, '\n'), 60);
}

TEST_F(ApplyPatch, ContentWithTheOldTimeIsStillOtherContent) {
    makePatch();
    makeCopy();
    write("copy/same", "STAYS as it is");
    const struct stat original = statusOf("before/same");
    const timespec times[2] = {original.st_atim, original.st_mtim};
    ASSERT_EQ(::utimensat(AT_FDCWD, at("copy/same").c_str(), times, 0), 0);
    EXPECT_EQ(apply({"-n"}).status, kDiffers);
}

TEST_F(ApplyPatch, VerifyIsZeroOverTheNewVersionOnly) {
    makePatch();
    makeCopy();
    const Outcome before = apply({"--verify"});
    EXPECT_EQ(before.status, kDiffers);
    EXPECT_THAT(before.output, HasSubstr("is not Scrivel version 2"));
    ASSERT_EQ(apply().status, kDone);
    EXPECT_EQ(apply({"--verify"}).status, kDone);
    write("copy/somebody's", "own");
    EXPECT_EQ(apply({"--verify"}).status, kDone);
    write("copy/changed", "spoilt");
    EXPECT_EQ(apply({"--verify"}).status, kDiffers);
}

TEST_F(ApplyPatch, VerifyIsNotZeroWhereTheNewVersionOnlyDropsFiles) {
    fs::remove_all(at("after"));
    ASSERT_EQ(run({"cp", "-a", "before", "after"}).status, 0);
    fs::remove(at("after/gone"));
    makePatch();
    makeCopy();
    EXPECT_EQ(apply({"--verify"}).status, kDiffers);
    EXPECT_EQ(apply({"-n"}).status, kDone);
    EXPECT_EQ(apply().status, kDone);
    EXPECT_EQ(apply({"--verify"}).status, kDone);
    EXPECT_EQ(apply({"-n"}).status, kCurrent);
}

TEST_F(ApplyPatch, APatchOfPermissionsAloneAppliesOnce) {
    fs::remove_all(at("after"));
    ASSERT_EQ(run({"cp", "-a", "before", "after"}).status, 0);
    setMode("after/same", 0755);
    makePatch();
    makeCopy();
    EXPECT_EQ(apply({"-n"}).status, kDone);
    EXPECT_EQ(apply().status, kDone);
    EXPECT_EQ(statusOf("copy/same").st_mode & 07777, 0755u);
    EXPECT_EQ(apply({"-n"}).status, kCurrent);
}

TEST_F(ApplyPatch, ArgumentsStandInAnyOrder) {
    makePatch();
    makeCopy();
    EXPECT_EQ(run({APPLY_PATCH, "-n", "-i", "patch", "-d", "copy"}).status, kDone);
    EXPECT_EQ(run({APPLY_PATCH, "-i", "patch", "-n", "-d", "./copy//"}).status, kDone);
    EXPECT_EQ(run({APPLY_PATCH, "-i", "patch", "-d", "copy/../copy/."}).status, kDone);
    EXPECT_EQ(contents("copy"), contents("after"));
}

TEST_F(ApplyPatch, WrongArgumentsAreStatusTwo) {
    makePatch();
    makeCopy();
    for (const std::vector<std::string>& arguments :
         std::vector<std::vector<std::string>>{{},
                                               {"-d", "copy"},
                                               {"-i", "patch"},
                                               {"-d", "", "-i", "patch"},
                                               {"-d", "copy", "-i", ""},
                                               {"-d", "copy", "-i", "patch", "-x"},
                                               {"-d", "copy", "-i", "patch", "more"},
                                               {"-d", "copy", "-i", "patch", "-n", "-C"},
                                               {"-d", "copy", "-i", "patch", "-n", "--verify"},
                                               {"-d", "missing", "-i", "patch"},
                                               {"-d", "missing/too", "-i", "patch"},
                                               {"-d", "patch", "-i", "patch"},
                                               {"-d", "/", "-i", "patch"},
                                               {"-d", "copy", "-i", "missing"}}) {
        std::vector<std::string> all{APPLY_PATCH};
        all.insert(all.end(), arguments.begin(), arguments.end());
        const Outcome outcome = run(all);
        EXPECT_EQ(outcome.status, kUsage) << ::testing::PrintToString(arguments);
        EXPECT_THAT(outcome.output, Not(IsEmpty()));
    }
    EXPECT_EQ(contents("copy"), contents("before"));
}

TEST_F(ApplyPatch, HelpAndVersionAreStatusZero) {
    EXPECT_THAT(run({APPLY_PATCH, "--help"}).output, HasSubstr("Exit status"));
    EXPECT_EQ(run({APPLY_PATCH, "--help"}).status, kDone);
    EXPECT_THAT(run({APPLY_PATCH, "--version"}).output, HasSubstr("patch format 1"));
    EXPECT_EQ(run({APPLY_PATCH, "--version"}).status, kDone);
}

TEST_F(ApplyPatch, AFolderNamedByALinkIsTheFolderItLeadsTo) {
    makePatch();
    fs::create_directory(at("place"));
    makeCopy("place/real");
    fs::create_directory_symlink("place/real", at("copy"));
    EXPECT_EQ(apply().status, kDone);
    EXPECT_TRUE(fs::is_symlink(at("copy")));
    EXPECT_EQ(contents("place/real"), contents("after"));
    EXPECT_EQ(std::distance(fs::directory_iterator(at("place")), {}), 1);
}

TEST_F(ApplyPatch, ACopyWithTheLongestNameIsUpdatedToo) {
    makePatch();
    const std::string name(255, 'n');
    makeCopy(name);
    EXPECT_EQ(run({APPLY_PATCH, "-d", name, "-i", "patch"}).status, kDone);
    EXPECT_EQ(contents(name), contents("after"));
}

TEST_F(ApplyPatch, CategoryItemsAreListedWithoutALookAtTheCopy) {
    tests::UnsignedPatch patch = between();
    patch.manifest.categoryItems = {{"Styles", "Content.bundle/Styles"},
                                    {"Filters", "Content.bundle/Filters"}};
    writePatch(patch);
    for (const char* folder : {"/no/such/place", "/no/such/place/", "/no/such/place///"}) {
        const Outcome outcome = run({APPLY_PATCH, "-d", folder, "-i", "patch", "-C"});
        EXPECT_EQ(outcome.status, kDone);
        EXPECT_EQ(outcome.output, "Styles,/no/such/place/Content.bundle/Styles\n"
                                  "Filters,/no/such/place/Content.bundle/Filters\n");
    }
    EXPECT_EQ(run({APPLY_PATCH, "-d", "/", "-i", "patch", "-C"}).output,
              "Styles,/Content.bundle/Styles\nFilters,/Content.bundle/Filters\n");
}

TEST_F(ApplyPatch, CategoryItemsThatAreNotTwoFieldsAreLeftOutWithAWord) {
    tests::UnsignedPatch patch = between();
    patch.manifest.categoryItems = {
        {"A,B", "x"}, {"Good", "y"}, {"Bad", "a,b"}, {"Two\nlines", "z"}};
    writePatch(patch);
    const Outcome outcome = run({"sh", "-c", APPLY_PATCH " -d /f -i patch -C 2>words"});
    EXPECT_EQ(outcome.status, kDone);
    EXPECT_EQ(outcome.output, "Good,/f/y\n");
    EXPECT_EQ(std::ranges::count(contentsOf(at("words")), '\n'), 3);
    const Outcome comma = run({"sh", "-c", APPLY_PATCH " -d /f,g -i patch -C 2>words"});
    EXPECT_EQ(comma.output, "");
}

TEST_F(ApplyPatch, APatchWithoutCategoryItemsListsNothing) {
    makePatch();
    const Outcome outcome = apply({"-C"});
    EXPECT_EQ(outcome.status, kDone);
    EXPECT_EQ(outcome.output, "");
}

TEST_F(ApplyPatch, APatchOfAnotherKeyIsRefused) {
    makeCopy();
    tests::writePatch(between(), at("patch"), patch::newSeed());
    const auto before = everything("copy");
    for (const char* mode : {"-n", "-C", "--verify"}) {
        const Outcome outcome = apply({mode});
        EXPECT_EQ(outcome.status, kNotAPatch);
        EXPECT_THAT(outcome.output, HasSubstr("key"));
    }
    EXPECT_EQ(apply().status, kNotAPatch);
    expectUntouched(before);
}

TEST_F(ApplyPatch, APatchThatWasChangedAnywhereIsRefused) {
    makeCopy();
    const auto before = everything("copy");
    makePatch();
    const auto size = static_cast<std::streamoff>(fs::file_size(at("patch")));
    for (const std::streamoff offset :
         {std::streamoff{0}, std::streamoff{9}, std::streamoff{20}, std::streamoff{130},
          std::streamoff{patch::kHeaderLength + 3}, size - 1}) {
        makePatch();
        spoil(offset, std::ios::beg);
        const Outcome outcome = apply();
        EXPECT_EQ(outcome.status, kNotAPatch) << offset;
        EXPECT_THAT(outcome.output, HasSubstr(at("patch").string())) << offset;
    }
    expectUntouched(before);
}

TEST_F(ApplyPatch, APatchThatWasCutOrLengthenedIsRefused) {
    makeCopy();
    makePatch();
    const auto before = everything("copy");
    const std::string whole = contentsOf(at("patch"));
    for (const std::size_t length :
         {std::size_t{0}, std::size_t{1}, std::size_t{191}, std::size_t{192}, whole.size() - 1}) {
        write("patch", whole.substr(0, length));
        EXPECT_EQ(apply().status, kNotAPatch) << length;
    }
    write("patch", whole + "x");
    EXPECT_EQ(apply().status, kNotAPatch);
    expectUntouched(before);
}

TEST_F(ApplyPatch, APatchThatIsNoPlainFileIsRefused) {
    makeCopy();
    fs::create_directory(at("patch"));
    EXPECT_EQ(apply().status, kNotAPatch);
    fs::remove(at("patch"));
    ASSERT_EQ(::mkfifo(at("patch").c_str(), 0600), 0);
    EXPECT_EQ(apply().status, kNotAPatch);
}

TEST_F(ApplyPatch, ABlockThatMakesOtherContentThanItSaysIsRefusedAndLeavesNothing) {
    makeCopy();
    const auto before = everything("copy");
    tests::UnsignedPatch patch = between();
    for (patch::NewEntry& entry : patch.manifest.newEntries)
        if (entry.entry.path == "changed")
            entry.entry.digest[0] ^= std::byte{1};
    writePatch(patch);
    const Outcome outcome = apply();
    EXPECT_EQ(outcome.status, kNotAPatch);
    EXPECT_THAT(outcome.output, HasSubstr("changed"));
    EXPECT_EQ(contents("copy"), contents("before"));
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(ApplyPatch, ABlockThatIsNoneIsRefusedAndLeavesNothing) {
    makeCopy();
    tests::UnsignedPatch patch = between();
    std::ranges::fill(patch.data, std::byte{0x55});
    writePatch(patch);
    EXPECT_EQ(apply().status, kNotAPatch);
    EXPECT_EQ(contents("copy"), contents("before"));
    EXPECT_THAT(leftovers(), IsEmpty());
}

TEST_F(ApplyPatch, TellsItsProgressWhereThatIsWanted) {
    makePatch();
    makeCopy();
    const Outcome outcome =
        run({"sh", "-c", "SCRIVEL_PROGRESS_FD=3 " APPLY_PATCH " -d copy -i patch 3>progress"});
    ASSERT_EQ(outcome.status, kDone);
    const std::string lines = contentsOf(at("progress"));
    const std::string last = lines.substr(lines.rfind('\n', lines.size() - 2) + 1);
    const std::size_t blank = last.find(' ');
    EXPECT_NE(last.substr(0, blank), "0");
    EXPECT_EQ(last.substr(0, blank), last.substr(blank + 1, last.find(' ', blank + 1) - blank - 1))
        << lines;
}

} // namespace
} // namespace tools::testing
