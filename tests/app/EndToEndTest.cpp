// The built program, run for real: real archive, real tools, real files under a root folder.
#include <thread>

#include <gmock/gmock.h>
#include <unistd.h>

#include "tests/app/InstallerRun.h"

namespace {

using namespace tests;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using EndToEnd = InstallerRun;

TEST_F(EndToEnd, TheSampleProductIsInstalledAsItWasPacked) {
    const Result result = run("install --unattended");
    EXPECT_EQ(result.exit, 0) << result.error;
    auto installed = treeOf(destination);
    // The folder's icon is what the installer adds.
    std::erase_if(installed, [](const auto& item) {
        return item.first == "Icon\r" || item.first == "._Icon\r";
    });
    EXPECT_EQ(installed, treeOf(sample()));
    EXPECT_THAT(result.output, HasSubstr("Scrivel 21 is installed in " + destination.string()));
    EXPECT_THAT(result.output, HasSubstr(log().string()));
}

TEST_F(EndToEnd, TheInstalledApplicationIsLaunched) {
    EXPECT_EQ(run("install --unattended").exit, 0);
    const fs::path trace = home / "Library/Application Support/Scrivel 21/launches.txt";
    for (int i = 0; i < 100 && !fs::exists(trace); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(contentsOf(trace), "launched\n");
}

TEST_F(EndToEnd, WithoutLaunchingTheApplicationStaysClosed) {
    useSmallProduct();
    EXPECT_EQ(run("install --unattended --no-launch").exit, 0);
    EXPECT_FALSE(fs::exists(home / "Library/Application Support"));
}

TEST_F(EndToEnd, TheLogReadsLineForLine) {
    useSmallProduct();
    ASSERT_EQ(run("install --unattended --no-launch").exit, 0);
    const auto lines = logged();
    ASSERT_EQ(lines.size(), 8u);
    const std::string place = lines[1].substr(lines[1].find((temporary / "SV").string()));
    const std::string product = place.substr(0, place.find(' ')) + "/Scrivel";
    EXPECT_THAT(lines,
                ElementsAre("Executing /usr/bin/ditto",
                            "execCmdLineApp /usr/bin/ditto -xk --noqtn " + archive().string() +
                                " " + fs::path(product).parent_path().string() + " result: ",
                            "Copy: " + product + " -> " + destination.string(),
                            "Running as user: /usr/bin/ditto -rsrcFork " + product + " " +
                                destination.string() + " Result: 0",
                            "Remove File: " + product, "Unlock Dir: " + product,
                            "Running as user: /usr/bin/chflags -R nouchg " + product + " Result: 0",
                            "Running as user: /bin/rm -rf " + product + " Result: 0"));
    EXPECT_THAT(contentsOf(log()),
                testing::ContainsRegex("^[0-9]{4}-[0-9]{2}-[0-9]{2} [0-9:]{8} \\+0000 Executing"));
}

TEST_F(EndToEnd, AnInstalledCopyIsKeptUnlessToldOtherwise) {
    useSmallProduct();
    ASSERT_EQ(run("install --unattended --no-launch").exit, 0);
    std::ofstream(destination / "mine.txt") << "mine";
    const Result kept = run("install --events --unattended --no-launch");
    EXPECT_EQ(kept.exit, 1);
    EXPECT_TRUE(fs::exists(destination / "mine.txt"));
    ASSERT_EQ(kept.of("question").size(), 1u);
    const Json question = kept.of("question")[0];
    EXPECT_EQ(question["message"],
              "Would you like to overwrite the Scrivel 21 at /Applications/Scrivel 21?");
    EXPECT_EQ(question["informative"], "This cannot be undone.");
    EXPECT_EQ(question["buttons"], Json({"No", "Yes"}));
    EXPECT_EQ(question["answer"], "No");
    EXPECT_EQ(question["code"], 1000);
    EXPECT_EQ(kept.of("finished")[0]["exit"], 1);

    EXPECT_EQ(run("install --unattended --no-launch --yes").exit, 0);
    EXPECT_FALSE(fs::exists(destination / "mine.txt"));
    EXPECT_TRUE(fs::exists(destination / "Read Me.txt"));
}

TEST_F(EndToEnd, TheInstalledVersionIsReadFromTheCopyThatIsThere) {
    ASSERT_EQ(run("install --unattended --no-launch").exit, 0);
    const Result again = run("install --events --unattended");
    EXPECT_EQ(again.of("question")[0]["informative"],
              "You are about to install Scrivel 21 version 21.0.0.19023, but version "
              "21.0.0.19023 is already installed.  This cannot be undone.");
}

TEST_F(EndToEnd, EventsTellTheWholeStoryInOrder) {
    useSmallProduct();
    const Result result = run("install --events --unattended --no-launch");
    ASSERT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(result.events.front()["event"], "start");
    EXPECT_EQ(result.events.front()["command"], "install");
    EXPECT_EQ(result.events.front()["root"], root.string());
    EXPECT_EQ(result.events.front()["home"], home.string());
    EXPECT_EQ(result.events.front()["version"], "21.0.0.19023");
    EXPECT_EQ(result.events.back()["event"], "finished");
    EXPECT_EQ(result.events.back()["result"], 0);
    EXPECT_EQ(result.events.back()["exit"], 0);
    std::vector<std::string> statuses;
    for (const Json& status : result.of("status"))
        statuses.push_back(status["text"]);
    EXPECT_THAT(statuses, ElementsAre("Extracting Scrivel 21\u2026",
                                      "Installing Scrivel 21 to the Applications folder\u2026",
                                      "Launching Scrivel 21 for the first time\u2026"));
    std::vector<std::string> tools;
    for (const Json& tool : result.of("tool")) {
        tools.push_back(tool["path"]);
        EXPECT_EQ(tool["as"], "user");
        EXPECT_EQ(tool["status"], 0);
    }
    EXPECT_THAT(tools,
                ElementsAre("/usr/bin/ditto", "/usr/bin/ditto", "/usr/bin/chflags", "/bin/rm"));
    std::vector<std::string> lines;
    for (const Json& line : result.of("log"))
        lines.push_back(line["line"]);
    EXPECT_EQ(lines, logged());
    for (const Json& event : result.events)
        EXPECT_THAT(event["time"].get<std::string>(),
                    testing::MatchesRegex("[0-9-]{10}T[0-9:]{8}\\.[0-9]{3}Z"));
}

TEST_F(EndToEnd, OurOwnToolsReportBytesThatTheLogDoesNotSee) {
    const Result result = run("install --events --unattended --no-launch");
    const auto progress = result.of("progress");
    ASSERT_FALSE(progress.empty());
    EXPECT_TRUE(std::ranges::any_of(progress, [](const Json& event) {
        return event.contains("total") && event["done"] == event["total"] && event["files"] > 0;
    }));
    EXPECT_EQ(logged()[1].substr(logged()[1].find(" result:")), " result: ");
}

TEST_F(EndToEnd, CancelWhileTheArchiveIsUnpackedInstallsNothing) {
    const Result result = runWith(R"({"steps": [{"press": "m_button"}, {"press": "m_button"}]})");
    EXPECT_EQ(result.exit, 1);
    EXPECT_FALSE(fs::exists(destination));
    EXPECT_EQ(result.of("status").back()["text"], "Canceling\u2026");
    EXPECT_EQ(result.of("finished")[0]["result"], 1);
}

TEST_F(EndToEnd, CancelAfterTheCopyLeavesTheProductAndSkipsTheLaunch) {
    const Result result = runWith(R"({"steps": [
        {"press": "m_button"},
        {"waitFor": {"event": "status",
                     "text": "Installing Scrivel 21 to the Applications folder…"}},
        {"press": "m_button"}]})");
    EXPECT_EQ(result.exit, 1);
    EXPECT_EQ(result.of("finished")[0]["result"], 1);
    EXPECT_TRUE(fs::is_directory(destination / "Scrivel 21.app"));
    EXPECT_FALSE(fs::exists(home / "Library/Application Support"));
}

