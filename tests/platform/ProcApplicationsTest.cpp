#include "platform/linux/ProcApplications.h"

#include <cerrno>
#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "platform/linux/OwnExecutable.h"
#include "platform/linux/PreferredLanguages.h"
#include "platform/posix/ChildProcess.h"
#include "platform/posix/PlistBundles.h"
#include "tests/support/ComesTrue.h"
#include "tests/support/RunningProgram.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using linuxhost::ProcApplications;
using tests::comesTrue;
using Running = tests::RunningProgram;

/// A dictionary that declares the extensions, each in a document type of its own.
std::string documentTypes(const std::vector<std::string>& extensions) {
    std::string text = "<plist version=\"1.0\"><dict><key>CFBundleDocumentTypes</key><array>";
    for (const std::string& extension : extensions)
        text += "<dict><key>CFBundleTypeExtensions</key><array><string>" + extension +
                "</string></array></dict>";
    return text + "</array></dict></plist>";
}

class ApplicationsTest : public testing::Test {
  protected:
    /// Makes the bundle with these entries of its dictionary; answers its path.
    std::string bundle(const std::string& name, const std::map<std::string, std::string>& entries) {
        std::string text = "<plist version=\"1.0\"><dict>";
        for (const auto& [key, value] : entries)
            text += "<key>" + key + "</key><string>" + value + "</string>";
        folder.write(name + "/Contents/Info.plist", text + "</dict></plist>");
        return folder.path(name);
    }
    /// The same with a sleeping program as its executable; answers that program's path.
    std::string sleeper(const std::string& name, const std::string& identifier) {
        bundle(name, {{"CFBundleIdentifier", identifier}});
        const std::string program = folder.path(name + "/Contents/MacOS/Main");
        fs::create_directories(fs::path(program).parent_path());
        fs::copy_file("/bin/sleep", program);
        return program;
    }

    tests::TemporaryFolder folder;
    posix::PlistBundles bundles{"/bin/true"};
    ProcApplications applications{
        {.bundles = bundles, .root = folder.path(), .home = folder.path("home")}};
};

TEST_F(ApplicationsTest, AnApplicationRunsAsLongAsAProcessOfItsBundleDoes) {
    const std::string program = sleeper("X.app", "com.example.X");
    EXPECT_FALSE(applications.isRunning("com.example.X"));
    {
        const Running running(program);
        EXPECT_TRUE(applications.isRunning("com.example.X"));
        EXPECT_FALSE(applications.isRunning("com.example.x"));
        EXPECT_FALSE(applications.isRunning("com.example"));
        EXPECT_FALSE(applications.isRunning(""));
    }
    EXPECT_FALSE(applications.isRunning("com.example.X"));
}

TEST_F(ApplicationsTest, AnExecutableThatWasDeletedStillRuns) {
    const std::string program = sleeper("X.app", "com.example.X");
    const Running running(program);
    fs::remove(program);
    EXPECT_TRUE(applications.isRunning("com.example.X"));
}

TEST_F(ApplicationsTest, ABundleThatWasRenamedStillRuns) {
    const Running running(sleeper("X.app", "com.example.X"));
    fs::rename(folder.path("X.app"), folder.path("Y.app"));
    EXPECT_TRUE(applications.isRunning("com.example.X"));
}

TEST_F(ApplicationsTest, AChangedDictionaryIsReadAgain) {
    const Running running(sleeper("X.app", "com.example.X"));
    EXPECT_TRUE(applications.isRunning("com.example.X"));
    const std::string dictionary = folder.path("X.app/Contents/Info.plist");
    const auto written = fs::last_write_time(dictionary);
    bundle("X.app", {{"CFBundleIdentifier", "com.example.Z"}});
    fs::last_write_time(dictionary, written + std::chrono::seconds(1));
    EXPECT_TRUE(applications.isRunning("com.example.Z"));
    EXPECT_FALSE(applications.isRunning("com.example.X"));
}

