#include "wizard/InstallLog.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/posix/FileTextStreams.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/TemporaryFolder.h"
#include "wizard/ecController.h"

namespace {

using testing::ElementsAre;

struct InstallLogTest : testing::Test {
    fakes::FakeHost host;
    tests::Components components;
    ec::ecController controller{host.host(), components.rules, components.root};
    ec::InstallLog& log = controller;

    void dump(std::vector<std::string> pieces) {
        log.dumpFDToLog(host.streams.feed(std::move(pieces)));
    }
};

TEST_F(InstallLogTest, ALineIsTheDateInUtcOneBlankAndTheMessage) {
    log.logMessage("Hello  there ");
    EXPECT_EQ(host.streams.files.at("/Users/someone/Library/Logs/Scrivel 21 Stub Install.log"),
              "2024-02-03 04:05:06 +0000 Hello  there \n");
}

TEST_F(InstallLogTest, AnEmptyMessageStillMakesALineWithATrailingBlank) {
    log.logMessage("");
    EXPECT_THAT(host.streams.appended, ElementsAre("2024-02-03 04:05:06 +0000 \n"));
}

TEST_F(InstallLogTest, EachLineIsAppendedByItself) {
    log.logMessage("one");
    log.logMessage("two");
    EXPECT_EQ(host.streams.appended.size(), 2u);
}

TEST_F(InstallLogTest, AResultKeepsTheBlankBeforeItsColon) {
    log.logMessage("Authentication status ", true);
    log.logMessage("Install", false);
    EXPECT_THAT(host.logged(), ElementsAre("Authentication status :Succeeded", "Install:Failed"));
}

TEST_F(InstallLogTest, EveryOpModeHasItsNameAndZeroAndFourAreInvalid) {
    for (const int mode : {1, 2, 3, 0, 4})
        log.logInstall("Penmark", static_cast<ec::OpMode>(mode));
    EXPECT_THAT(host.logged(),
                ElementsAre("State: Penmark Mode: mode_check", "State: Penmark Mode: mode_copy",
                            "State: Penmark Mode: mode_remove", "State: Penmark Mode: mode_invalid",
                            "State: Penmark Mode: mode_invalid"));
}

TEST_F(InstallLogTest, AnInstallLineShowsTheComponentAtOnce) {
    struct Drawn final : controls::Control::Observer {
        explicit Drawn(controls::TextField& watched) : field(watched) {}
        void controlChanged(controls::Control&) override {}
        void displayNow(controls::Control&) override { seen.push_back(field.text()); }
        controls::TextField& field;
        std::vector<std::string> seen;
    } drawn(controller.processingText);
    controller.processingText.addObserver(drawn);
    log.logInstall("Spotlight importer", ec::OpMode::copy);
    controller.processingText.removeObserver(drawn);
    EXPECT_THAT(drawn.seen, ElementsAre("Processing: Spotlight importer"));
}

TEST_F(InstallLogTest, EveryResultHasItsNameAndTwoAndMinusTwoAreInvalid) {
    for (const int result : {-1, 0, 1, 2, -2})
        log.logResult(result, "");
    EXPECT_THAT(host.logged(), ElementsAre(" Result= Disable", " Result= No", " Result= Yes",
                                           " Result= Invalid", " Result= Invalid"));
}

TEST_F(InstallLogTest, AnExceptionWithoutATextEndsInABlank) {
    log.logException("gone");
    log.logException();
    EXPECT_THAT(host.logged(), ElementsAre("Exception Raised gone", "Exception Raised "));
}

TEST_F(InstallLogTest, OutputWithoutAClosingLineFeedStillGivesItsLastLine) {
    dump({"one\ntw", "o\nthree"});
    EXPECT_THAT(host.logged(), ElementsAre("one", "two", "three"));
}

TEST_F(InstallLogTest, BlankOutputLinesBecomeLinesOfDateAndBlank) {
    dump({"\n\n"});
    EXPECT_THAT(host.streams.appended,
                ElementsAre("2024-02-03 04:05:06 +0000 \n", "2024-02-03 04:05:06 +0000 \n"));
}

TEST_F(InstallLogTest, AClosingLineFeedMakesNoFurtherLine) {
    dump({"one\n"});
    EXPECT_THAT(host.logged(), ElementsAre("one"));
}

TEST_F(InstallLogTest, AByteAbove127IsOneCharacterWrittenInUtf8) {
    dump({"\xE9\xFF\n"});
    EXPECT_THAT(host.logged(), ElementsAre("\u00E9\u00FF"));
}

TEST_F(InstallLogTest, AnEndedDescriptorWritesNothing) {
    dump({});
    EXPECT_TRUE(host.streams.appended.empty());
}

TEST_F(InstallLogTest, ALineThatCanNotBeWrittenIsLostSilently) {
    host.streams.refuseAll = true;
    log.logMessage("lost");
    host.streams.refuseAll = false;
    log.logMessage("kept");
    EXPECT_THAT(host.logged(), ElementsAre("kept"));
}

TEST_F(InstallLogTest, WithoutAHomeFolderNothingIsWrittenIntoTheSystem) {
    host.places.home.clear();
    log.logMessage("where to?");
    EXPECT_TRUE(host.streams.files.contains(std::string(ec::gLogName)))
        << "the tilde leads nowhere and is left alone";
}

TEST(InstallLogOnDisk, AMissingLogsFolderIsNotMade) {
    const tests::TemporaryFolder home;
    fakes::FakeHost host;
    posix::FileTextStreams streams;
    const ports::SystemPlaces places{.root = "", .home = home.path(), .temporary = "/tmp"};
    controls::TextField processingText;
    ec::InstallLog log({.places = places,
                        .clock = host.clock,
                        .streams = streams,
                        .texts = host.texts,
                        .processingText = processingText,
                        .written = {}});
    log.logMessage("nothing comes of it");
    EXPECT_FALSE(std::filesystem::exists(home.path("Library")));

    std::filesystem::create_directories(home.path("Library/Logs"));
    log.logMessage("first");
    log.logMessage("second");
    EXPECT_EQ(home.read("Library/Logs/Scrivel 21 Stub Install.log"),
              "2024-02-03 04:05:06 +0000 first\n2024-02-03 04:05:06 +0000 second\n");
}

} // namespace
