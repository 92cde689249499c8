// The built program's wizard, worked by keys in its real window.
#include <csignal>

#include <gmock/gmock.h>

#include "tests/app/WindowRun.h"

namespace {

using namespace tests;
using testing::IsEmpty;

struct WizardInTheWindow : WindowRun {
    static std::vector<std::string> pagesOf(const Result& result) {
        std::vector<std::string> pages;
        for (Json page : result.of("page")) {
            page.erase("time");
            pages.push_back(page.dump());
        }
        return pages;
    }
    /// Uninstall… by keys; answers the question's window.
    WindowId askToUninstall() {
        open("customize");
        awaitPage(6);
        pressAll(window(), {"Tab", "Tab", "space"}); // from the tree to the second button below it
        const WindowId asked = sheet();
        EXPECT_EQ(titleOf(asked), "Scrivel 21 Installer");
        return asked;
    }
};

TEST_F(WizardInTheWindow, ReturnLeadsThroughTheCustomizerAsAnUnattendedRunGoes) {
    open("customize");
    EXPECT_EQ(titleOf(window()), "Scrivel 21 Customizer");
    awaitPage(6);
    press(window(), "Return");
    awaitPage(8);
    press(window(), "Return");
    const Result result = end();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(result.error, "");
    for (const char* content : {"Filters", "Styles"}) // as it was before
        fs::remove_all(folder / content);
    EXPECT_EQ(storyOf(result), storyOf(run("customize --events --unattended")));
}

TEST_F(WizardInTheWindow, ArrowsAndTheSpaceBarChooseWhatIsInstalled) {
    open("customize");
    awaitPage(6);
    // the row of Spotlight, seven above the last
    pressAll(window(), {"End", "Up", "Up", "Up", "Up", "Up", "Up", "Up", "space", "Return"});
    awaitPage(13);
    press(window(), "Return");
    awaitPage(8);
    press(window(), "Return");
    const Result result = end();
    std::ofstream(folder / "answers.json") << R"({"steps": [
        {"set": "Spotlight importer", "state": 1}, {"press": "nextBtn"}, {"press": "nextBtn"},
        {"press": "nextBtn"}]})";
    fs::remove_all(root);
    fs::remove_all(home);
    fs::create_directories(root / "Applications");
    fs::create_directories(home / "Library/Logs");
    const Result unattended =
        run("customize --events --answers '" + (folder / "answers.json").string() + "'");
    EXPECT_EQ(result.exit, unattended.exit) << result.error;
    EXPECT_EQ(pagesOf(result), pagesOf(unattended));
    EXPECT_TRUE(fs::exists(home / "Library/Spotlight/Scrivel.mdimporter"));
}

TEST_F(WizardInTheWindow, AKeyInTheInstallersWindowOpensItAndTheInstallerComesBack) {
    useSmallProduct();
    open();
    press(window(), "ctrl+k");
    awaitPage(6);
    const WindowId wizard = sheet();
    EXPECT_EQ(titleOf(wizard), "Scrivel 21 Customizer");
    press(wizard, "Escape");
    waitUntil("the end of the wizard", [this] { return windows().size() == 1; });
    EXPECT_EQ(windows().front(), window());
    press(window(), "Return");
    const Result result = end();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_TRUE(fs::exists(destination / "Read Me.txt"));
}

TEST_F(WizardInTheWindow, EscapeAtTheQuestionAboutUninstallingIsANo) {
    press(askToUninstall(), "Escape");
    waitUntil("the end of the question", [this] { return windows().size() == 1; });
    awaitEvent("question");
    EXPECT_FALSE(hasEnded());
    press(window(), "Escape");
    const Result result = end();
    EXPECT_EQ(result.exit, 1);
    ASSERT_EQ(result.of("question").size(), 1u);
    EXPECT_EQ(result.of("question")[0]["answer"], "No");
    EXPECT_EQ(result.of("page").back()["page"], 6);
}

TEST_F(WizardInTheWindow, ClosingItCancels) {
    open("customize");
    awaitPage(6);
    const auto before = treeOf(root);
    requestClose(window());
    const Result result = end();
    EXPECT_EQ(result.exit, 1);
    EXPECT_EQ(treeOf(root), before);
}

TEST_F(WizardInTheWindow, ATerminationDuringAQuestionDeclinesAndLeavesNothing) {
    askToUninstall();
    const auto before = treeOf(root);
    send(SIGTERM);
    const Result result = end();
    EXPECT_EQ(result.exit, 1) << result.error;
    EXPECT_EQ(result.of("finished").at(0)["exit"], 1);
    for (const Json& question : result.of("question"))
        EXPECT_EQ(question["answer"], "No");
    EXPECT_THAT(windows(), IsEmpty());
    EXPECT_EQ(treeOf(root), before);
    EXPECT_TRUE(fs::is_empty(temporary));
}

TEST_F(WizardInTheWindow, KeysThatArePressedWhileACopyIsUpdatedAnswerNothing) {
    if (!isRoot())
        GTEST_SKIP() << "it needs an administrator's rights";
    const fs::path tool = bundle / "Contents/Resources/applyPatch";
    fs::remove(tool);
    std::ofstream(tool) << "#!/bin/sh\n"
                           "case \"$5\" in -n | -C | --verify) exit 0 ;; esac\n"
                           "echo \"$2\" >>'"
                        << (folder / "applied").string() << "'\nwhile ! [ -e '"
                        << (folder / "go on").string() << "' ]; do sleep 0.02; done\n";
    fs::permissions(tool, static_cast<fs::perms>(0755));
    for (const char* name : {"A", "B"}) {
        const fs::path contents = root / "Applications" / name / "Scrivel 21.app/Contents";
        fs::create_directories(contents);
        std::ofstream(contents / "Info.plist")
            << "<plist version=\"1.0\"><dict><key>CFBundleDocumentTypes</key><array><dict>"
               "<key>CFBundleTypeExtensions</key><array><string>enl</string></array></dict>"
               "</array></dict></plist>";
    }
    open("update");
    awaitPage(14);
    press(window(), "Return");
    awaitPage(4);
    press(window(), "Return");
    awaitPage(16);
    press(window(), "Return");
    waitUntil("the tool", [this] { return fs::exists(folder / "applied"); });
    pressAll(window(), {"Return", "Escape", "space", "Return"});
    std::ofstream(folder / "go on");
    awaitPage(16, 3); // the second of them had the text of an error
    EXPECT_FALSE(hasEnded());
    press(window(), "Escape");
    const Result result = end();
    EXPECT_EQ(result.exit, 1) << result.error;
    EXPECT_EQ(contentsOf(folder / "applied"), (root / "Applications/A").string() + "\n");
    ASSERT_EQ(result.of("copy").size(), 2u);
    EXPECT_EQ(result.of("copy")[0]["state"], "updated");
    EXPECT_EQ(result.of("copy")[1]["state"], "offered");
}

} // namespace