TEST_F(ApplicationsTest, ABundleOutsideTheRootDoesNotCount) {
    const Running running(sleeper("other/X.app", "com.example.X"));
    fs::create_directories(folder.path("root"));
    fs::create_directory_symlink(folder.path("other"), folder.path("link"));
    ProcApplications elsewhere({.bundles = bundles, .root = folder.path("root"), .home = ""});
    EXPECT_FALSE(elsewhere.isRunning("com.example.X"));
    ProcApplications overALink({.bundles = bundles, .root = folder.path("link"), .home = ""});
    EXPECT_TRUE(overALink.isRunning("com.example.X"));
    ProcApplications everywhere({.bundles = bundles, .home = ""});
    EXPECT_TRUE(everywhere.isRunning("com.example.X"));
}

TEST_F(ApplicationsTest, AProgramElsewhereInTheBundleIsNotTheApplication) {
    sleeper("X.app", "com.example.X");
    fs::create_directories(folder.path("X.app/Contents/Resources"));
    fs::copy_file("/bin/sleep", folder.path("X.app/Contents/Resources/helper"));
    const Running running(folder.path("X.app/Contents/Resources/helper"));
    EXPECT_FALSE(applications.isRunning("com.example.X"));
}

TEST_F(ApplicationsTest, AScriptIsFoundBehindItsInterpreter) {
    for (const std::string first : {"#!/bin/sh", "#!/bin/sh -e", "#!/usr/bin/env sh"}) {
        bundle("S.app", {{"CFBundleIdentifier", "com.example.S"}});
        const std::string script =
            folder.writeProgram("S.app/Contents/MacOS/S", first + "\nread line < \"$1\"\n");
        ASSERT_EQ(::mkfifo(folder.path("wait").c_str(), 0600), 0);
        const Running running(script, {folder.path("wait")});
        EXPECT_TRUE(comesTrue([&] { return applications.isRunning("com.example.S"); })) << first;
        fs::remove(folder.path("wait"));
    }
}

TEST_F(ApplicationsTest, AScriptThatWasCalledByARelativeNameIsFound) {
    bundle("S.app", {{"CFBundleIdentifier", "com.example.S"}});
    folder.writeProgram("S.app/Contents/MacOS/S", "#!/bin/sh\nread line < wait\n");
    ASSERT_EQ(::mkfifo(folder.path("wait").c_str(), 0600), 0);
    const Running running("/bin/sh",
                          {"-c", "cd \"$0\" && exec ./S.app/Contents/MacOS/S", folder.path()});
    EXPECT_TRUE(comesTrue([&] { return applications.isRunning("com.example.S"); }));
}

TEST_F(ApplicationsTest, AProgramThatOnlyReadsTheExecutableIsNotTheApplication) {
    bundle("S.app", {{"CFBundleIdentifier", "com.example.S"}});
    const std::string script = folder.writeProgram("S.app/Contents/MacOS/S", "#!/bin/sh\n");
    const Running running("/usr/bin/tail", {"-fc0", script});
    const std::string process = "/proc/" + std::to_string(running.pid());
    ASSERT_EQ(linuxhost::readProcessLink(process + "/exe"), fs::canonical("/usr/bin/tail"));
    EXPECT_FALSE(applications.isRunning("com.example.S"));
}

TEST_F(ApplicationsTest, AnApplicationOfAnotherUserIsSeenByItsAbsolutePath) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can become somebody else";
    const Running running(sleeper("X.app", "com.example.X"));
    fs::permissions(folder.path(), fs::perms(0755));
    const pid_t other = ::fork();
    ASSERT_GE(other, 0);
    if (other == 0) {
        constexpr uid_t kNobody = 65534;
        const bool isOther =
            ::setgid(kNobody) == 0 && ::setuid(kNobody) == 0 &&
            linuxhost::readProcessLink("/proc/" + std::to_string(running.pid()) + "/exe") == "";
        ::_exit(isOther && applications.isRunning("com.example.X") ? 0 : 1);
    }
    int status = -1;
    ::waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
}

