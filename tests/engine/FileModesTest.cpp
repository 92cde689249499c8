#include "engine/FileModes.h"

#include <array>
#include <cstddef>
#include <filesystem>

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/MethodsStage.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TreeOf.h"
#include "tools/files/Descriptor.h"
#include "tools/files/ExtendedAttributes.h"

namespace {

namespace fs = std::filesystem;
using ec::OpMode;
using ec::OptionalText;
using testing::ElementsAre;
using testing::IsEmpty;

struct FileModesTest : testing::Test {
    static constexpr std::uint32_t kReadMe = 0;
    tests::MethodsStage stage{"Read Me.txt|1|Notes|inst_File\nExamples|1|Library|inst_Dir\n"};
    ec::ecController& controller = stage.controller;
    std::string installFolder = stage.bundle() + "/../";
    std::string source = stage.temporary("source");
    std::string target = stage.beside("Read Me.txt");

    int file(OpMode mode, OptionalText from, OptionalText to) {
        return controller.installFileMode(mode, kReadMe, from, to).value();
    }
    int dir(OpMode mode, OptionalText from, OptionalText to) {
        return controller.installDirMode(mode, 1, from, to).value();
    }
    void writeSource(const std::string& text = "text") { stage.folder.write("tmp/source", text); }
    void makeFolders(const std::string& text, const std::string& otherText) {
        stage.folder.write("tmp/folder/inner/file", text);
        stage.folder.write("tmp/copy/inner/file", otherText);
    }
};

constexpr OptionalText kNone = std::nullopt;

TEST_F(FileModesTest, AFileThatExistsBesideTheApplicationIsThere) {
    stage.writeBeside("Read Me.txt");
    EXPECT_EQ(file(OpMode::check, kNone, installFolder), 1);
    EXPECT_THAT(stage.logged(), ElementsAre("File: (null)", " Result= Yes"));
}

TEST_F(FileModesTest, AFileThatDoesNotExistIsWantedToBeDisabledAndNotMerelyOff) {
    EXPECT_EQ(file(OpMode::check, kNone, installFolder), -1);
    EXPECT_THAT(stage.logged(), ElementsAre("File: (null)", " Result= Disable"));
}

TEST_F(FileModesTest, AFileIsCopiedBesideTheApplicationWithoutATool) {
    writeSource();
    EXPECT_EQ(file(OpMode::copy, source, installFolder), 1);
    EXPECT_EQ(tests::contentsOf(target), "text");
    EXPECT_THAT(stage.run(), IsEmpty());
    EXPECT_THAT(stage.logged(), ElementsAre("File: " + source, " Result= Yes"));
}

TEST_F(FileModesTest, ACopyWithoutASourceIsWantedToRaiseWhichIsHowTheDriverCallsIt) {
    EXPECT_EQ(file(OpMode::copy, kNone, installFolder), -1);
    EXPECT_THAT(stage.logged(), ElementsAre("File: (null)", "Exception Raised "));
    EXPECT_FALSE(fs::exists(target));
}

TEST_F(FileModesTest, AMissingDestinationRaisesWhereItWouldBeUsedAndOnlyThere) {
    writeSource();
    EXPECT_EQ(file(OpMode::check, source, kNone), -1);
    EXPECT_EQ(file(OpMode::copy, source, kNone), -1);
    EXPECT_EQ(file(OpMode::remove, kNone, kNone), 0);
    EXPECT_EQ(file(OpMode{4}, kNone, kNone), 0);
    EXPECT_THAT(stage.logged(), ElementsAre("File: " + source, "Exception Raised ",
                                            "File: " + source, "Exception Raised ", "File: (null)",
                                            " Result= No", "File: (null)", " Result= No"));
}

TEST_F(FileModesTest, RemovingAFileIsWantedToRemoveNothing) {
    writeSource();
    stage.writeBeside("Read Me.txt", "text");
    const tests::Tree before = tests::treeOf(stage.folder.path());
    EXPECT_EQ(file(OpMode::remove, source, installFolder), 0);
    EXPECT_EQ(file(OpMode::remove, kNone, installFolder), 0);
    EXPECT_EQ(tests::treeOf(stage.folder.path()), before);
    EXPECT_THAT(stage.logged(),
                ElementsAre("File: " + source, " Result= No", "File: (null)", " Result= No"));
}

TEST_F(FileModesTest, AnyOtherModeOfAFileIsNo) {
    for (const int mode : {0, 4, -1, 1000})
        EXPECT_EQ(file(OpMode{mode}, kNone, installFolder), 0) << mode;
}

TEST_F(FileModesTest, ACopyNeverOverwritesNotEvenALinkThatLeadsNowhere) {
    writeSource("new");
    stage.writeBeside("Read Me.txt", "old");
    EXPECT_EQ(file(OpMode::copy, source, installFolder), 0);
    EXPECT_EQ(tests::contentsOf(target), "old");
    fs::remove(target);
    fs::create_symlink("nowhere", target);
    EXPECT_EQ(file(OpMode::copy, source, installFolder), 0);
    EXPECT_TRUE(fs::is_symlink(target));
    EXPECT_FALSE(fs::exists(stage.beside("nowhere")));
    EXPECT_THAT(stage.logged(),
                ElementsAre("File: " + source, " Result= No", "File: " + source, " Result= No"));
}

TEST_F(FileModesTest, ACopyOfWhatIsNotThereOrToWhereThereIsNoFolderIsNo) {
    EXPECT_EQ(file(OpMode::copy, source, installFolder), 0);
    writeSource();
    EXPECT_EQ(file(OpMode::copy, source, stage.temporary("no such folder")), 0);
    EXPECT_FALSE(fs::exists(stage.temporary("no such folder")));
}

TEST_F(FileModesTest, ACopyKeepsModeTimeAndAttributes) {
    writeSource();
    fs::permissions(source, fs::perms(0640));
    const auto time = fs::last_write_time(source) - std::chrono::hours(1000);
    fs::last_write_time(source, time);
    const std::string note = tools::systemAttributeName("note");
    const std::array value{std::byte{'x'}};
    const tools::Descriptor from(::open(source.c_str(), O_RDWR));
    const bool attributes = tools::setAttribute(from.number(), note, value) == 0;
    EXPECT_EQ(file(OpMode::copy, source, installFolder), 1);
    EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));
    EXPECT_TRUE(fs::last_write_time(target) == time);
    if (attributes) {
        const tools::Descriptor to(::open(target.c_str(), O_RDONLY));
        EXPECT_EQ(tools::attributeValue(to.number(), note),
                  formats::Bytes(value.begin(), value.end()));
    }
}