TEST_F(EndToEnd, AnEmptyListOfStepsPressesNothingAndCancels) {
    const Result result = runWith(R"({"steps": []})");
    EXPECT_EQ(result.exit, 1);
    EXPECT_THAT(result.of("tool"), IsEmpty());
}

TEST_F(EndToEnd, ASnapshotShowsEveryOutlet) {
    const Result result = runWith(R"({"steps": [{"snapshot": "at rest"}]})");
    const Json snapshot = result.of("snapshot").at(0);
    EXPECT_EQ(snapshot["name"], "at rest");
    EXPECT_EQ(
        snapshot["controls"]["m_button"],
        Json({{"kind", "button"}, {"title", "Install"}, {"enabled", true}, {"hidden", false}}));
    EXPECT_EQ(snapshot["controls"]["m_progressIndicator"]["running"], false);
    EXPECT_EQ(snapshot["controls"]["m_statusTextField"]["kind"], "text");
}

TEST_F(EndToEnd, AnswersAreTakenInOrder) {
    useSmallProduct();
    fs::create_directories(destination);
    const Result result = runWith(R"({"answers": ["Yes"]})");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(result.of("question")[0]["answer"], "Yes");
    EXPECT_EQ(result.of("question")[0]["code"], 1001);
}

TEST_F(EndToEnd, AnAnswerThatTheQuestionLacksEndsWithThreeAndChangesNothing) {
    fs::create_directories(destination / "mine");
    const Result result = runWith(R"({"answers": ["Maybe"]})", "--yes");
    EXPECT_EQ(result.exit, 3);
    EXPECT_THAT(result.error, HasSubstr("\"Maybe\""));
    EXPECT_TRUE(fs::exists(destination / "mine"));
}

