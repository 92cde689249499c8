// The two install methods; LevelPageTest has the page on which their level is chosen.
#include "engine/SpotlightServices.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/ports/PlatformError.h"
#include "tests/engine/LogLines.h"
#include "tests/engine/MethodsStage.h"
#include "tests/engine/ToolsInProcess.h"

namespace {

namespace fs = std::filesystem;
using ec::OpMode;
using lines::Lines;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr ec::OptionalText kNone = std::nullopt;
constexpr int kNobody = -1; // neither cell is on
constexpr int kUser = 0;
constexpr int kAllUsers = 1;

/// Only in the Customizer is there a look at the disk.
constexpr std::array<std::uint32_t, 6> kOtherModes{0, 32, 34, 36, 7, 3500};

struct SpotlightServicesTest : testing::Test {
    tests::MethodsStage stage;
    ec::ecController& controller = stage.controller;
    const std::string userImporter = stage.home("Library/Spotlight/Scrivel.mdimporter");
    const std::string systemImporter = stage.system("Library/Spotlight/Scrivel.mdimporter");
    const std::string userService = stage.home("Library/Services/SVService.app");
    const std::string systemService = stage.system("Library/Services/SVService.app");
    const std::string importer = stage.writeImporter();
    const std::string service = stage.writeService();

    void SetUp() override { tests::serveInProcess(stage.host); }

    int spotlight(OpMode mode) {
        return controller.installSpotlightMode(mode, 0, kNone, kNone).value();
    }
    int services(OpMode mode) {
        return controller.installServicesMode(mode, 0, kNone, kNone).value();
    }
    /// A matrix in which nothing is on can't be clicked together, but the page may come so.
    static void choose(controls::RadioMatrix& levels, int level) {
        if (level == kNobody) {
            std::destroy_at(&levels);
            std::construct_at(&levels, 2, kNobody);
        } else {
            levels.select(level);
        }
    }
    Lines state(const std::string& title, const std::string& mode) const {
        return {"State: " + title + " Mode: mode_" + mode};
    }
    Lines spotlightState(const std::string& mode) const { return state("Spotlight Support", mode); }
    Lines servicesState(const std::string& mode) const { return state("Scrivel Services", mode); }
    Lines stopped() const {
        return {"Run: KillSVService.sh -> Params: (\n)",
                lines::user(stage.host.bundles.resourceFolder + "/KillSVService.sh ")};
    }
    void installEverywhere() {
        for (const std::string& place : {userImporter, systemImporter, userService, systemService})
            fs::create_directories(place);
    }
};

TEST_F(SpotlightServicesTest, ACheckOfTheImporterInTheCustomizerLooksAtBothLevels) {
    EXPECT_EQ(spotlight(OpMode::check), 0);
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all(
                    {spotlightState("check"), {"CHECK: Did not find installed Spotlight"}})));
    fs::create_directories(systemImporter);
    EXPECT_EQ(spotlight(OpMode::check), 1);
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all(
                                    {spotlightState("check"), {"Found System-level Spotlight"}})));
    fs::create_directories(userImporter);
    EXPECT_EQ(spotlight(OpMode::check), 1);
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all({spotlightState("check"),
                                                             {"Found User-level Spotlight",
                                                              "Found System-level Spotlight"}})));
}

TEST_F(SpotlightServicesTest, ACheckOfTheServicesInTheCustomizerLooksAtBothLevels) {
    EXPECT_EQ(services(OpMode::check), 0);
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all(
                    {servicesState("check"), {"CHECK: Did not find installed Services"}})));
    fs::create_directories(userService);
    EXPECT_EQ(services(OpMode::check), 1);
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all(
                                    {servicesState("check"), {"Found User-level Services"}})));
    fs::create_directories(systemService);
    EXPECT_EQ(services(OpMode::check), 1);
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all({servicesState("check"),
                                                             {"Found User-level Services",
                                                              "Found System-level Services"}})));
}

TEST_F(SpotlightServicesTest, InOtherLaunchModesTheTwoAreWantedToAnswerUnlikeEachOtherUnseen) {
    for (const bool installed : {false, true}) {
        if (installed)
            installEverywhere();
        for (const std::uint32_t launchMode : kOtherModes) {
            controller.m_mode = launchMode;
            EXPECT_EQ(spotlight(OpMode::check), launchMode == 32 ? 1 : 0) << launchMode;
            EXPECT_EQ(services(OpMode::check), 1) << launchMode;
            EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all(
                                            {spotlightState("check"), servicesState("check")})));
        }
    }
    EXPECT_THAT(stage.run(), IsEmpty());
}

TEST_F(SpotlightServicesTest, ACopyGoesToTheLevelThatIsOnInEveryLaunchModeWithoutALook) {
    for (const std::uint32_t launchMode : {0u, 32u, 34u, 35u, 36u})
        for (const int level : {kUser, kAllUsers}) {
            controller.m_mode = launchMode;
            choose(controller.spotBtns, level);
            choose(controller.servBtns, level);
            EXPECT_EQ(spotlight(OpMode::copy), 0) << "wanted: the driver's line says Failed";
            EXPECT_EQ(services(OpMode::copy), 1);
            EXPECT_THAT(
                stage.logged(),
                ElementsAreArray(lines::all(
                    {spotlightState("copy"),
                     lines::copied(importer, level == kUser ? userImporter : systemImporter),
                     servicesState("copy"), stopped(),
                     lines::copied(service, level == kUser ? userService : systemService)})));
        }
    EXPECT_EQ(tests::contentsOf(userImporter + "/Info"), "importer");
    EXPECT_EQ(tests::contentsOf(systemService + "/Info"), "service");
}

