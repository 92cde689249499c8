// The built program, worked by mouse and keyboard in its real window.
#include <csignal>

#include <gmock/gmock.h>

#include "tests/app/WindowRun.h"

namespace {

using namespace tests;
using testing::HasSubstr;
using testing::IsEmpty;

struct InTheWindow : WindowRun {
    void SetUp() override {
        WindowRun::SetUp();
        useSmallProduct();
    }
    void expectNothingInstalled(const Result& result) {
        EXPECT_EQ(result.exit, 1) << result.error;
        EXPECT_FALSE(fs::exists(destination));
        EXPECT_TRUE(fs::is_empty(temporary));
    }
};

TEST_F(InTheWindow, AClickOnTheButtonInstallsAndTellsWhatAnUnattendedRunTells) {
    open();
    EXPECT_EQ(titleOf(window()), "Install Scrivel 21");
    click(window(), kButton);
    const Result result = end();
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(result.error, "");
    EXPECT_TRUE(fs::exists(destination / "Read Me.txt"));
    EXPECT_THAT(windows(), IsEmpty());

    fs::remove_all(destination);
    EXPECT_EQ(storyOf(result), storyOf(run("install --events --unattended --no-launch")));
}

TEST_F(InTheWindow, ReturnInstalls) {
    open();
    press(window(), "Return");
    EXPECT_EQ(end().exit, 0);
    EXPECT_TRUE(fs::exists(destination / "Read Me.txt"));
}

TEST_F(InTheWindow, ASecondReturnDoesNotCancelWhatTheFirstBegan) {
    holdDitto();
    open();
    press(window(), "Return");
    waitForDitto();
    press(window(), "Return");
    press(window(), "Escape");
    openGate();
    EXPECT_EQ(end().exit, 0);
    EXPECT_TRUE(fs::exists(destination / "Read Me.txt"));
}

// --- the question about an installed copy

struct WithAnInstalledCopy : InTheWindow {
    void SetUp() override {
        InTheWindow::SetUp();
        fs::create_directories(destination);
        std::ofstream(destination / "mine.txt") << "mine";
    }
    void expectAnswer(const Result& result, const std::string& answer) {
        ASSERT_EQ(result.of("question").size(), 1u);
        EXPECT_EQ(result.of("question")[0]["answer"], answer);
        EXPECT_EQ(fs::exists(destination / "mine.txt"), answer == "No");
        EXPECT_EQ(fs::exists(destination / "Read Me.txt"), answer == "Yes");
        EXPECT_EQ(result.exit, answer == "Yes" ? 0 : 1);
    }
};

TEST_F(WithAnInstalledCopy, ReturnInTheSheetKeepsIt) {
    open();
    press(window(), "Return");
    press(sheet(), "Return");
    expectAnswer(end(), "No");
}

TEST_F(WithAnInstalledCopy, EscapeInTheSheetKeepsIt) {
    open();
    press(window(), "Return");
    press(sheet(), "Escape");
    expectAnswer(end(), "No");
}

TEST_F(WithAnInstalledCopy, AClickOnNoKeepsIt) {
    open();
    click(window(), kButton);
    click(sheet(), kDefaultAnswer);
    expectAnswer(end(), "No");
}

TEST_F(WithAnInstalledCopy, AClickOnYesOverwritesIt) {
    open();
    click(window(), kButton);
    click(sheet(), kSecondAnswer);
    expectAnswer(end(), "Yes");
}

TEST_F(WithAnInstalledCopy, TheTabKeyLeadsToYes) {
    open();
    press(window(), "Return");
    const WindowId asked = sheet();
    press(asked, "Tab");
    press(asked, "space");
    expectAnswer(end(), "Yes");
}

TEST_F(WithAnInstalledCopy, ATerminationBeforeTheAnswerKeepsIt) {
    open();
    press(window(), "Return");
    sheet();
    send(SIGTERM);
    const Result result = end();
    EXPECT_EQ(result.exit, 1);
    EXPECT_THAT(result.of("question"), IsEmpty());
    EXPECT_TRUE(fs::exists(destination / "mine.txt"));
}

// --- applications that run

struct WhileWordRuns : InTheWindow {
    posix::ChildProcess word;

