// The installer window's flow over fakes: every sheet, every checkpoint, every line.
#include "app/ScrivelInstaller.h"

#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/myAppDelegate.h"
#include "cp/private/SystemFolders.h"
#include "platform/ports/PlatformError.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using app::ScrivelInstaller;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Ending = ScrivelInstaller::Ending;

constexpr int kFirst = ports::AlertSheets::kFirstButton;
constexpr int kSecond = ports::AlertSheets::kSecondButton;

struct ScrivelInstallerTest : testing::Test {
    tests::TemporaryFolder own;
    fs::path folder = own.path();
    std::string destination = (folder / "root/Applications/Scrivel 21").string();
    fakes::FakeHost host;
    std::vector<std::string> statuses; ///< as the status line showed them

    void SetUp() override {
        fs::create_directories(folder / "resources");
        fs::create_directories(folder / "root/Applications");
        fs::create_directories(folder / "temporary");
        Corvaldine::CP::Private::set_system_folder_bases(
            {.root = {}, .home = {}, .temporary = (folder / "temporary").string()});
        host.places.root = (folder / "root").string();
        host.bundles.resourceFolder = (folder / "resources").string();
        std::ofstream(folder / "resources/Scrivel.zip") << "an archive";
        host.tools.handler = [this](const ports::ToolCall& call) { return tool(call); };
        host.modalLoop.idle = [this] { return idle(); };
    }

    /// What the real tools would leave behind.
    fakes::FakeTools::Answer tool(const ports::ToolCall& call) {
        if (call.tool == "/usr/bin/ditto" && call.arguments[0] == "-xk") {
            temporary = call.arguments[3];
            EXPECT_TRUE(fs::is_directory(temporary)) << "made before the archive is unpacked";
            if (unpacks)
                fs::create_directories(temporary + "/Scrivel/Scrivel 21.app");
            whileUnpacking();
        } else if (call.tool == "/usr/bin/ditto") {
            fs::copy(call.arguments[1], call.arguments[2], fs::copy_options::recursive);
            whileCopying();
        } else if (call.tool == "/bin/rm") {
            fs::remove_all(call.arguments.back());
        }
        return {};
    }

    bool idle() {
        if (press) {
            press = false;
            installer->m_button.press();
            return true;
        }
        if (host.mainQueue.hasPending())
            return host.mainQueue.runPending(), true;
        if (host.alertSheets.deliver())
            return true;
        if (host.backgroundQueue.isBusy())
            return host.backgroundQueue.run(), true;
        return false;
    }

    /// Opens the window, presses its button and answers the sheets; the session's code.
    int install(std::deque<int> answers = {}) {
        host.alertSheets.answers = std::move(answers);
        app::myAppDelegate delegate({.host = real,
                                     .finishBackgroundWork = [this] { host.backgroundQueue.run(); },
                                     .willRun =
                                         [this](ScrivelInstaller& made) {
                                             installer = &made;
                                             watch(made.m_statusTextField);
                                         }});
        const auto code = delegate.applicationDidFinishLaunching();
        installer = nullptr;
        ending = delegate.installer().ending();
        buttonTitle = delegate.installer().m_button.title();
        buttonEnabled = delegate.installer().m_button.isEnabled();
        return code.value();
    }

    /// Collects what the status line shows.
    struct Watcher final : controls::Control::Observer {
        Watcher(std::vector<std::string>& all, const controls::TextField& field)
            : m_all(all), m_field(field) {}
        void controlChanged(controls::Control&) override { m_all.push_back(m_field.text()); }

      private:
        std::vector<std::string>& m_all;
        const controls::TextField& m_field;
    };
    void watch(controls::TextField& field) {
        watcher.emplace(statuses, field);
        field.addObserver(*watcher);
    }

    ports::Host real = host.host();
    ScrivelInstaller* installer = nullptr;
    std::optional<Watcher> watcher;
    std::string temporary;
    bool press = true;
    bool unpacks = true;
    std::function<void()> whileUnpacking = [] {};
    std::function<void()> whileCopying = [] {};
    Ending ending = Ending::open;
    std::string buttonTitle;
    bool buttonEnabled = true;
};

TEST_F(ScrivelInstallerTest, WithBothApplicationsClosedAndNoFolderExtractionStartsWithoutASheet) {
    EXPECT_EQ(install(), 0);
    EXPECT_EQ(ending, Ending::finished);
    EXPECT_THAT(host.alertSheets.alerts, IsEmpty());
    EXPECT_TRUE(fs::is_directory(destination + "/Scrivel 21.app"));
    EXPECT_FALSE(fs::exists(temporary));
    EXPECT_THAT(host.applications.launched, ElementsAre(destination + "/Scrivel 21.app"));
    EXPECT_THAT(statuses, ElementsAre("Extracting Scrivel 21\u2026",
                                      "Installing Scrivel 21 to the Applications folder\u2026",
                                      "Launching Scrivel 21 for the first time\u2026"));
}

