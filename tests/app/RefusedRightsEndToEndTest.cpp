// The built program's components where administrator rights are refused, or where folders are
// closed to the user who runs it: what is done all the same, what is told of each component, and
// the exit status.
#include <gmock/gmock.h>

#include "tests/app/ComponentsRun.h"

namespace {

using namespace tests;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

const std::string kRefuse = R"({"authorize": false})";
const std::string kRefusedReason = "Administrator rights were refused.";

/// Picks the uninstallation in the Penmark wizard, agrees, and is refused the rights.
const std::string kUninstall =
    R"({"answers": ["Yes"], "authorize": false, "steps": [{"select": "matSVWInstall", "row": 1},
        {"press": "nextBtn"}, {"press": "nextBtn"}]})";

struct RefusedRightsEndToEnd : ComponentsRun {
    void SetUp() override {
        ComponentsRun::SetUp();
        addTwoWords();
    }
    void writeExtension() const {
        fs::create_directories(extension().parent_path());
        std::ofstream(extension()) << "{}";
    }
    static void expectOneOwnError(const Result& result, const std::string& about) {
        const std::vector<std::string> errors = ownErrors(result);
        ASSERT_THAT(errors, SizeIs(1)) << result.error;
        EXPECT_THAT(errors.front(), HasSubstr(about));
        EXPECT_EQ(result.of("finished").at(0)["exit"], result.exit);
        EXPECT_EQ("scrivel-installer: " + result.of("finished").at(0)["reason"].get<std::string>(),
                  errors.front());
    }
    static void expectRefused(const Result& result, const std::string& name) {
        EXPECT_EQ(result.exit, 5) << result.error;
        EXPECT_EQ(resultOf(result, name), "refused");
        EXPECT_EQ(reasonOf(result, name), kRefusedReason);
        expectOneOwnError(result, name + ": " + kRefusedReason);
    }
    static bool isPresent(const Result& result, const std::string& name) {
        for (const Json& component : result.of("component"))
            if (component["name"] == name)
                return component["present"];
        return false;
    }
};

TEST_F(RefusedRightsEndToEnd, EveryInstallingWizardIsAskedOnceAndLosesTheExtensionAlone) {
    for (const std::string command : {"penmark", "first-install", "first-install --short"}) {
        const Result result = runAnswering(command, kRefuse, "--yes");
        expectRefused(result, "Browser extension");
        EXPECT_EQ(resultOf(result, "Penmark add-in"),
                  command == "penmark" ? "installed" : "unchanged")
            << command;
        const auto asked = result.of("authorize");
        ASSERT_THAT(asked, SizeIs(1)) << command;
        EXPECT_EQ(asked.front()["granted"], false);
        for (const Json& tool : result.of("tool"))
            EXPECT_EQ(tool["as"], "user") << tool;
    }
    EXPECT_THAT(installed(),
                ElementsAre("Microsoft Word integration", "Penmark add-in", "Read Me.txt"));
    EXPECT_FALSE(fs::exists(extension().parent_path()));
}

TEST_F(RefusedRightsEndToEnd, ARunThatNeedsNoRightsAsksForNone) {
    const Result result = customize(R"(--select "Penmark add-in")", kRefuse);
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_THAT(result.of("authorize"), IsEmpty());
    EXPECT_THAT(ownErrors(result), IsEmpty());
}

TEST_F(RefusedRightsEndToEnd, TheUninstallationLeavesTheExtensionThatItMayNotRemove) {
    writeExtension();
    customize(R"(--select "Penmark add-in")", kRefuse);
    const Result result = runAnswering("penmark", kUninstall);
    expectRefused(result, "Browser extension");
    EXPECT_TRUE(isPresent(result, "Browser extension"));
    EXPECT_EQ(contentsOf(extension()), "{}");
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "removed");
    EXPECT_TRUE(fs::is_empty(shared()));
    EXPECT_THAT(logged(), Contains("Uninstalling: Tessaron for Google Chrome: collects references "
                                   "from web pages Result: Failed"));
}

TEST_F(RefusedRightsEndToEnd, TheCustomizerSaysThatAnExtensionIsStillThere) {
    writeExtension();
    const Result result = customize(R"(--deselect "Browser extension")", kRefuse);
    expectRefused(result, "Browser extension");
    EXPECT_TRUE(isPresent(result, "Browser extension"));
    EXPECT_THAT(installed(), Contains("Browser extension"));
}

TEST_F(RefusedRightsEndToEnd, AnExtensionThatIsThereAsItShouldBeIsNoFailure) {
    fs::create_directories(extension().parent_path());
    std::ofstream(extension())
        << R"({"external_update_url":"https://updates.scrivel.example/extensions/chrome/)"
        << R"(update-manifest.xml"})";
    const Result result = runAnswering("penmark", kRefuse);
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(resultOf(result, "Browser extension"), "unchanged");
    EXPECT_THAT(logged(), Contains("Authentication status :Failed"));
}

TEST_F(RefusedRightsEndToEnd, ARefusalIsToldBeforeAnotherFailureAndBothAreNamed) {
    fs::remove_all(folder / "Penmark" / k16);
    const Result result =
        customize(R"(--select "Penmark add-in" --select "Browser extension")", kRefuse);
    expectRefused(result, "Browser extension");
    EXPECT_EQ(resultOf(result, "Penmark add-in"), "failed");
    EXPECT_THAT(ownErrors(result).front(),
                HasSubstr("Penmark add-in: “" + (folder / "Penmark" / k16).string() +
                          "” is missing from this copy of the installer."));
    EXPECT_TRUE(fs::exists(shared() / k2016));
}