    void SetUp() override {
        InTheWindow::SetUp();
        const fs::path contents = root / "Applications/Microsoft Word.app/Contents";
        fs::create_directories(contents / "MacOS");
        std::ofstream(contents / "Info.plist")
            << "<?xml version=\"1.0\" encoding=\"UTF-8\"?><plist version=\"1.0\"><dict>"
               "<key>CFBundleIdentifier</key><string>com.microsoft.Word</string></dict></plist>";
        const fs::path program = contents / "MacOS/Microsoft Word";
        fs::copy_file("/bin/sleep", program);
        ASSERT_EQ(word.start({.program = program, .arguments = {"120"}}), 0);
    }
    void TearDown() override {
        quitWord();
        InTheWindow::TearDown();
    }
    void quitWord() {
        if (!word.hasEnded())
            ::kill(word.pid(), SIGTERM);
        word.wait();
    }
};

TEST_F(WhileWordRuns, OKAsksAgainUntilItHasQuitAndThenGoesOn) {
    open();
    press(window(), "Return");
    const WindowId first = sheet();
    press(first, "Return");
    const WindowId second = sheet(first);
    EXPECT_FALSE(fs::exists(destination));
    quitWord();
    press(second, "Return");
    const Result result = end();
    EXPECT_EQ(result.exit, 0) << result.error;
    ASSERT_EQ(result.of("question").size(), 2u);
    for (const Json& question : result.of("question"))
        EXPECT_EQ(question["answer"], "OK");
    EXPECT_TRUE(fs::exists(destination / "Read Me.txt"));
}

TEST_F(WhileWordRuns, QuitInstallerEndsWithSix) {
    open();
    click(window(), kButton);
    click(sheet(), kSecondAnswer);
    const Result result = end();
    EXPECT_EQ(result.exit, 6);
    EXPECT_EQ(result.of("question")[0]["answer"], "Quit Installer");
    EXPECT_FALSE(fs::exists(destination));
}

TEST_F(WhileWordRuns, EscapeInTheSheetQuitsTheInstaller) {
    open();
    press(window(), "Return");
    press(sheet(), "Escape");
    EXPECT_EQ(end().exit, 6);
}

// --- ways to end it

TEST_F(InTheWindow, CancelWhileTheArchiveIsUnpackedInstallsNothing) {
    holdDitto();
    open();
    click(window(), kButton);
    waitForDitto();
    awaitEvent("status", "text", "Extracting Scrivel 21\u2026");
    click(window(), kButton);
    awaitEvent("status", "text", "Canceling\u2026");
    EXPECT_FALSE(windows().empty()) << "the window stays while the work is put away";
    openGate();
    const Result result = end();
    expectNothingInstalled(result);
    EXPECT_EQ(result.of("finished")[0]["result"], 1);
}

TEST_F(InTheWindow, ClosingTheIdleWindowCancels) {
    open();
    requestClose(window());
    const Result result = end();
    expectNothingInstalled(result);
    EXPECT_THAT(result.of("tool"), IsEmpty());
}

TEST_F(InTheWindow, EscapeInTheIdleWindowCancels) {
    open();
    press(window(), "Escape");
    expectNothingInstalled(end());
}

TEST_F(InTheWindow, ClosingTheWindowWhileTheArchiveIsUnpackedWaitsForTheWorkAndPutsItAway) {
    holdDitto();
    open();
    press(window(), "Return");
    waitForDitto();
    requestClose(window());
    waitUntil("the end of the window", [this] { return windows().empty(); });
    EXPECT_FALSE(hasEnded()) << "the tool is still at work";
    openGate();
    expectNothingInstalled(end());
}

TEST_F(InTheWindow, ATerminationEndsTheIdleProgram) {
    open();
    send(SIGTERM);
    expectNothingInstalled(end());
}

TEST_F(InTheWindow, ATerminationWhileTheArchiveIsUnpackedPutsEverythingAway) {
    holdDitto();
    open();
    press(window(), "Return");
    waitForDitto();
    send(SIGTERM);
    waitUntil("the end of the window", [this] { return windows().empty(); });
    openGate();
    expectNothingInstalled(end());
}

TEST_F(InTheWindow, ADisplayThatLeadsNowhereIsSaidInOneLine) {
    variables = {"DISPLAY=:65000", "QT_QPA_PLATFORM="};
    const auto before = treeOf(root);
    start();
    const Result result = end();
    EXPECT_EQ(result.exit, 2) << "not the 134 of a crash";
    EXPECT_EQ(std::ranges::count(result.error, '\n'), 1) << result.error;
    EXPECT_THAT(result.error, HasSubstr("--unattended"));
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(treeOf(root), before);
    EXPECT_TRUE(fs::is_empty(temporary));
    EXPECT_FALSE(fs::exists(log()));
}

// --- languages

TEST_F(InTheWindow, TheWindowSpeaksTheUsersLanguageAndTheLogStaysAsItIs) {
    variables = {"LANG=de_DE.UTF-8"};
    open();
    EXPECT_EQ(titleOf(window()), "Scrivel 21 installieren");
    press(window(), "Return");
    const Result german = end();
    EXPECT_EQ(german.exit, 0);
    EXPECT_EQ(german.error, "") << "also where the system has no such locale";
    EXPECT_EQ(german.of("status")[0]["text"], "Scrivel 21 wird entpackt \u2026");

    fs::remove_all(destination);
    const auto logOf = [](const Result& result) {
        auto story = storyOf(result);
        std::erase_if(story, [](const auto& event) { return event.find("\"log\"") == event.npos; });
        return story;
    };
    const auto lines = logOf(german);
    EXPECT_EQ(lines.size(), 8u);
    EXPECT_EQ(lines, logOf(run("install --events --unattended --no-launch")));
}

} // namespace