TEST_F(ScrivelInstallerTest, TheLogOfAnInstallReadsLineForLine) {
    EXPECT_EQ(install(), 0);
    const std::string zip = host.bundles.resourceFolder + "/Scrivel.zip";
    const std::string product = temporary + "/Scrivel";
    EXPECT_THAT(host.logged(),
                ElementsAre("Executing /usr/bin/ditto",
                            "execCmdLineApp /usr/bin/ditto -xk --noqtn " + zip + " " + temporary +
                                " result: ",
                            "Copy: " + product + " -> " + destination,
                            "Running as user: /usr/bin/ditto -rsrcFork " + product + " " +
                                destination + " Result: 0",
                            "Remove File: " + product, "Unlock Dir: " + product,
                            "Running as user: /usr/bin/chflags -R nouchg " + product + " Result: 0",
                            "Running as user: /bin/rm -rf " + product + " Result: 0"));
}

TEST_F(ScrivelInstallerTest, TheTemporaryFolderIsNamedSvAndEightOrMoreHexadecimalDigits) {
    install();
    EXPECT_THAT(fs::path(temporary).filename().string(), testing::MatchesRegex("SV[0-9a-f]{8,}"));
}

TEST_F(ScrivelInstallerTest, TheProductIsAskedForBeforeWordAndShortCircuits) {
    host.applications.running = {"com.BrackleyCorvaldine.Scrivel"};
    EXPECT_EQ(install({kSecond}), 0);
    EXPECT_THAT(host.applications.asked, ElementsAre("com.BrackleyCorvaldine.Scrivel"));
    host.applications.asked.clear();
    host.applications.running = {"com.microsoft.Word"};
    press = true;
    EXPECT_EQ(install({kSecond}), 0);
    EXPECT_THAT(host.applications.asked,
                ElementsAre("com.BrackleyCorvaldine.Scrivel", "com.microsoft.Word"));
}

TEST_F(ScrivelInstallerTest, QuittingAtTheRunningSheetEndsTheSessionWithZeroAndDoesNothing) {
    host.applications.running = {"com.microsoft.Word"};
    EXPECT_EQ(install({kSecond}), 0);
    EXPECT_EQ(ending, Ending::quit);
    EXPECT_THAT(host.tools.calls, IsEmpty());
    ASSERT_EQ(host.alertSheets.alerts.size(), 1u);
    const auto& alert = host.alertSheets.alerts[0];
    EXPECT_EQ(alert.style, ports::AlertStyle::critical);
    EXPECT_EQ(alert.message,
              "Scrivel and Microsoft Word cannot be open during Scrivel 21 installation.");
    EXPECT_EQ(alert.informative,
              "Please quit Scrivel and Microsoft Word and click the OK button to continue, or "
              "click the Quit Installer button to quit this installer.");
    EXPECT_THAT(alert.buttons, ElementsAre("OK", "Quit Installer"));
}

TEST_F(ScrivelInstallerTest, OkWhileWordIsStillOpenShowsTheSameSheetAgain) {
    host.applications.running = {"com.microsoft.Word"};
    EXPECT_EQ(install({kFirst, kFirst, kFirst, kSecond}), 0);
    EXPECT_EQ(host.alertSheets.alerts.size(), 4u);
    EXPECT_EQ(ending, Ending::quit);
}

TEST_F(ScrivelInstallerTest, AnInstalledVersionIsShownInTheOverwriteSheet) {
    fs::create_directories(destination);
    host.bundles.strings[{destination + "/Scrivel 21.app", "CFBundleShortVersionString"}] = "20.5";
    EXPECT_EQ(install({kFirst}), 0);
    EXPECT_EQ(ending, Ending::kept);
    const auto& alert = host.alertSheets.alerts.at(0);
    EXPECT_EQ(alert.style, ports::AlertStyle::warning);
    EXPECT_EQ(alert.message,
              "Would you like to overwrite the Scrivel 21 at /Applications/Scrivel 21?");
    EXPECT_EQ(alert.informative,
              "You are about to install Scrivel 21 version 21.0.0.19023, but version 20.5 is "
              "already installed.  This cannot be undone.");
    EXPECT_THAT(alert.buttons, ElementsAre("No", "Yes"));
    EXPECT_EQ(alert.escapeButton, 0u) << "Escape must never overwrite";
    EXPECT_TRUE(fs::is_directory(destination));
    EXPECT_THAT(host.tools.calls, IsEmpty());
}

