// What the ports promise, asked of the adapters for Linux; SystemContractsTest.macos.cpp asks those
// for macOS. What both systems share is asked in the other files of this folder.
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "platform/linux/ProcApplications.h"
#include "platform/posix/PlistBundles.h"
#include "tests/support/ApplicationsContract.h"
#include "tests/support/RunningProgram.h"
#include "tests/support/TemporaryFolder.h"

namespace tests {

namespace fs = std::filesystem;

struct ProcHost {
    static constexpr bool kLetterCaseCounts = true;

    std::string launchable() {
        return fs::path(folder.writeProgram("X.app/Contents/MacOS/X", "#!/bin/sh\n"))
            .parent_path()
            .parent_path()
            .parent_path()
            .string();
    }
    std::string absent() { return folder.path("absent.app"); }
    std::string document(const std::string& name) { return "/tmp/" + name; }
    std::string install() {
        folder.write("Applications/I.app/Contents/Info.plist",
                     "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key>"
                     "<string>com.example.Installed</string></dict></plist>");
        return folder.path("Applications/I.app");
    }
    std::string installOpener() {
        folder.write("Applications/O.app/Contents/Info.plist",
                     "<plist version=\"1.0\"><dict><key>CFBundleDocumentTypes</key><array><dict>"
                     "<key>CFBundleTypeExtensions</key><array><string>enl</string></array>"
                     "</dict></array></dict></plist>");
        return folder.path("Applications/O.app");
    }
    void run() {
        folder.write("R.app/Contents/Info.plist",
                     "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key>"
                     "<string>com.example.Run</string></dict></plist>");
        fs::create_directories(folder.path("R.app/Contents/MacOS"));
        fs::copy_file("/bin/sleep", folder.path("R.app/Contents/MacOS/R"));
        running.emplace(folder.path("R.app/Contents/MacOS/R"));
    }
    tests::TemporaryFolder folder;
    std::optional<tests::RunningProgram> running;
    posix::PlistBundles bundles{"/bin/true"};
    linuxhost::ProcApplications applications{
        {.bundles = bundles, .root = folder.path(), .home = "/"}};
};

using ApplicationHosts = testing::Types<ProcHost, PretendedApplications>;
INSTANTIATE_TYPED_TEST_SUITE_P(Applications, ApplicationsContract, ApplicationHosts);

} // namespace tests
