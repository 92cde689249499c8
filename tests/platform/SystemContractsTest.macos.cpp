// What the ports promise, asked of the adapters for macOS; SystemContractsTest.linux.cpp asks those
// for Linux. What both systems share is asked in the other files of this folder.
//
// What this asks of the machine: a login with a screen, since applications register with the
// session's registry. Bundles of the tests are registered there from a temporary folder, two of
// them are launched (shell scripts without a window), and all are gone when the tests are over. The
// tests of administrator rights show the system's password prompt, three times, and run /bin/sh as
// administrator; they are skipped unless the environment has SCRIVEL_TEST_AUTHORIZATION=1.
#include <CoreServices/CoreServices.h>
#include <charconv>
#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "platform/macos/AuthorizationServices.h"
#include "platform/macos/CoreFoundationObject.h"
#include "platform/macos/GlobalQueue.h"
#include "platform/macos/WorkspaceApplications.h"
#include "platform/posix/FileTextStreams.h"
#include "tests/support/AdministratorContract.h"
#include "tests/support/ApplicationsContract.h"
#include "tests/support/QueuesContract.h"
#include "tests/support/TemporaryFolder.h"

namespace tests {

// --- Applications

/// Bundles below a folder of its own, which alone count: what else the machine has stays out of it.
class WorkspaceHost {
  public:
    /// The registry passes over letter case in identifiers.
    static constexpr bool kLetterCaseCounts = false;

    ~WorkspaceHost() {
        if (m_running > 0)
            ::kill(m_running, SIGKILL);
    }

    std::string launchable() { return bundle("X", "com.example.Launchable", ""); }
    std::string absent() { return folder.path("absent.app"); }
    std::string document(const std::string& name) { return folder.write("documents/" + name, ""); }
    std::string install() { return bundle("I", "com.example.Installed", ""); }
    std::string installOpener() {
        return bundle("O", "com.example.Opener",
                      "<key>CFBundleDocumentTypes</key><array><dict><key>CFBundleTypeExtensions"
                      "</key><array><string>enl</string></array><key>CFBundleTypeRole</key>"
                      "<string>Viewer</string></dict></array>");
    }

    /// Returns when the program has told its number and the system knows of it.
    void run() {
        const std::string path = bundle("R", "com.example.Run", "");
        folder.writeProgram("R.app/Contents/MacOS/R",
                            "#!/bin/sh\necho $$ >'" + folder.path("number.new") + "'\nmv '" +
                                folder.path("number.new") + "' '" + folder.path("number") +
                                "'\nexec /bin/sleep 60\n");
        ASSERT_TRUE(applications.launch(path));
        ASSERT_TRUE(comesTrue([&] {
            const std::string number = contentsOf(folder.path("number"));
            std::from_chars(number.data(), number.data() + number.size(), m_running);
            return m_running > 0 && applications.isRunning("com.example.Run");
        }));
    }

  private:
    /// Makes the bundle, with a program that ends at once, and registers it. Answers its path.
    std::string bundle(const std::string& name, const std::string& identifier,
                       const std::string& entries) {
        folder.writeProgram(name + ".app/Contents/MacOS/" + name, "#!/bin/sh\n");
        folder.write(name + ".app/Contents/Info.plist",
                     "<plist version=\"1.0\"><dict><key>CFBundlePackageType</key>"
                     "<string>APPL</string><key>LSUIElement</key><true/>"
                     "<key>CFBundleExecutable</key><string>" +
                         name + "</string><key>CFBundleIdentifier</key><string>" + identifier +
                         "</string>" + entries + "</dict></plist>");
        const std::string path = folder.path(name + ".app");
        const macoshost::CoreFoundationObject<CFURLRef> url(CFURLCreateFromFileSystemRepresentation(
            kCFAllocatorDefault, reinterpret_cast<const UInt8*>(path.data()),
            static_cast<CFIndex>(path.size()), true));
        EXPECT_EQ(LSRegisterURL(url.get(), true), 0) << path;
        return path;
    }

    TemporaryFolder folder;
    pid_t m_running = 0;

  public:
    macoshost::WorkspaceApplications applications{{.root = folder.path()}};
};

using ApplicationHosts = testing::Types<WorkspaceHost, PretendedApplications>;
INSTANTIATE_TYPED_TEST_SUITE_P(Applications, ApplicationsContract, ApplicationHosts);

// --- Queues

struct GlobalQueueHost {
    void runUntilIdle() { tests::runUntilIdle(main, background); }
    posix::MainQueue main;
    macoshost::GlobalQueue background;
};
INSTANTIATE_TYPED_TEST_SUITE_P(GlobalQueue, QueuesContract, GlobalQueueHost);

// --- Administrator rights

struct AuthorizationHost {
    static const char* reasonToSkip() {
        const char* allowed =
            std::getenv("SCRIVEL_TEST_AUTHORIZATION"); // NOLINT(concurrency-mt-unsafe)
        return allowed && std::string_view(allowed) == "1"
                   ? nullptr
                   : "shows the password prompt; SCRIVEL_TEST_AUTHORIZATION=1 allows it";
    }
    ports::ToolCall toolThatPrints(const std::string& text, int exits) {
        return {"/bin/sh", {"-c", "printf %s \"$1\"; exit " + std::to_string(exits), "sh", text}};
    }
    ports::ToolCall missingTool() { return {folder.path("no tool"), {}}; }

    TemporaryFolder folder;
    posix::FileTextStreams streams;
    macoshost::AuthorizationServices administrator{{}};
};
INSTANTIATE_TYPED_TEST_SUITE_P(Authorization, AdministratorContract, AuthorizationHost);

} // namespace tests
