#include "wizard/ecController.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/wizard/WizardStage.h"

namespace {

namespace fs = std::filesystem;

struct WizardStartUpTest : testing::Test {
    tests::TemporaryFolder folder;
    fakes::FakeHost host;
    tests::Components components;
    void SetUp() override {
        fs::create_directories(folder.path("resources"));
        host.bundles.resourceFolder = folder.path("resources");
        host.bundles.executable = "/Volumes/Scrivel 21/Installer.app/Contents/MacOS/Installer";
    }
};

TEST_F(WizardStartUpTest, ThePlainStartFillsTheFieldsFromTheBundle) {
    const ec::ecController controller(host.host(), components.rules, components.root);
    EXPECT_EQ(controller.m_custResourceDir, host.bundles.resourceFolder);
    EXPECT_EQ(controller.m_appResourceDir, host.bundles.resourceFolder);
    EXPECT_EQ(controller.m_execPath, host.bundles.executable);
    EXPECT_TRUE(host.streams.appended.empty());
}

TEST_F(WizardStartUpTest, ThePlainStartClearsEveryFlag) {
    const ec::ecController controller(host.host(), components.rules, components.root);
    EXPECT_FALSE(controller.m_bPMRK_path_added);
    EXPECT_FALSE(controller.m_bUninstall);
    EXPECT_FALSE(controller.m_bCustomizeMSWord);
    EXPECT_EQ(controller.m_aboutFileString, "");
    EXPECT_EQ(controller.m_mode, 0u);
    EXPECT_EQ(controller.mResultCode, 0);
}

TEST_F(WizardStartUpTest, TheHomeDirectoryIsTheUsers) {
    EXPECT_EQ(ec::ecController(host.host(), components.rules, components.root).readHomeDirectory(),
              "/Users/someone");
}

TEST_F(WizardStartUpTest, AnExecutableOutsideTheVolumeIsOnNoDiskImageAndTheDiskIsNotTouched) {
    host.bundles.executable = "/Applications/Volumes/Scrivel/Installer";
    fs::permissions(folder.path("resources"), fs::perms::none);
    EXPECT_FALSE(ec::ecController(host.host(), components.rules, components.root).isOnDiskImage());
    fs::permissions(folder.path("resources"), fs::perms::owner_all);
    EXPECT_TRUE(fs::is_empty(folder.path("resources")));
}

TEST_F(WizardStartUpTest, AWritableVolumeIsNoDiskImageAndKeepsNoTrace) {
    EXPECT_FALSE(ec::ecController(host.host(), components.rules, components.root).isOnDiskImage());
    EXPECT_TRUE(fs::is_empty(folder.path("resources")));
}

TEST_F(WizardStartUpTest, AVolumeThatTakesNoFileIsTheDiskImage) {
    host.bundles.resourceFolder = folder.path("missing");
    EXPECT_TRUE(ec::ecController(host.host(), components.rules, components.root).isOnDiskImage());
}

TEST_F(WizardStartUpTest, TheVolumeIsLookedForUnderTheRoot) {
    host.places.root = "/elsewhere";
    host.bundles.resourceFolder = folder.path("missing");
    EXPECT_FALSE(ec::ecController(host.host(), components.rules, components.root).isOnDiskImage());
    host.bundles.executable = "/elsewhere/Volumes/Scrivel/Installer";
    EXPECT_TRUE(ec::ecController(host.host(), components.rules, components.root).isOnDiskImage());
}

TEST_F(WizardStartUpTest, WordRunsWhenItsIdentifierDoes) {
    const ec::ecController controller(host.host(), components.rules, components.root);
    EXPECT_FALSE(controller.isWordRunning());
    host.applications.running.insert("com.microsoft.Word");
    EXPECT_TRUE(controller.isWordRunning());
    EXPECT_TRUE(controller.isAppWithBundleIDRunning("com.microsoft.Word"));
    EXPECT_FALSE(controller.isAppWithBundleIDRunning("com.microsoft.word"));
    EXPECT_FALSE(controller.isAppWithBundleIDRunning(std::nullopt));
}

TEST_F(WizardStartUpTest, ABundlesTextIsAnsweredOrNone) {
    host.bundles.strings[{"/Applications/A.app", "CFBundleShortVersionString"}] = "16.89.1";
    ec::ecController controller(host.host(), components.rules, components.root);
    EXPECT_EQ(
        controller.getBundleStringForPath("/Applications/A.app", "CFBundleShortVersionString"),
        "16.89.1");
    EXPECT_EQ(controller.getBundleStringForPath("/Applications/A.app", "Other"), std::nullopt);
}

// --- The window comes

struct AwakeningTest : testing::Test, tests::WizardStage {};

TEST_F(AwakeningTest, TheControlsOfTheAlternateLocationsStartDisabled) {
    show(34, {cancel()});
    EXPECT_FALSE(controller.acChange.isEnabled());
    EXPECT_FALSE(controller.acMinusBtn.isEnabled());
    EXPECT_FALSE(controller.acResetBtn.isEnabled());
    EXPECT_TRUE(controller.acPlus.isEnabled());
}

TEST_F(AwakeningTest, TheTitleNamesTheProductInTheUsersLanguage) {
    host.texts.table = {{"%@ Customizer", "Anpassung von %@"}};
    show(34, {cancel()});
    EXPECT_EQ(controller.window.title(), "Anpassung von Scrivel 21");
}

TEST_F(AwakeningTest, TheWindowIsInSightBeforeTheFirstScanBegins) {
    struct Watcher final : controls::Control::Observer {
        explicit Watcher(const controls::Window& its) : window(its) {}
        void controlChanged(controls::Control&) override {}
        void displayNow(controls::Control&) override { wasVisible = window.isVisible(); }
        const controls::Window& window;
        bool wasVisible = false;
    } watcher(controller.window);
    controller.window.addObserver(watcher);
    show(0, {cancel()});
    controller.window.removeObserver(watcher);
    EXPECT_TRUE(watcher.wasVisible);
}

TEST_F(AwakeningTest, TheUsersPreferencesAreReadOnceAndFoundAgain) {
    const std::string file =
        "/Users/someone/Library/Preferences/com.BrackleyHarlow.ScrivelCustomizer.plist";
    host.propertyLists.files[file]["Word"] = fakes::arrayProperty({"/Word.app|||/Startup|||16"});
    EXPECT_EQ(controller.wordCrumbs(), std::nullopt) << "the plain start reads nothing";
    show(34, {cancel()});
    EXPECT_EQ(controller.wordCrumbs(), std::vector<std::string>{"/Word.app|||/Startup|||16"});
    host.propertyLists.files.clear();
    show(35, {cancel()});
    EXPECT_EQ(controller.wordCrumbs(), std::vector<std::string>{"/Word.app|||/Startup|||16"});
    EXPECT_TRUE(host.propertyLists.written.empty());
}

TEST_F(AwakeningTest, WithoutPreferencesAndCustomizerDataTheWizardStartsAllTheSame) {
    show(34, {next(), cancel()});
    EXPECT_EQ(controller.wordCrumbs(), std::nullopt);
    EXPECT_EQ(looks.size(), 2u);
}

TEST_F(AwakeningTest, TheOutlineOfTheComponentsShowsTheRulesInEveryMode) {
    for (const std::uint32_t mode : {34u, 35u, 36u}) {
        tests::WizardStage stage;
        const unsigned before = stage.controller.ecOutlineView.generation();
        stage.show(mode, {stage.cancel()});
        EXPECT_GT(stage.controller.ecOutlineView.generation(), before) << mode;
        ASSERT_NE(stage.controller.ecOutlineView.dataSource(), nullptr) << mode;
        ASSERT_NE(stage.controller.ecOutlineView.delegate(), nullptr) << mode;
        EXPECT_EQ(
            stage.controller.ecOutlineView.dataSource()->outlineViewNumberOfChildrenOfItem(nullptr),
            3)
            << mode;
    }
}

} // namespace