TEST_F(ApplicationsTest, ThisProcessItselfDoesNotCount) {
    // The tests' own program lies in no bundle; one that does must not find itself.
    bundle("Own.app", {{"CFBundleIdentifier", "com.example.Own"}});
    fs::create_directories(folder.path("Own.app/Contents/MacOS"));
    fs::copy_file(SCRIVEL_TEST_APPLICATION, folder.path("Own.app/Contents/MacOS/Own"));
    posix::ChildProcess own;
    ASSERT_EQ(own.start({.program = folder.path("Own.app/Contents/MacOS/Own"),
                         .arguments = {folder.path(), "com.example.Own"}}),
              0);
    EXPECT_EQ(own.wait(), 0);
}

class LaunchTest : public ApplicationsTest {
  protected:
    /// A bundle whose script writes down what it was given, and then is gone.
    std::string application(const std::string& name,
                            const std::map<std::string, std::string>& entries,
                            const std::string& executable) {
        folder.writeProgram(name + "/Contents/MacOS/" + executable,
                            "#!/bin/sh\n{ echo \"$HOME\"; pwd; ps -o sid= -p $$; echo $$; readlink "
                            "/proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2; } > \"" +
                                folder.path("made") + "\"\nmv \"" + folder.path("made") + "\" \"" +
                                folder.path("facts") + "\"\n");
        return bundle(name, entries);
    }
    bool hasRun() {
        return comesTrue([&] { return fs::exists(folder.path("facts")); });
    }
    static bool hasNoChild() {
        return comesTrue([] { return ::waitpid(-1, nullptr, WNOHANG) == -1 && errno == ECHILD; });
    }
};

TEST_F(LaunchTest, AnApplicationIsStartedInASessionOfItsOwnWithTheUsersHome) {
    ASSERT_TRUE(applications.launch(application("X.app", {}, "X")));
    ASSERT_TRUE(hasRun());
    std::istringstream facts(folder.read("facts"));
    std::string home;
    std::string workingFolder;
    int session = 0;
    int process = -1;
    std::string input;
    facts >> home >> workingFolder >> session >> process >> input;
    EXPECT_EQ(home, folder.path("home"));
    EXPECT_EQ(workingFolder, "/");
    EXPECT_EQ(session, process);
    EXPECT_EQ(input, "/dev/null");
    EXPECT_TRUE(hasNoChild());
}

TEST_F(LaunchTest, OutputsThatAreNoTerminalAreKeptFromTheApplication) {
    int pipe[2];
    ASSERT_EQ(::pipe2(pipe, O_CLOEXEC), 0);
    const int before = ::dup(STDOUT_FILENO);
    ::dup2(pipe[1], STDOUT_FILENO);
    const bool launched = applications.launch(application("X.app", {}, "X"));
    ::dup2(before, STDOUT_FILENO);
    for (const int descriptor : {before, pipe[0], pipe[1]})
        ::close(descriptor);
    ASSERT_TRUE(launched);
    ASSERT_TRUE(hasRun());
    const std::string facts = folder.read("facts");
    EXPECT_EQ(facts.find("pipe:"), std::string::npos) << facts;
    EXPECT_TRUE(hasNoChild());
}

TEST_F(LaunchTest, TheDictionaryNamesTheExecutable) {
    EXPECT_TRUE(
        applications.launch(application("X.app", {{"CFBundleExecutable", "other"}}, "other")));
    EXPECT_TRUE(hasRun());
    EXPECT_TRUE(hasNoChild());
}