// --- folders that are closed to an ordinary user

struct ClosedFoldersEndToEnd : RefusedRightsEndToEnd {
    std::vector<fs::path> closed;

    void SetUp() override {
        RefusedRightsEndToEnd::SetUp();
        runAsOrdinaryUser();
    }
    void TearDown() override {
        for (const fs::path& path : closed)
            fs::permissions(path, fs::perms::owner_all);
        RefusedRightsEndToEnd::TearDown();
    }
    void close(const fs::path& path) {
        fs::create_directories(path);
        fs::permissions(path, static_cast<fs::perms>(0555));
        closed.push_back(path);
    }
    Result install(const std::string& name) {
        return customize("--select '" + name + "'", kRefuse);
    }
};

TEST_F(ClosedFoldersEndToEnd, AStartupFolderThatMayNotBeWrittenIsRefusedAndSoSaysTheLog) {
    close(shared());
    const Result result = install("Penmark add-in");
    expectRefused(result, "Penmark add-in");
    EXPECT_FALSE(isPresent(result, "Penmark add-in"));
    EXPECT_TRUE(fs::is_empty(shared()));
    EXPECT_THAT(logged(), Contains("Running as user: /usr/bin/ditto -rsrcFork " +
                                   (folder / "Penmark" / k16).string() + " " +
                                   (shared() / k16).string() + " Result: 1"));
    EXPECT_THAT(logged(), Contains("Installing: Penmark for Microsoft Word: citations and "
                                   "bibliographies in your documents Result: Succeeded"))
        << "the log counts a refused prompt as done";
}

TEST_F(ClosedFoldersEndToEnd, AStartupFolderThatMayNotBeMadeIsRefused) {
    close(root / "Library");
    expectRefused(install("Penmark add-in"), "Penmark add-in");
    EXPECT_TRUE(fs::is_empty(root / "Library"));
}

TEST_F(ClosedFoldersEndToEnd, AnAddInThatMayNotBeRemovedIsStillThereAndToldSo) {
    EXPECT_EQ(install("Penmark add-in").exit, 0);
    close(shared());
    const Result result = runAnswering("penmark", kUninstall);
    expectRefused(result, "Penmark add-in");
    EXPECT_TRUE(isPresent(result, "Penmark add-in"));
    EXPECT_THAT(installed(), Contains("Penmark add-in"));
}

TEST_F(ClosedFoldersEndToEnd, OneClosedFolderOfSeveralIsEnoughToSayRefused) {
    const fs::path mine = home / "Startup";
    close(mine);
    rememberWords(
        {(applications() / "Microsoft Word.app").string() + "|||" + mine.string() + "|||16"});
    const Result result = install("Penmark add-in");
    expectRefused(result, "Penmark add-in");
    EXPECT_TRUE(isPresent(result, "Penmark add-in")) << "in the other folder";
    EXPECT_TRUE(fs::is_empty(mine));
    EXPECT_EQ(treeOf(shared()), treeOf(folder / "Penmark"));
}

TEST_F(ClosedFoldersEndToEnd, AnAddInThatMayNotBeReadIsRefusedThoughTheRestOfItIsThere) {
    const fs::path secret = "Contents/Info.plist";
    fs::permissions(folder / "Penmark" / k16 / secret, fs::perms::none);
    const Result result = install("Penmark add-in");
    expectRefused(result, "Penmark add-in");
    EXPECT_TRUE(isPresent(result, "Penmark add-in"));
    EXPECT_TRUE(fs::exists(shared() / k16 / "Contents/MacOS"));
    EXPECT_FALSE(fs::exists(shared() / k16 / secret));
}

TEST_F(ClosedFoldersEndToEnd, ContentThatMayNotBeWrittenIsRefused) {
    close(folder / "Filters");
    const Result result = install("Law");
    expectRefused(result, "Law");
    EXPECT_TRUE(fs::is_empty(folder / "Filters"));
}

TEST_F(ClosedFoldersEndToEnd, AnImporterThatMayNotBeWrittenIsRefused) {
    close(home / "Library/Spotlight");
    expectRefused(install("Spotlight importer"), "Spotlight importer");
    EXPECT_TRUE(fs::is_empty(home / "Library/Spotlight"));
}

TEST_F(ClosedFoldersEndToEnd, WithoutALogTheWorkIsDoneAllTheSame) {
    close(home / "Library/Logs");
    const Result result = install("Penmark add-in");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_FALSE(fs::exists(log()));
    EXPECT_EQ(treeOf(shared()), treeOf(folder / "Penmark"));
}

TEST_F(ClosedFoldersEndToEnd, ATemporaryFolderThatIsClosedFailsTheExtensionBeforeAnyoneIsAsked) {
    close(temporary);
    const Result result = install("Browser extension");
    EXPECT_EQ(result.exit, 4);
    EXPECT_THAT(result.of("authorize"), IsEmpty());
    EXPECT_EQ(resultOf(result, "Browser extension"), "failed");
    expectOneOwnError(result, "Browser extension: ");
}

} // namespace
