// What the audit says of a change, whatever the install methods answered.
#include "engine/ComponentAudit.h"

#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/engine/MethodsStage.h"
#include "tests/engine/ToolsInProcess.h"

namespace {

namespace fs = std::filesystem;
using ec::ComponentOutcome;
using ec::OpMode;
using Result = ComponentOutcome::Result;

struct ComponentAuditTest : testing::Test {
    enum Item : std::uint32_t { kAll, kLaw, kPhysics, kSpotlight, kServices, kTessaron, kFile };
    tests::MethodsStage stage{"Filters|0|All filters|inst_allCategories|Filters\n"
                              "Law|1|Filters for law|inst_Category|Filters/Law\n"
                              "Physics|1|Filters for physics|inst_Category|Filters/Physics\n"
                              "Spotlight|1|Importer|inst_Spotlight\n"
                              "Services|1|Services|inst_Services\n"
                              "Tessaron|1|Extension|inst_Tessaron\n"
                              "Read Me.txt|1|Notes|inst_File"};
    ec::ecRules& rules = stage.components.rules;
    const std::string userImporter = stage.home("Library/Spotlight/Scrivel.mdimporter");
    const std::string systemService = stage.system("Library/Services/SVService.app");
    const std::string extension = stage.system(std::string(ec::gTessaronFile).substr(1));