TEST_F(FileModesTest, ALinkIsCopiedAsALink) {
    fs::create_symlink("far away", source);
    EXPECT_EQ(file(OpMode::copy, source, installFolder), 1);
    EXPECT_EQ(fs::read_symlink(target), "far away");
}

TEST_F(FileModesTest, AFolderThatExistsIsThereAndOneThatDoesNotIsDisabled) {
    EXPECT_EQ(dir(OpMode::check, kNone, stage.home("")), 1);
    EXPECT_EQ(dir(OpMode::check, "from", stage.home("none")), -1);
    EXPECT_THAT(stage.logged(),
                ElementsAre("Dir: (null)", " Result= Yes", "Dir: from", " Result= Disable"));
}

TEST_F(FileModesTest, AFolderWithoutItsPathsIsWantedToRaiseWhichIsHowTheDriverCallsIt) {
    for (const OpMode mode : {OpMode::check, OpMode::copy, OpMode::remove}) {
        EXPECT_EQ(dir(mode, kNone, kNone), -1);
        EXPECT_THAT(stage.logged(), ElementsAre("Dir: (null)", "Exception Raised "));
    }
    EXPECT_EQ(dir(OpMode::copy, "from", kNone), -1);
    EXPECT_EQ(dir(OpMode::copy, kNone, stage.home("none")), -1);
    EXPECT_EQ(dir(OpMode::remove, "from", kNone), -1);
    EXPECT_EQ(dir(OpMode{4}, kNone, kNone), 0);
}