TEST_F(LaunchTest, AnExecutableOutsideTheBundleIsRefused) {
    const std::string outside = folder.writeProgram("outside", "#!/bin/sh\n");
    folder.writeProgram("X.app/Contents/Resources/x", "#!/bin/sh\n");
    fs::create_directories(folder.path("X.app/Contents/MacOS"));
    fs::create_symlink(outside, folder.path("X.app/Contents/MacOS/link"));
    for (const std::string& name :
         {std::string("../../../outside"), outside, std::string("../Resources/x"),
          std::string("link"), std::string("."), std::string(".."), std::string()}) {
        EXPECT_FALSE(applications.launch(bundle("X.app", {{"CFBundleExecutable", name}}))) << name;
    }
    EXPECT_TRUE(hasNoChild());
}

TEST_F(LaunchTest, WhatCannotBeStartedIsToldAndNothingElseHappens) {
    EXPECT_FALSE(applications.launch(folder.path("absent.app")));
    EXPECT_FALSE(applications.launch(""));
    folder.write("X.app/Contents/MacOS/X", "#!/bin/sh\n");
    EXPECT_FALSE(applications.launch(bundle("X.app", {})));
    folder.writeProgram("Y.app/Contents/MacOS/Y", "#!/no/such/interpreter\n");
    EXPECT_FALSE(applications.launch(bundle("Y.app", {})));
    EXPECT_TRUE(hasNoChild());
}

class InstalledTest : public ApplicationsTest {
  protected:
    std::string word(const std::string& name) {
        return bundle(name, {{"CFBundleIdentifier", "com.example.Word"}});
    }
    std::string opener(const std::string& name, const std::vector<std::string>& extensions) {
        folder.write(name + "/Contents/Info.plist", documentTypes(extensions));
        return folder.path(name);
    }
    std::vector<std::string> found() { return applications.pathsFor("com.example.Word"); }
    using Paths = std::vector<std::string>;
};

TEST_F(InstalledTest, TheMachinesApplicationsComeSortedAndThoseOfTheUserAfterThem) {
    const std::string users = word("home/Applications/A.app");
    const std::string b = word("Applications/Office/B.app");
    const std::string a = word("Applications/Office/A.app");
    const std::string c = word("Applications/C.app");
    bundle("Applications/D.app", {{"CFBundleIdentifier", "com.example.word"}});
    bundle("Applications/E.app", {});
    word("elsewhere/F.app");
    EXPECT_EQ(found(), Paths({c, a, b, users}));
}

TEST_F(InstalledTest, TheExtensionOfABundleMayBeWrittenInCapitals) {
    const std::string capitals = word("Applications/WORD.APP");
    word("Applications/Word.apps");
    EXPECT_EQ(found(), Paths({capitals}));
}

TEST_F(InstalledTest, WhatOpensADocumentIsToldByTheExtensionsThatBundlesDeclare) {
    const std::string capitals = opener("Applications/A.app", {"xml", "ENL"});
    const std::string users = opener("home/Applications/B.app", {"enl"});
    opener("Applications/C.app", {"enlx", "en", ".enl", "*"});
    bundle("Applications/D.app", {{"CFBundleTypeExtensions", "enl"}});
    folder.write("Applications/E.app", "a file");
    opener("elsewhere/F.app", {"enl"});
    fs::create_directory_symlink("A.app", folder.path("Applications/G.app"));
    EXPECT_EQ(applications.pathsForDocument("/no/such/folder/x.Enl"), Paths({capitals, users}));
    EXPECT_EQ(applications.pathsForDocument("/tmp/x.xml"), Paths({capitals}));
}

TEST_F(InstalledTest, ADocumentWithoutAnExtensionIsOpenedByNothing) {
    opener("Applications/A.app", {"enl", ""});
    for (const char* document : {"/tmp/x", "/tmp.enl/x", "/tmp/.enl", "", "x."})
        EXPECT_EQ(applications.pathsForDocument(document), std::nullopt) << document;
}