TEST_F(EndToEnd, AControlThatIsMissingOrDisabledEndsWithThree) {
    EXPECT_EQ(runWith(R"({"steps": [{"press": "nextBtn"}]})").exit, 3);
    EXPECT_EQ(runWith(R"({"steps": [{"press": "m_statusTextField"}]})").exit, 3);
    EXPECT_EQ(runWith(R"({"steps": [{"toggle": "Spotlight importer"}]})").exit, 3);
    const Result twice = runWith(
        R"({"steps": [{"press": "m_button"}, {"press": "m_button"}, {"press": "m_button"}]})");
    EXPECT_EQ(twice.exit, 3);
    EXPECT_THAT(twice.error, HasSubstr("steps[2]"));
    EXPECT_FALSE(fs::exists(destination));
}

TEST_F(EndToEnd, AnUnreadableAnswersFileIsWrongUsageAndStartsNothing) {
    const Result broken = runWith(R"({"answers": [)");
    EXPECT_EQ(broken.exit, 2);
    EXPECT_THAT(broken.error, HasSubstr("answers.json"));
    EXPECT_THAT(broken.events, IsEmpty());
    EXPECT_EQ(runWith(R"({"answer": []})").exit, 2);
    EXPECT_EQ(run("install --answers /nowhere/answers.json").exit, 2);
    EXPECT_FALSE(fs::exists(log()));
}

TEST_F(EndToEnd, WrongUsageSaysHowToGoOn) {
    for (const std::string words :
         {"--no-such-option", "no-such-command", "--wait-for-apps soon"}) {
        const Result result = run(words);
        EXPECT_EQ(result.exit, 2) << words;
        EXPECT_THAT(result.error, HasSubstr("--help"));
    }
}

TEST_F(EndToEnd, WithoutADisplayOneLineSaysHowToGoOn) {
    environment = "DISPLAY= WAYLAND_DISPLAY= QT_QPA_PLATFORM= ";
    const Result result = run("install");
    EXPECT_EQ(result.exit, 2);
    EXPECT_EQ(std::ranges::count(result.error, '\n'), 1);
    EXPECT_THAT(result.error, HasSubstr("--unattended"));
}

TEST_F(EndToEnd, HelpAndVersionAreAnswered) {
    EXPECT_THAT(run("--help").output, HasSubstr("--wait-for-apps"));
    EXPECT_EQ(run("--version").output, "scrivel-installer 21.0.0.19023\n");
}

// --- applications that run

struct RunningApplication : EndToEnd {
    std::thread application;
    std::string bundled;

