// Discovery with the real adapters: bundles and single files on disk.
#include <filesystem>
#include <sys/stat.h>
#include <sys/xattr.h>

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
using testing::IsEmpty;

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
    static std::string_view asText(const formats::Bytes& bytes) {
        return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
    }
    static formats::Bytes forkWith(const formats::Bytes& version) {
        return formats::writeResourceFork({{formats::fourCharacters("vers"), 1, "", version}});
    }
    static formats::Bytes versionEndingWith(std::uint8_t lastByte) {
        formats::VersionResource version;
        version.major = 0x16;
        version.minorAndBug = 0x81;
        version.stage = 0x25;
        version.nonRelease = lastByte;
        return formats::writeVersionResource(version);
    }
    /// Makes a file with this fork beside it; answers its path.
    std::string withFork(const std::string& name, const formats::Bytes& fork) {
        formats::AppleDouble apple;
        apple.resourceFork = fork;
        return withFileBeside(name, asText(formats::writeAppleDouble(apple)));
    }
    std::string withFileBeside(const std::string& name, std::string_view beside) {
        const fs::path path(name);
        folder.write((path.parent_path() / ("._" + path.filename().string())).string(), beside);
        return folder.write(name, "");
    }
    std::string oldWord(const std::string& name, std::uint8_t lastByte) {
        return withFork(name, forkWith(versionEndingWith(lastByte)));
    }
    /// Whether the file system takes it.
    static bool setForkAttribute(const std::string& path, const formats::Bytes& fork) {
        return ::setxattr(path.c_str(), "user.com.apple.ResourceFork", fork.data(), fork.size(),
                          0) == 0;
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

// --- Versions of single files

TEST_F(RealDiscovery, AVersionIsReadFromTheFileBeside) {
    const std::string file = oldWord("Applications/Microsoft Word", 0x11);
    EXPECT_EQ(discovery.getMajorVersion(file), 11);
    std::uint32_t major = 1001;
    std::uint32_t minor = 1002;
    std::uint32_t patch = 1003;
    std::uint32_t build = 1004;
    EXPECT_EQ(discovery.getFileVersion(file, major, minor, patch, build), 0);
    EXPECT_EQ(major, 11u);
    EXPECT_EQ(minor, 25u);
    EXPECT_EQ(patch, 1003u);
    EXPECT_EQ(build, 16u);
}

TEST_F(RealDiscovery, AVersionIsReadFromTheExtendedAttribute) {
    const std::string file = folder.write("Applications/Office/Microsoft Word", "");
    if (!setForkAttribute(file, forkWith(versionEndingWith(0x10))))
        GTEST_SKIP() << "no extended attributes in the folder for temporary files";
    EXPECT_EQ(discovery.getMajorVersion(file), 10);
    EXPECT_THAT(discovery.findApplication("Microsoft Word", 10, 11), ElementsAre(file));
    ASSERT_TRUE(setForkAttribute(file, {}));
    EXPECT_EQ(discovery.getMajorVersion(file), 255);
}

TEST_F(RealDiscovery, AVersionOfLessThanFourBytesIsUnknown) {
    for (std::size_t length = 0; length < 4; ++length)
        EXPECT_EQ(discovery.getMajorVersion(
                      withFork("W", forkWith(formats::Bytes(length, std::byte{0x11})))),
                  255)
            << length;
    EXPECT_EQ(
        discovery.getMajorVersion(withFork("W", forkWith(formats::Bytes(4, std::byte{0x11})))), 11);
}

TEST_F(RealDiscovery, AForkOfNoBytesIsUnknown) {
    EXPECT_EQ(discovery.getMajorVersion(withFork("W", {})), 255);
    EXPECT_EQ(discovery.getMajorVersion(withFileBeside("X", "")), 255);
}

TEST_F(RealDiscovery, AForkThatIsCutOffOrPointsOutsideItselfIsUnknown) {
    const formats::Bytes whole = forkWith(versionEndingWith(0x11));
    ASSERT_EQ(discovery.getMajorVersion(withFork("W", whole)), 11);
    // The map is last, so that whatever is missing is missing there.
    for (std::size_t length = 0; length < whole.size(); ++length)
        ASSERT_EQ(discovery.getMajorVersion(withFork(
                      "W", {whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length)})),
                  255)
            << length;
    // Offset of the data, offset of the map, and the length of each.
    for (std::size_t field = 0; field < 16; field += 4) {
        formats::Bytes fork = whole;
        fork[field] = std::byte{0x7F};
        EXPECT_EQ(discovery.getMajorVersion(withFork("W", fork)), 255) << field;
    }
}

TEST_F(RealDiscovery, AFileBesideThatIsNoneOrAPipeIsUnknownAndNothingWaits) {
    EXPECT_EQ(discovery.getMajorVersion(withFileBeside("W", "no such format")), 255);
    folder.write("X", "");
    ASSERT_EQ(::mkfifo(folder.path("._X").c_str(), 0600), 0);
    EXPECT_EQ(discovery.getMajorVersion(folder.path("X")), 255);
    folder.write("Y", "");
    fs::create_directory(folder.path("._Y"));
    EXPECT_EQ(discovery.getMajorVersion(folder.path("Y")), 255);
}

TEST_F(RealDiscovery, APipeOfWordsNameIsPassedOver) {
    fs::create_directories(folder.path("Applications"));
    ASSERT_EQ(::mkfifo(folder.path("Applications/Microsoft Word").c_str(), 0600), 0);
    EXPECT_THAT(discovery.findApplication("Microsoft Word", 10, 11), IsEmpty());
}

// --- Words in both lists

TEST_F(RealDiscovery, ACopyThatIsRememberedInOtherLettersAndKnownByALinkOccursOnce) {
    const std::string word = this->word("Applications/Office/Word.app", "16.89.1");
    fs::create_directory_symlink(word, folder.path("Applications/Word.app"));
    fs::create_directories(folder.path("home/Library/Preferences"));
    const std::string spelled = folder.path() + "/applications/OFFICE/word.app";
    crumbs.addWordCrumb(spelled + "|||/S|||16");
    EXPECT_THAT(discovery.wordPaths(), ElementsAre(spelled));
}

TEST_F(RealDiscovery, BarsInTheNameOfAFolderCutThePathAsIfItWereARecord) {
    word("Applications/a|||b|||16/Word.app", "16.89.1");
    EXPECT_THAT(discovery.wordPaths(), ElementsAre(folder.path("Applications/a")));
}

TEST_F(RealDiscovery, LineEndsBelongToAName) {
    const std::string current = word("Applications/Office\n2019/Word\n.app", "16.89.1");
    const std::string old = oldWord("Applications/\n/Microsoft Word", 0x11);
    EXPECT_THAT(discovery.wordPaths(), ElementsAre(current, old));
}

TEST_F(RealDiscovery, ACopyThatIsInstalledWhileNoneIsKnownIsFoundAtTheNextLook) {
    EXPECT_FALSE(discovery.checkWordExists());
    const std::string current = word("Applications/Microsoft Word.app", "16.89.1");
    EXPECT_TRUE(discovery.checkWordExists());
    EXPECT_THAT(discovery.wordPaths(), ElementsAre(current));
}

} // namespace