TEST_F(FileModesTest, AFolderIsCopiedWholeWithModesTimesAndLinks) {
    makeFolders("text", "");
    const std::string from = stage.temporary("folder");
    const std::string to = stage.home("copy");
    fs::permissions(from + "/inner", fs::perms(0750));
    fs::permissions(from + "/inner/file", fs::perms(0604));
    fs::create_symlink("inner/file", from + "/link");
    const auto time = fs::last_write_time(from + "/inner/file") - std::chrono::hours(1000);
    fs::last_write_time(from + "/inner/file", time);
    EXPECT_EQ(dir(OpMode::copy, from, to), 1);
    EXPECT_EQ(tests::treeOf(to), tests::treeOf(from));
    EXPECT_TRUE(fs::last_write_time(to + "/inner/file") == time);
    EXPECT_EQ(dir(OpMode::copy, from, to), 0) << "there is one already";
    EXPECT_THAT(stage.run(), IsEmpty());
    EXPECT_THAT(stage.logged(),
                ElementsAre("Dir: " + from, " Result= Yes", "Dir: " + from, " Result= No"));
}

TEST_F(FileModesTest, AFolderIsNotCopiedIntoItself) {
    makeFolders("text", "");
    const tests::Tree before = tests::treeOf(stage.folder.path());
    const std::string from = stage.temporary("folder");
    EXPECT_EQ(dir(OpMode::copy, from, from + "/inner/copy"), 0);
    EXPECT_EQ(tests::treeOf(stage.folder.path()), before);
}

TEST_F(FileModesTest, ACopyThatStopsHalfWayLeavesNothing) {
    makeFolders("text", "");
    fs::permissions(stage.temporary("folder/inner/file"), fs::perms::none);
    const tests::AsOrdinaryUser user(stage.folder.path());
    EXPECT_EQ(dir(OpMode::copy, stage.temporary("folder"), stage.home("copy")), 0);
    EXPECT_FALSE(fs::exists(stage.home("copy")));
}

TEST_F(FileModesTest, AFolderWithoutASourceToCompareItWithIsRemoved) {
    makeFolders("text", "");
    EXPECT_EQ(dir(OpMode::remove, kNone, stage.temporary("folder")), 1);
    EXPECT_FALSE(fs::exists(stage.temporary("folder")));
    EXPECT_EQ(dir(OpMode::remove, kNone, stage.temporary("folder")), 0) << "it is gone already";
    EXPECT_THAT(stage.run(), IsEmpty());
    EXPECT_THAT(stage.logged(),
                ElementsAre("Dir: (null)", " Result= Yes", "Dir: (null)", " Result= No"));
}

TEST_F(FileModesTest, AFolderIsRemovedWhenItEqualsItsSourceAndStaysWhenItDiffers) {
    makeFolders("text", "test");
    const std::string from = stage.temporary("folder");
    const std::string to = stage.temporary("copy");
    EXPECT_EQ(dir(OpMode::remove, from, to), 0);
    EXPECT_TRUE(fs::exists(to + "/inner/file"));
    stage.folder.write("tmp/copy/inner/file", "text");
    EXPECT_EQ(dir(OpMode::remove, from, to), 1);
    EXPECT_FALSE(fs::exists(to));
    EXPECT_TRUE(fs::exists(from + "/inner/file"));
}

TEST_F(FileModesTest, AFolderThatMayNotBeRemovedStaysAndIsNo) {
    makeFolders("text", "");
    fs::permissions(stage.temporary("folder"), fs::perms(0555));
    const tests::AsOrdinaryUser user(stage.folder.path());
    EXPECT_EQ(dir(OpMode::remove, kNone, stage.temporary("folder/inner")), 0);
    EXPECT_TRUE(fs::exists(stage.temporary("folder/inner")));
}

TEST_F(FileModesTest, TheUninstallerIsNeverThereAndEveryChangeToItSucceeds) {
    EXPECT_EQ(controller.installUninstMode(OpMode::check, 0, kNone, kNone).value(), 0);
    for (const int mode : {2, 3, 0, 4})
        EXPECT_EQ(controller.installUninstMode(OpMode{mode}, 0, kNone, kNone).value(), 1) << mode;
    EXPECT_THAT(stage.logged(), IsEmpty());
}

} // namespace
