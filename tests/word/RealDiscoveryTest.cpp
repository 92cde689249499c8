// Discovery with the real adapters: bundles and single files on disk.
#include <filesystem>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/formats/AppleDouble.h"
#include "platform/formats/ResourceFork.h"
#include "platform/formats/VersionResource.h"
#include "platform/linux/ProcApplications.h"
#include "platform/posix/FilePropertyLists.h"
#include "platform/posix/FinderFileStore.h"
#include "platform/posix/PlistBundles.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/TemporaryFolder.h"
#include "word/AppDiscovery.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

struct RealDiscovery : testing::Test {
    tests::TemporaryFolder folder;
    fakes::FakeHost host;
    posix::PlistBundles bundles{"/bin/true"};
    linuxhost::ProcApplications applications{
        {.bundles = bundles, .root = folder.path(), .home = folder.path("home")}};
    posix::FinderFileStore finderFiles{{.calls = posix::finderFileCalls()}};
    posix::FilePropertyLists lists;
    controls::TextField text;
    ec::WizardSession session{
        host.bundles, {.root = folder.path(), .home = folder.path("home"), .temporary = ""}};
    ec::InstallLog log{{.places = host.places,
                        .clock = host.clock,
                        .streams = host.streams,
                        .texts = host.texts,
                        .processingText = text,
                        .written = {}}};
    ec::Breadcrumbs crumbs{{.log = log, .session = session, .lists = lists}};
    ec::AppDiscovery discovery{{.log = log,
                                .session = session,
                                .breadcrumbs = crumbs,
                                .applications = applications,
                                .bundles = bundles,
                                .finderFiles = finderFiles}};

    std::string word(const std::string& name, const std::string& version) {
        folder.write(name + "/Contents/Info.plist",
                     "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>"
                     "com.microsoft.Word</string><key>CFBundleShortVersionString</key><string>" +
                         version + "</string></dict></plist>");
        return folder.path(name);
    }
    std::string oldWord(const std::string& name, std::uint8_t lastByte) {
        formats::VersionResource version;
        version.major = 0x16;
        version.nonRelease = lastByte;
        formats::AppleDouble apple;
        apple.resourceFork = formats::writeResourceFork(
            {{formats::fourCharacters("vers"), 1, "", formats::writeVersionResource(version)}});
        const formats::Bytes beside = formats::writeAppleDouble(apple);
        const fs::path path(name);
        folder.write((path.parent_path() / ("._" + path.filename().string())).string(),
                     {reinterpret_cast<const char*>(beside.data()), beside.size()});
        return folder.write(name, "");
    }
};

TEST_F(RealDiscovery, EveryCopyOfWordIsFoundInItsOrder) {
    const std::string users = word("home/Applications/Word.app", "15.9");
    const std::string current = word("Applications/Microsoft Word.app", "16.89.1");
    word("Applications/Ancient.app", "9");
    const std::string old = oldWord("Applications/Office X/Microsoft Word", 0x10);
    oldWord("Applications/Office 98/Microsoft Word", 0x08);
    fs::create_directories(folder.path("home/Library/Preferences"));
    crumbs.addWordCrumb("/elsewhere/Word.app|||/S|||16");
    EXPECT_THAT(discovery.wordPaths(), ElementsAre("/elsewhere/Word.app", current, users, old));
    EXPECT_EQ(discovery.getMajorVersion(old), 10);
    EXPECT_EQ(discovery.getMajorVersion(current), 16);
}

} // namespace