TEST_F(ScrivelInstallerTest, AFolderWithoutAReadableApplicationOnlySaysItCannotBeUndone) {
    fs::create_directories(destination);
    install({kFirst});
    EXPECT_EQ(host.alertSheets.alerts.at(0).informative, "This cannot be undone.");
}

TEST_F(ScrivelInstallerTest, YesRemovesTheOldFolderBeforeAnythingIsUnpacked) {
    fs::create_directories(destination + "/old");
    whileUnpacking = [&] { EXPECT_FALSE(fs::exists(destination)); };
    EXPECT_EQ(install({kSecond}), 0);
    EXPECT_EQ(host.logged()[0], "Remove File: " + destination);
    EXPECT_FALSE(fs::exists(destination + "/old"));
    EXPECT_TRUE(fs::is_directory(destination + "/Scrivel 21.app"));
}

TEST_F(ScrivelInstallerTest, APlainFileAtTheDestinationMakesNoSheetAndTheCopyIsAttempted) {
    std::ofstream(destination) << "a file";
    whileCopying = [] {};
    host.tools.handler = [this](const ports::ToolCall& call) {
        if (call.tool == "/usr/bin/ditto" && call.arguments[0] == "-rsrcFork")
            return fakes::FakeTools::Answer{.status = 1};
        return tool(call);
    };
    EXPECT_EQ(install(), 0);
    EXPECT_THAT(host.alertSheets.alerts, IsEmpty());
    EXPECT_THAT(host.logged(), testing::Contains(HasSubstr("-rsrcFork")));
    EXPECT_TRUE(fs::is_regular_file(destination));
}

TEST_F(ScrivelInstallerTest, CancelDuringExtractionCopiesNothingAndEndsWithOne) {
    whileUnpacking = [this] {
        EXPECT_EQ(installer->m_button.title(), "Cancel");
        installer->m_button.press();
    };
    EXPECT_EQ(install(), 1);
    EXPECT_THAT(statuses, ElementsAre("Extracting Scrivel 21\u2026", "Canceling\u2026"));
    EXPECT_FALSE(buttonEnabled);
    EXPECT_FALSE(fs::exists(destination));
    EXPECT_FALSE(fs::exists(temporary));
    EXPECT_THAT(host.applications.launched, IsEmpty());
}

TEST_F(ScrivelInstallerTest, CancelAfterTheCopyLeavesTheProductAndOnlySkipsTheLaunch) {
    whileCopying = [this] { installer->m_button.press(); };
    EXPECT_EQ(install(), 1);
    EXPECT_TRUE(fs::is_directory(destination + "/Scrivel 21.app"));
    EXPECT_FALSE(fs::exists(temporary));
    EXPECT_THAT(host.applications.launched, IsEmpty());
}

TEST_F(ScrivelInstallerTest, AMissingArchiveEndsWithZeroWithoutAMessageOrATrace) {
    fs::remove(folder / "resources/Scrivel.zip");
    EXPECT_EQ(install(), 0);
    EXPECT_THAT(host.tools.calls, IsEmpty());
    EXPECT_THAT(host.alertSheets.alerts, IsEmpty());
    EXPECT_THAT(host.logged(), IsEmpty());
}

TEST_F(ScrivelInstallerTest, AFailedExtractionIsNotExaminedAndTheCopyFailsOnItsOwn) {
    unpacks = false;
    EXPECT_EQ(install(), 0);
    EXPECT_THAT(host.logged(),
                testing::Contains("Copy: source path does not exist: " + temporary + "/Scrivel"));
    EXPECT_FALSE(fs::exists(temporary));
}

TEST_F(ScrivelInstallerTest, TheFolderGetsItsIconWhenThereIsOne) {
    std::ofstream(folder / "resources/Scrivel_Folder.icns") << "icns";
    install();
    EXPECT_THAT(host.finderFiles.icons,
                ElementsAre(testing::Pair(destination,
                                          host.bundles.resourceFolder + "/Scrivel_Folder.icns")));
}

TEST_F(ScrivelInstallerTest, AMissingIconIsSkippedSilentlyAndTheFlowGoesOn) {
    EXPECT_EQ(install(), 0);
    EXPECT_THAT(host.finderFiles.icons, IsEmpty());
    EXPECT_EQ(host.applications.launched.size(), 1u);
}