    /// Starts the sample product's application from the root's Applications folder.
    void start(const std::string& seconds) {
        fs::copy(sample(), root / "Applications/Elsewhere",
                 fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        const std::string program =
            (root / "Applications/Elsewhere/Scrivel 21.app/Contents/MacOS/Scrivel 21").string();
        application = std::thread([program, seconds, own = (folder / "else").string()] {
            posix::SpawnedTools tools({});
            (void)tools.capture(
                {"/usr/bin/env", {"HOME=" + own, "SCRIVEL_SAMPLE_STAY=" + seconds, program}});
        });
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
    }
    void TearDown() override {
        application.join();
        EndToEnd::TearDown();
    }
};

TEST_F(RunningApplication, ARunningProductEndsTheRunWithSix) {
    start("2");
    const Result result = run("install --events --unattended --yes");
    EXPECT_EQ(result.exit, 6);
    EXPECT_EQ(result.of("question")[0]["answer"], "Quit Installer");
    EXPECT_EQ(result.of("question")[0]["message"],
              "Scrivel and Microsoft Word cannot be open during Scrivel 21 installation.");
    EXPECT_FALSE(fs::exists(destination));
}

TEST_F(RunningApplication, AnApplicationThatQuitsInTimeIsWaitedFor) {
    start("2");
    const Result result = run("install --events --unattended --no-launch --wait-for-apps 60");
    EXPECT_EQ(result.exit, 0) << result.error;
    EXPECT_EQ(result.of("question")[0]["answer"], "OK");
}

TEST_F(RunningApplication, APoliteKillEndsTheWaitForTheApplication) {
    start("3");
    const Result result = run("install --unattended --no-launch --wait-for-apps 60 & installer=$!; "
                              "sleep 1; kill -TERM $installer; wait $installer");
    EXPECT_EQ(result.exit, 6);
    EXPECT_FALSE(fs::exists(destination)) << "else it waited for the application to quit";
}

// --- broken and hostile surroundings

TEST_F(EndToEnd, AMissingArchiveFailsTruthfullyAndLogsNothing) {
    fs::remove(archive());
    const Result result = run("install --events --unattended");
    EXPECT_EQ(result.exit, 4);
    EXPECT_THAT(result.error, HasSubstr("Scrivel.zip is missing"));
    EXPECT_EQ(result.of("finished")[0]["result"], 0);
    EXPECT_FALSE(fs::exists(log()));
}

TEST_F(EndToEnd, BrokenArchivesFailTruthfully) {
    const std::string whole = contentsOf(archive());
    for (const std::string& broken :
         {std::string(), std::string("no archive at all"), whole.substr(0, whole.size() / 2),
          whole.substr(0, whole.size() - 30)}) {
        std::ofstream(archive(), std::ios::binary) << broken;
        const Result result = run("install --unattended --no-launch");
        EXPECT_EQ(result.exit, 4) << broken.size();
        EXPECT_FALSE(fs::exists(destination));
        EXPECT_TRUE(fs::is_empty(temporary));
    }
}

TEST_F(EndToEnd, ADamagedMemberFailsTruthfullyAndNamesTheFile) {
    std::string bytes = contentsOf(archive());
    for (std::size_t i = bytes.size() / 3; i < bytes.size() / 3 + 40; ++i)
        bytes[i] = static_cast<char>(~bytes[i]);
    std::ofstream(archive(), std::ios::binary) << bytes;
    const Result result = run("install --unattended --no-launch");
    EXPECT_EQ(result.exit, 4);
    EXPECT_EQ(logged()[1].substr(logged()[1].rfind(' ')), " ERROR");
}

TEST_F(EndToEnd, AnArchiveWithoutTheTopFolderFailsTruthfully) {
    const fs::path other = folder / "Other";
    fs::create_directories(other);
    std::ofstream(other / "file") << "x";
    pack(other);
    const Result result = run("install --unattended --no-launch");
    EXPECT_EQ(result.exit, 4);
    EXPECT_THAT(result.error, HasSubstr("\"Scrivel\""));
}

TEST_F(EndToEnd, AFileAtTheDestinationIsNoQuestionButAFailure) {
    std::ofstream(destination) << "a file";
    const Result granted = runWith(R"({"authorize": true})");
    EXPECT_THAT(granted.of("question"), IsEmpty());
    EXPECT_THAT(granted.exit, testing::AnyOf(4, 5)); // not root: the host's facility refuses
    const Result refused = runWith(R"({"authorize": false})");
    EXPECT_EQ(refused.exit, 5);
    EXPECT_THAT(refused.error, HasSubstr("rights were needed and refused"));
    EXPECT_EQ(refused.of("authorize")[0]["granted"], false);
    EXPECT_EQ(contentsOf(destination), "a file");
}

TEST_F(EndToEnd, ATemporaryFolderThatIsMissingFailsWithoutACrash) {
    environment = "TMPDIR=/proc/none "; // where not even root can make a folder
    const Result result = run("install --unattended --no-launch");
    EXPECT_EQ(result.exit, 4);
    EXPECT_THAT(result.error, HasSubstr("Error installing Scrivel:"));
    EXPECT_FALSE(fs::exists(destination));
}

TEST_F(EndToEnd, AKilledDittoFailsTruthfully) {
    replaceTool("ditto", "kill -9 $$");
    const Result result = run("install --unattended --no-launch");
    EXPECT_EQ(result.exit, 4);
    EXPECT_EQ(logged()[1].substr(logged()[1].rfind(' ')), " ERROR");
}

TEST_F(EndToEnd, WhatAToolHidesTheLookAtTheDiskFinds) {
    useSmallProduct();
    const std::string real = (folder / "ditto.real").string();
    fs::copy_file(bundle / "Contents/MacOS/ditto", real);
    replaceTool("ditto", "'" + real + "' \"$@\" && if [ \"$1\" = -rsrcFork ]; then : >\"$3/Read " +
                             std::string("Me.txt\"; fi"));
    const Result result = run("install --unattended --no-launch");
    EXPECT_EQ(result.exit, 4);
    EXPECT_THAT(result.error, HasSubstr("Read Me.txt"));
    EXPECT_THAT(logged()[3], HasSubstr("Result: 0"));
}

TEST_F(EndToEnd, AFullDestinationFailsTruthfully) {
    posix::SpawnedTools tools({});
    const std::string applications = (root / "Applications").string();
    if (geteuid() != 0 ||
        tools.run({"/bin/mount", {"-t", "tmpfs", "-o", "size=1m", "tmpfs", applications}}) != 0)
        GTEST_SKIP() << "only root can mount a small file system";
    const Result result = run("install --unattended --no-launch");
    EXPECT_EQ(result.exit, 4);
    EXPECT_EQ(tools.run({"/bin/umount", {applications}}), 0);
}

TEST_F(EndToEnd, AReaderOfTheEventsThatGoesAwayDoesNotStopTheWork) {
    useSmallProduct();
    (void)run("install --unattended --no-launch | head -n 1");
    EXPECT_TRUE(fs::exists(destination / "Read Me.txt"));
}

TEST_F(EndToEnd, ARootFolderThatIsMissingIsMade) {
    useSmallProduct();
    fs::remove_all(root);
    EXPECT_EQ(run("install --unattended --no-launch").exit, 0);
    EXPECT_TRUE(fs::is_directory(destination));
}

TEST_F(EndToEnd, AMissingDittoFailsTruthfully) {
    fs::remove(bundle / "Contents/MacOS/ditto");
    if (fs::exists("/usr/bin/ditto"))
        return; // the system's own serves
    const Result result = run("install --unattended --no-launch");
    EXPECT_EQ(result.exit, 4);
    EXPECT_EQ(logged()[1], "Exception Raised ");
}

TEST_F(EndToEnd, AMissingLogFolderLosesTheLogAndNothingElse) {
    useSmallProduct();
    fs::remove_all(home / "Library");
    EXPECT_EQ(run("install --unattended --no-launch").exit, 0);
    EXPECT_FALSE(fs::exists(home / "Library"));
}

TEST_F(EndToEnd, WithoutAHomeFolderTheProductIsStillInstalled) {
    useSmallProduct();
    environment = "HOME= ";
    EXPECT_EQ(run("--home '' install --unattended --no-launch").exit, 0);
}

TEST_F(EndToEnd, AMissingInterfaceFileFailsWithItsName) {
    fs::remove(bundle / "Contents/Resources/ScrivelInstaller.ui");
    const Result result = run("install --unattended");
    EXPECT_EQ(result.exit, 4);
    EXPECT_THAT(result.error, HasSubstr("ScrivelInstaller.ui"));
}

TEST_F(EndToEnd, GarbageInPlaceOfAnInfoPlistIsAsGoodAsNone) {
    fs::create_directories(destination / "Scrivel 21.app/Contents");
    std::ofstream(destination / "Scrivel 21.app/Contents/Info.plist") << "<plist><dict><key>";
    const Result result = run("install --events --unattended");
    EXPECT_EQ(result.of("question")[0]["informative"], "This cannot be undone.");
}

TEST_F(EndToEnd, APoliteKillCancelsAndPutsEverythingAway) {
    // The tool waits long enough to be met at work, and ends by itself should nothing kill it.
    replaceTool("ditto", "kill -TERM $PPID; sleep 1");
    const Result result = run("install --events --unattended");
    EXPECT_EQ(result.exit, 1);
    EXPECT_FALSE(fs::exists(destination));
}

TEST_F(EndToEnd, WhatToolsPrintStaysOffTheEvents) {
    useSmallProduct();
    const std::string real = (folder / "ditto.real").string();
    fs::copy_file(bundle / "Contents/MacOS/ditto", real);
    replaceTool("ditto", "echo noise; exec '" + real + "' \"$@\"");
    const Result result = run("install --events --unattended --no-launch"); // parses every line
    EXPECT_EQ(result.exit, 0);
    EXPECT_THAT(result.error, HasSubstr("noise"));
}

TEST_F(EndToEnd, UnattendedRunsSpeakEnglishWhateverTheLocale) {
    useSmallProduct();
    environment = "LANG=de_DE.UTF-8 LC_ALL=de_DE.UTF-8 LANGUAGE=de ";
    const Result result = run("install --events --unattended --no-launch");
    EXPECT_EQ(result.of("status")[0]["text"], "Extracting Scrivel 21\u2026");
}

} // namespace
