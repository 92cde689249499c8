#include "platform/macos/WorkspaceApplications.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <map>

#include "platform/macos/ApplicationLauncher.h"
#include "platform/macos/LaunchServices.h"
#include "platform/macos/RunningApplications.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using macoshost::WorkspaceApplications;
using Paths = std::vector<std::string>;

/// The system as the three adapters below would show it.
struct System {
    std::map<std::string, macoshost::ApplicationPaths> known;
    std::map<std::string, std::vector<std::optional<std::string>>> running;
    Paths launchable;
    Paths launched;
};
System desktop;

} // namespace

namespace macoshost {

ApplicationPaths applicationsWithIdentifier(std::string_view bundleIdentifier) {
    return desktop.known[std::string(bundleIdentifier)];
}

ApplicationPaths applicationsForDocument(std::string_view document) {
    return desktop.known[std::string(document)];
}

std::vector<std::optional<std::string>> bundlesOfRunning(std::string_view bundleIdentifier) {
    return desktop.running[std::string(bundleIdentifier)];
}

bool launchApplication(const std::string& bundle) {
    desktop.launched.push_back(bundle);
    return std::ranges::find(desktop.launchable, bundle) != desktop.launchable.end();
}

} // namespace macoshost

namespace {

class WorkspaceApplicationsTest : public testing::Test {
  protected:
    WorkspaceApplicationsTest() { desktop = {}; }

    std::string bundle(const std::string& name) {
        folder.write(name + "/Contents/Info.plist", "");
        return folder.path(name);
    }

    tests::TemporaryFolder folder;
    WorkspaceApplications everywhere{{}};
    WorkspaceApplications confined{{.root = folder.path("root")}};
};

TEST_F(WorkspaceApplicationsTest, AnApplicationRunsWhenTheSystemNamesOneEvenWithoutItsBundle) {
    EXPECT_FALSE(everywhere.isRunning("com.example.X"));
    desktop.running["com.example.X"] = {std::nullopt};
    EXPECT_TRUE(everywhere.isRunning("com.example.X"));
    desktop.running["com.example.X"] = {"/vanished/X.app"};
    EXPECT_TRUE(everywhere.isRunning("com.example.X"));
    EXPECT_FALSE(everywhere.isRunning("com.example.Y"));
}

TEST_F(WorkspaceApplicationsTest, WithARootFolderOnlyWhatRunsBelowItCounts) {
    desktop.running["com.example.X"] = {std::nullopt, bundle("X.app"), bundle("root2/X.app"),
                                        folder.path("root")};
    EXPECT_FALSE(confined.isRunning("com.example.X"));
    desktop.running["com.example.X"].push_back(bundle("root/X.app"));
    EXPECT_TRUE(confined.isRunning("com.example.X"));
}

TEST_F(WorkspaceApplicationsTest, LinksOnTheWayToARootFolderAreResolved) {
    desktop.running["com.example.X"] = {bundle("root/X.app")};
    std::filesystem::create_directory_symlink(folder.path("root"), folder.path("link"));
    WorkspaceApplications overALink({.root = folder.path("link")});
    EXPECT_TRUE(overALink.isRunning("com.example.X"));
    std::filesystem::create_directory_symlink(bundle("away.app"), folder.path("root/away.app"));
    desktop.running["com.example.X"] = {folder.path("root/away.app")};
    EXPECT_FALSE(overALink.isRunning("com.example.X"));
}

TEST_F(WorkspaceApplicationsTest, TheRootOfAllFoldersIsEverywhere) {
    desktop.running["com.example.X"] = {std::nullopt};
    WorkspaceApplications wholeDisk({.root = "/"});
    EXPECT_TRUE(wholeDisk.isRunning("com.example.X"));
}

TEST_F(WorkspaceApplicationsTest, EachPathIsNamedOnceInTheRegistrysOrder) {
    desktop.known["com.example.X"] = {{"/b.app", "/a.app", "/b.app", "/B.app"}};
    EXPECT_EQ(everywhere.pathsFor("com.example.X"), Paths({"/b.app", "/a.app", "/B.app"}));
    desktop.known["/x.enl"] = {{"/b.app", "/b.app"}};
    EXPECT_EQ(everywhere.pathsForDocument("/x.enl"), Paths({"/b.app"}));
}

TEST_F(WorkspaceApplicationsTest, WithoutAListThereAreNoPathsForAnIdentifierAndNoneForADocument) {
    EXPECT_EQ(everywhere.pathsFor("com.example.X"), Paths());
    EXPECT_EQ(everywhere.pathsForDocument("/x.enl"), std::nullopt);
    EXPECT_EQ(confined.pathsForDocument("/x.enl"), std::nullopt);
}

TEST_F(WorkspaceApplicationsTest, AnEmptyListForADocumentStaysOne) {
    desktop.known["/x.enl"] = Paths();
    EXPECT_EQ(everywhere.pathsForDocument("/x.enl"), Paths());
    EXPECT_EQ(confined.pathsForDocument("/x.enl"), Paths());
}

TEST_F(WorkspaceApplicationsTest, WithARootFolderOnlyPathsBelowItCount) {
    const std::string inside = bundle("root/I.app");
    desktop.known["com.example.X"] = {{bundle("O.app"), inside}};
    EXPECT_EQ(confined.pathsFor("com.example.X"), Paths({inside}));
    desktop.known["/x.enl"] = desktop.known["com.example.X"];
    EXPECT_EQ(confined.pathsForDocument("/x.enl"), Paths({inside}));
    desktop.known["/x.enl"] = {{bundle("O.app")}};
    EXPECT_EQ(confined.pathsForDocument("/x.enl"), std::nullopt);
    EXPECT_EQ(everywhere.pathsForDocument("/x.enl"), Paths({bundle("O.app")}));
}

TEST_F(WorkspaceApplicationsTest, ALaunchNamesTheFullPathAndAnswersAsTheSystemDoes) {
    desktop.launchable = {"/Applications/X.app"};
    EXPECT_TRUE(everywhere.launch("/Applications/X.app"));
    EXPECT_FALSE(everywhere.launch("/Applications/Y.app"));
    EXPECT_EQ(desktop.launched, Paths({"/Applications/X.app", "/Applications/Y.app"}));
}

} // namespace