TEST_F(SpotlightServicesTest, WithoutALevelNothingIsCopiedButTheServiceIsStopped) {
    choose(controller.spotBtns, kNobody);
    choose(controller.servBtns, kNobody);
    EXPECT_EQ(spotlight(OpMode::copy), 0);
    EXPECT_EQ(services(OpMode::copy), 1);
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all(
                                    {spotlightState("copy"), servicesState("copy"), stopped()})));
    EXPECT_FALSE(fs::exists(userImporter) || fs::exists(systemImporter) ||
                 fs::exists(userService) || fs::exists(systemService));
}

TEST_F(SpotlightServicesTest, RemovingTakesBothLevelsTheUsersFirst) {
    installEverywhere();
    EXPECT_EQ(spotlight(OpMode::remove), 0) << "wanted: the driver's line says Failed";
    EXPECT_EQ(services(OpMode::remove), 1);
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all(
                    {spotlightState("remove"), lines::removedFolder(userImporter),
                     lines::removedFolder(systemImporter), servicesState("remove"), stopped(),
                     lines::removedFolder(userService), lines::removedFolder(systemService)})));
    EXPECT_FALSE(fs::exists(userImporter) || fs::exists(systemImporter) ||
                 fs::exists(userService) || fs::exists(systemService));
}

TEST_F(SpotlightServicesTest, RemovingWhereNothingIsStillStopsTheService) {
    EXPECT_EQ(spotlight(OpMode::remove), 0);
    EXPECT_EQ(services(OpMode::remove), 1);
    EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all({spotlightState("remove"),
                                                             servicesState("remove"), stopped()})));
}

TEST_F(SpotlightServicesTest, OtherModesDoNothingAndAreWantedToAnswerUnlikeEachOther) {
    installEverywhere();
    for (const int mode : {0, 4, -1}) {
        EXPECT_EQ(spotlight(OpMode{mode}), 0) << mode;
        EXPECT_EQ(services(OpMode{mode}), 1) << mode;
        EXPECT_THAT(stage.logged(), ElementsAreArray(lines::all(
                                        {spotlightState("invalid"), servicesState("invalid")})));
    }
    EXPECT_THAT(stage.run(), IsEmpty());
}

TEST_F(SpotlightServicesTest, AServiceThatIsPutAwayGetsItsNameBackBeforeAnythingElse) {
    for (const OpMode mode : {OpMode::check, OpMode::copy, OpMode::remove, OpMode{4}}) {
        fs::rename(service, service + ".disabled");
        controller.m_mode = 0;
        EXPECT_EQ(services(mode), 1);
        EXPECT_TRUE(fs::exists(service));
        EXPECT_FALSE(fs::exists(service + ".disabled"));
        const Lines logged = stage.logged();
        const Lines renamed = lines::renamed(service + ".disabled", service);
        ASSERT_GE(logged.size(), 3u);
        EXPECT_EQ(logged.at(1), renamed.at(0));
        EXPECT_EQ(logged.at(2), renamed.at(1));
    }
    EXPECT_EQ(tests::contentsOf(userService + "/Info"), "") << "removed again";
}

TEST_F(SpotlightServicesTest, AShippedBundleThatIsMissingLeavesTheAnswersAsTheyAre) {
    fs::remove_all(importer);
    fs::remove_all(service);
    EXPECT_EQ(spotlight(OpMode::copy), 0);
    EXPECT_EQ(services(OpMode::copy), 1);
    EXPECT_THAT(stage.logged(),
                ElementsAreArray(lines::all(
                    {spotlightState("copy"), lines::notCopied(importer, userImporter),
                     servicesState("copy"), stopped(), lines::notCopied(service, userService)})));
}

TEST_F(SpotlightServicesTest, WhatFailsIsNotLookedAt) {
    stage.host.tools.handler = [](const auto&) { return fakes::FakeTools::Answer{.status = 1}; };
    stage.refuseRights();
    installEverywhere();
    for (const OpMode mode : {OpMode::copy, OpMode::remove}) {
        EXPECT_EQ(spotlight(mode), 0);
        EXPECT_EQ(services(mode), 1);
    }
}

TEST_F(SpotlightServicesTest, WhatThePlatformRaisesIsLoggedAndDisables) {
    stage.host.tools.handler = [](const auto&) -> fakes::FakeTools::Answer {
        throw ports::PlatformError("raised");
    };
    EXPECT_EQ(spotlight(OpMode::copy), -1);
    EXPECT_EQ(stage.logged().back(), "Exception Raised ");
    EXPECT_EQ(services(OpMode::remove), -1);
    EXPECT_EQ(stage.logged().back(), "Exception Raised ");
}

} // namespace