TEST_F(ScrivelInstallerTest, AnExceptionOfThePlatformGoesToTheSystemLogAndEverythingIsCleanedUp) {
    whileCopying = [] { throw ports::PlatformError("the disk went away"); };
    EXPECT_EQ(install(), 0);
    EXPECT_THAT(host.systemLog.lines, ElementsAre("Error installing Scrivel:the disk went away"));
    EXPECT_FALSE(fs::exists(temporary));
}

TEST_F(ScrivelInstallerTest, ClosingTheWindowEndsTheSessionWithZero) {
    press = false;
    host.modalLoop.idle = [this] { return installer->window().performClose(); };
    EXPECT_EQ(install(), 0);
    EXPECT_EQ(ending, Ending::closed);
}

TEST_F(ScrivelInstallerTest, ClosingTheWindowDuringExtractionStopsTheWorkAtItsNextCheckpoint) {
    bool closed = false;
    host.modalLoop.idle = [this, &closed] {
        if (host.backgroundQueue.isBusy() && !closed)
            return closed = installer->window().performClose();
        return idle();
    };
    EXPECT_EQ(install(), 0);
    EXPECT_EQ(ending, Ending::closed);
    EXPECT_FALSE(fs::exists(destination));
    EXPECT_FALSE(fs::exists(temporary));
}

TEST_F(ScrivelInstallerTest, AWindowThatCanNotBeLoadedIsNotRun) {
    host.interfaceFiles.missing.insert("ScrivelInstaller");
    app::myAppDelegate delegate(
        {.host = real, .finishBackgroundWork = [] {}, .willRun = [](ScrivelInstaller&) {}});
    EXPECT_EQ(delegate.applicationDidFinishLaunching(), std::nullopt);
}

TEST_F(ScrivelInstallerTest, TheWindowStartsIdle) {
    ScrivelInstaller made(real);
    EXPECT_EQ(made.window().title(), "Install Scrivel 21");
    EXPECT_TRUE(made.m_progressIndicator.isHidden());
    EXPECT_FALSE(made.m_progressIndicator.isRunning());
    EXPECT_FALSE(made.cancelled());
}

TEST_F(ScrivelInstallerTest, TitlesAreBlackFromToolkitVersion1671OnAndPlainBelow) {
    const auto colourOfTitle = [&](double version) {
        host.appearance.version = version;
        ScrivelInstaller made(real);
        made.beginInstallingApp();
        EXPECT_EQ(made.m_button.title(), "Cancel");
        return made.m_button.attributedTitle().runs.at(0).colour;
    };
    EXPECT_EQ(colourOfTitle(1670.9), std::nullopt);
    EXPECT_EQ(colourOfTitle(1671), controls::Colour::black());
    EXPECT_EQ(colourOfTitle(1671.5), controls::Colour::black());
}

TEST_F(ScrivelInstallerTest, TheMisspeltRetrieveSheetIsWantedAsItStands) {
    ScrivelInstaller made(real);
    int answer = 0;
    made._show_unable_to_retrieve_alertSheet([&](int code) { answer = code; });
    const auto& alert = host.alertSheets.alerts.at(0);
    EXPECT_EQ(alert.message, "Unable to retreived required files for Scrivel 21 installation.");
    EXPECT_EQ(alert.informative, "Please try again later.");
    EXPECT_EQ(alert.style, ports::AlertStyle::critical);
    EXPECT_THAT(alert.buttons, ElementsAre("OK"));
    host.alertSheets.answer(kFirst);
    EXPECT_EQ(answer, kFirst);
}

TEST_F(ScrivelInstallerTest, EveryTextButTheWarningThatItCannotBeUndoneIsTranslated) {
    host.texts.table["Install %@"] = "%@ einrichten";
    host.texts.table["Extracting %@\u2026"] = "%@ wird entpackt\u2026";
    fs::create_directories(destination);
    EXPECT_EQ(install({kSecond}), 0);
    EXPECT_EQ(host.alertSheets.alerts.at(0).informative, "This cannot be undone.");
    EXPECT_FALSE(ports::TextKey::isInCatalogue("This cannot be undone."));
    EXPECT_THAT(host.texts.lookedUp, Not(Contains("This cannot be undone.")));
    EXPECT_EQ(statuses.at(0), "Scrivel 21 wird entpackt\u2026");
}

TEST_F(ScrivelInstallerTest, AReportOfBytesIsShownAndForgottenAtTheNextStatus) {
    whileUnpacking = [this] {
        installer->showProgress({.done = 10, .total = 40, .files = 1});
        EXPECT_EQ(installer->m_progressIndicator.amount().done, 10u);
    };
    whileCopying = [this] { EXPECT_EQ(installer->m_progressIndicator.amount().total, 0u); };
    EXPECT_EQ(install(), 0);
}

} // namespace