TEST_F(InstalledTest, WhatOpensADocumentIsLookedUpAnewEachTime) {
    EXPECT_EQ(applications.pathsForDocument("x.enl"), std::nullopt);
    const std::string path = opener("Applications/A.app", {"enl"});
    EXPECT_EQ(applications.pathsForDocument("x.enl"), Paths({path}));
    fs::remove_all(path);
    EXPECT_EQ(applications.pathsForDocument("x.enl"), std::nullopt);
}

TEST_F(InstalledTest, BundlesAreNotLookedInto) {
    const std::string outer = word("Applications/A.app");
    word("Applications/A.app/Contents/B.app");
    word("Applications/C.bundle/D.app");
    word("Applications/E.app/F.app");
    EXPECT_EQ(found(), Paths({outer}));
}

TEST_F(InstalledTest, ALinkToAnApplicationCountsAndALinkToAFolderIsNotFollowed) {
    const std::string elsewhere = word("elsewhere/A.app");
    fs::create_directories(folder.path("Applications"));
    fs::create_directory_symlink(folder.path("elsewhere"), folder.path("Applications/Link"));
    fs::create_directory_symlink(folder.path("Applications"), folder.path("Applications/Circle"));
    fs::create_symlink(folder.path("absent"), folder.path("Applications/B.app"));
    folder.write("Applications/C.app", "a file");
    EXPECT_EQ(found(), Paths());
    fs::create_directory_symlink(elsewhere, folder.path("Applications/D.app"));
    EXPECT_EQ(found(), Paths({folder.path("Applications/D.app")}));
}

TEST_F(InstalledTest, WithoutFoldersForApplicationsNothingIsFound) {
    EXPECT_EQ(found(), Paths());
}

TEST_F(InstalledTest, TheRootStaysSpelledAsItWasGiven) {
    word("Applications/A.app");
    fs::create_directory_symlink(folder.path(), folder.path("link"));
    ProcApplications overALink({.bundles = bundles, .root = folder.path("link"), .home = ""});
    EXPECT_EQ(overALink.pathsFor("com.example.Word"),
              Paths({folder.path("link/Applications/A.app")}));
}

TEST_F(InstalledTest, AFolderThatIsBothTheMachinesAndTheUsersIsSearchedOnce) {
    const std::string only = word("Applications/A.app");
    ProcApplications both({.bundles = bundles, .root = folder.path(), .home = folder.path()});
    EXPECT_EQ(both.pathsFor("com.example.Word"), Paths({only}));
}

/// The part of the contract that holds without a process: on the real adapter and on the fake.
TEST(OwnExecutable, ItIsThisProgram) {
    EXPECT_EQ(linuxhost::ownExecutable(), fs::canonical("/proc/self/exe").string());
}

TEST(PreferredLanguages, TheEnvironmentsRulesHold) {
    using Environment = std::map<std::string, std::string>;
    const auto languages = [](const Environment& environment) {
        return linuxhost::preferredLanguages([&](const char* name) {
            const auto entry = environment.find(name);
            return entry == environment.end() ? std::string() : entry->second;
        });
    };
    using Names = std::vector<std::string>;
    EXPECT_EQ(languages({}), Names());
    EXPECT_EQ(languages({{"LANG", "de_AT.UTF-8"}}), Names({"de_AT.UTF-8"}));
    EXPECT_EQ(languages({{"LANG", "de"}, {"LC_MESSAGES", "fr"}}), Names({"fr"}));
    EXPECT_EQ(languages({{"LC_ALL", "it"}, {"LC_MESSAGES", "fr"}}), Names({"it"}));
    EXPECT_EQ(languages({{"LANG", "de"}, {"LANGUAGE", "fr::it"}}), Names({"fr", "it", "de"}));
    EXPECT_EQ(languages({{"LANG", "C.UTF-8"}, {"LANGUAGE", "fr"}}), Names());
    EXPECT_EQ(languages({{"LC_ALL", "POSIX"}, {"LANG", "de"}}), Names());
}

} // namespace