    void SetUp() override {
        tests::serveInProcess(stage.host);
        stage.writeImporter();
        stage.writeService();
        stage.writeContent("Filters/Law/law 1", "law");
        stage.writeContent("Filters/Law/law 2", "law");
        stage.writeContent("Filters/Physics/physics 1", "physics");
        stage.writeContent("Most Popular/Filters/law 1", "law");
        for (std::uint32_t item = 0; item < rules.count(); ++item)
            rules.setItemState(item, -1);
    }
    /// Changes one item and leaves the others alone; what became of it.
    ComponentOutcome change(Item item, std::int32_t state) {
        rules.setItemState(item, state);
        stage.controller.outcomes.clear();
        (void)stage.controller.makeChange();
        EXPECT_EQ(stage.controller.outcomes.size(), rules.count());
        for (const ComponentOutcome& outcome : stage.controller.outcomes) {
            if (outcome.item == item)
                continue;
            EXPECT_FALSE(outcome.mode) << outcome.name;
            EXPECT_EQ(outcome.result, Result::unchanged) << outcome.name;
        }
        const ComponentOutcome outcome = stage.controller.outcomes.at(item);
        EXPECT_EQ(outcome.name, rules.getItemName(item));
        rules.setItemState(item, -1);
        return outcome;
    }
    /// The result with its reason, as a text.
    static std::string verdict(const ComponentOutcome& outcome) {
        constexpr std::array kNames{"installed", "removed", "unchanged", "refused", "failed"};
        std::string text = kNames.at(static_cast<std::size_t>(outcome.result));
        text += outcome.present ? ", present" : ", absent";
        if (outcome.reason)
            text += ": " + ec::formatted(outcome.reason->text.english(), {outcome.reason->about});
        return text;
    }
    std::string verdictOf(Item item, std::int32_t state) { return verdict(change(item, state)); }
    void noToolWorks() {
        stage.host.tools.handler = [](const auto&) {
            return fakes::FakeTools::Answer{.status = 1};
        };
        stage.host.administrator.effect = {};
    }
    static std::string notWritten(const std::string& path) {
        return "“" + path + "” could not be written.";
    }
    static std::string stillThere(const std::string& path) {
        return "“" + path + "” is still there.";
    }
    static std::string isMissing(const std::string& path) {
        return "“" + path + "” is missing from this copy of the installer.";
    }
    static constexpr const char* kRefused = ": Administrator rights were refused.";
};

TEST_F(ComponentAuditTest, EachKindIsInstalledThenUnchangedThenRemovedThenUnchanged) {
    for (const Item item : {kLaw, kSpotlight, kServices, kTessaron}) {
        SCOPED_TRACE(rules.getItemName(item).value());
        EXPECT_EQ(verdictOf(item, 1), "installed, present");
        EXPECT_EQ(verdictOf(item, 1), "unchanged, present");
        EXPECT_EQ(verdictOf(item, 0), "removed, absent");
        EXPECT_EQ(verdictOf(item, 0), "unchanged, absent");
    }
}

TEST_F(ComponentAuditTest, ACollectionIsRemovedWhenOnlyTheMostPopularAreLeft) {
    EXPECT_EQ(verdictOf(kAll, 1), "installed, present");
    EXPECT_EQ(verdictOf(kAll, 1), "unchanged, present");
    EXPECT_EQ(verdictOf(kAll, 0), "removed, absent");
    EXPECT_TRUE(fs::exists(stage.beside("Filters/law 1")));
    EXPECT_EQ(verdictOf(kAll, 0), "unchanged, absent");
}

TEST_F(ComponentAuditTest, TheWantedModeIsToldAndNoneForWhatIsLeftAlone) {
    EXPECT_EQ(change(kLaw, 1).mode, OpMode::copy);
    EXPECT_EQ(change(kLaw, 0).mode, OpMode::remove);
    EXPECT_EQ(change(kLaw, -2).mode, std::nullopt);
}

TEST_F(ComponentAuditTest, WhatIsLeftAloneStillTellsWhetherItIsThere) {
    EXPECT_FALSE(change(kLaw, -1).present);
    stage.writeBeside("Filters/law 2", "some");
    EXPECT_EQ(verdictOf(kLaw, -1), "unchanged, present");
}

TEST_F(ComponentAuditTest, AnotherVersionThatIsReplacedCountsAsInstalled) {
    EXPECT_EQ(verdictOf(kLaw, 1), "installed, present");
    stage.writeBeside("Filters/law 2", "old");
    EXPECT_EQ(verdictOf(kLaw, 1), "installed, present");
    stage.folder.write("disk" + std::string(ec::gTessaronFile), "old");
    EXPECT_EQ(verdictOf(kTessaron, 1), "installed, present");
}

TEST_F(ComponentAuditTest, TheOtherLevelIsNoCopyForTheOneThatIsOn) {
    EXPECT_EQ(verdictOf(kServices, 1), "installed, present");
    stage.controller.servBtns.select(1);
    EXPECT_EQ(verdictOf(kServices, 1), "installed, present");
    EXPECT_TRUE(fs::exists(systemService));
    EXPECT_EQ(verdictOf(kServices, 0), "removed, absent") << "from both levels";
}

TEST_F(ComponentAuditTest, RefusedRightsAreTheReasonWhereTheDiskIsNotAsItShouldBe) {
    noToolWorks();
    stage.refuseRights();
    for (const Item item : {kAll, kLaw, kSpotlight, kServices, kTessaron}) {
        SCOPED_TRACE(rules.getItemName(item).value());
        EXPECT_EQ(verdictOf(item, 1), std::string("refused, absent") + kRefused);
    }
    EXPECT_EQ(verdictOf(kLaw, 0), "unchanged, absent");
    fs::create_directories(userImporter);
    EXPECT_EQ(verdictOf(kSpotlight, 0), std::string("refused, present") + kRefused);
}

TEST_F(ComponentAuditTest, AFailureNamesWhatIsNotThereThoughTheMethodCallsItASuccess) {
    noToolWorks();
    EXPECT_EQ(verdictOf(kLaw, 1), "failed, absent: " + notWritten(stage.beside("Filters/law 1")));
    EXPECT_EQ(verdictOf(kAll, 1), "failed, absent: " + notWritten(stage.beside("Filters/law 1")));
    EXPECT_EQ(verdictOf(kSpotlight, 1), "failed, absent: " + notWritten(userImporter));
    stage.controller.servBtns.select(1);
    EXPECT_EQ(verdictOf(kServices, 1), "failed, absent: " + notWritten(systemService));
    EXPECT_EQ(verdictOf(kTessaron, 1), "failed, absent: " + notWritten(extension));
}

TEST_F(ComponentAuditTest, AFailedRemovalNamesWhatIsStillThere) {
    for (const Item item : {kLaw, kSpotlight, kTessaron})
        EXPECT_EQ(verdictOf(item, 1), "installed, present");
    noToolWorks();
    EXPECT_EQ(verdictOf(kLaw, 0), "failed, present: " + stillThere(stage.beside("Filters/law 1")));
    EXPECT_EQ(verdictOf(kSpotlight, 0), "failed, present: " + stillThere(userImporter));
    EXPECT_EQ(verdictOf(kTessaron, 0), "failed, present: " + stillThere(extension));
    EXPECT_EQ(verdictOf(kAll, 0), "failed, present: " + stillThere(stage.beside("Filters/law 2")))
        << "the first is one of the most popular, which stay";
}

TEST_F(ComponentAuditTest, HalfACopyIsAFailure) {
    stage.host.tools.handler = [&](const ports::ToolCall& call) {
        const int status = tests::runInProcess(call);
        if (call.tool.ends_with("/ditto"))
            std::ofstream(stage.beside("Filters/law 2")) << "la";
        return fakes::FakeTools::Answer{.status = status};
    };
    EXPECT_EQ(verdictOf(kLaw, 1), "failed, present: " + notWritten(stage.beside("Filters/law 2")));
}

TEST_F(ComponentAuditTest, AShippedCopyThatIsMissingIsTheReason) {
    for (const char* name : {"Services", "Product-Support", "Installer.app/Contents"})
        fs::remove_all(stage.beside(name));
    EXPECT_EQ(verdictOf(kLaw, 1), "failed, absent: " + isMissing(stage.content("Filters/Law")));
    EXPECT_EQ(verdictOf(kAll, 1), "failed, absent: " + isMissing(stage.content("Filters")));
    EXPECT_EQ(verdictOf(kServices, 1),
              "failed, absent: " + isMissing(stage.beside("Services/SVService.app")));
    EXPECT_EQ(verdictOf(kSpotlight, 1),
              "failed, absent: " + isMissing(stage.bundle() + "/Contents/Library/Spotlight/"
                                                              "Scrivel.mdimporter"));
    EXPECT_EQ(verdictOf(kLaw, 0), "unchanged, absent");
}

TEST_F(ComponentAuditTest, AServiceThatIsPutAwayIsShippedAllTheSame) {
    fs::rename(stage.beside("Services/SVService.app"),
               stage.beside("Services/SVService.app.disabled"));
    EXPECT_EQ(verdictOf(kServices, 1), "installed, present");
}

TEST_F(ComponentAuditTest, WithoutALevelThereIsNothingToInstall) {
    std::destroy_at(&stage.controller.spotBtns);
    std::construct_at(&stage.controller.spotBtns, 2, -1);
    EXPECT_EQ(verdictOf(kSpotlight, 1), "failed, absent: It was not chosen who can use it.");
    fs::create_directories(userImporter);
    EXPECT_EQ(verdictOf(kSpotlight, 1), "unchanged, present") << "one is there, so it stays";
}

TEST_F(ComponentAuditTest, AFolderInTheExtensionsPlaceIsAFailure) {
    fs::create_directories(extension);
    EXPECT_EQ(verdictOf(kTessaron, 1), "failed, present: " + notWritten(extension));
    EXPECT_EQ(verdictOf(kTessaron, 0), "failed, present: " + stillThere(extension));
}

TEST_F(ComponentAuditTest, MethodsThatNoChangeConcernsAreUnchanged) {
    EXPECT_EQ(verdictOf(kFile, 1), "unchanged, absent");
    EXPECT_EQ(change(kFile, 1).mode, std::nullopt);
}

TEST_F(ComponentAuditTest, AnUninstallIsToldOfEveryComponent) {
    for (const Item item : {kLaw, kPhysics, kSpotlight, kServices, kTessaron})
        (void)change(item, 1);
    stage.controller.m_bUninstall = true;
    stage.controller.outcomes.clear();
    (void)stage.controller.makeChange();
    std::vector<std::string> verdicts;
    for (const ComponentOutcome& outcome : stage.controller.outcomes)
        verdicts.push_back(outcome.name + " " + verdict(outcome));
    EXPECT_THAT(verdicts,
                testing::ElementsAre("Filters removed, absent", "Law removed, absent",
                                     "Physics removed, absent", "Spotlight removed, absent",
                                     "Services removed, absent", "Tessaron removed, absent",
                                     "Read Me.txt unchanged, absent"));
}

TEST_F(ComponentAuditTest, TheFirstInstallTellsOfTheExtensionByTheRuleOrByItsOwnName) {
    (void)stage.controller.initialInstall();
    ASSERT_EQ(stage.controller.outcomes.size(), 2u);
    EXPECT_EQ(stage.controller.outcomes[1].item, std::uint32_t{kTessaron});
    EXPECT_EQ(stage.controller.outcomes[1].name, "Tessaron");
    EXPECT_EQ(verdict(stage.controller.outcomes[1]), "installed, present");

    tests::MethodsStage without("");
    tests::serveInProcess(without.host);
    (void)without.controller.initialInstall();
    EXPECT_EQ(without.controller.outcomes.at(1).item, std::nullopt);
    EXPECT_EQ(without.controller.outcomes.at(1).name, "Tessaron Extension");
    EXPECT_EQ(verdict(without.controller.outcomes.at(1)), "installed, present");
}

TEST_F(ComponentAuditTest, ItChangesNothingAndLogsNothing) {
    ec::ComponentAudit& audit = stage.controller;
    audit.begin({{.item = kLaw, .method = "inst_Category", .mode = OpMode::copy},
                 {.item = kAll, .method = "inst_allCategories", .mode = OpMode::remove}});
    audit.end();
    EXPECT_TRUE(stage.events.empty());
    EXPECT_TRUE(stage.run().empty());
    EXPECT_EQ(verdict(stage.controller.outcomes.at(0)),
              "failed, absent: " + notWritten(stage.beside("Filters/law 1")));
    EXPECT_EQ(verdict(stage.controller.outcomes.at(1)), "unchanged, absent");
}

} // namespace
