// The registry of application bundles: what it knows, and that it never answers what was.
#include "platform/linux/InstalledBundles.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/stat.h>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/linux/ProcApplications.h"
#include "platform/posix/PlistBundles.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/Settled.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;
using Paths = std::vector<std::string>;

constexpr std::string_view kWord = "com.example.Word";

/// Real dictionaries, and a count of how often one was read.
class CountingBundles final : public ports::Bundles {
  public:
    std::string mainBundle() const override { return m_real.mainBundle(); }
    std::string mainResourceFolder() const override { return m_real.mainResourceFolder(); }
    std::string mainExecutable() const override { return m_real.mainExecutable(); }
    std::optional<std::string> infoString(const std::string& path, std::string_view key) override {
        ++reads;
        return m_real.infoString(path, key);
    }
    std::vector<std::string> infoStrings(const std::string& path, std::string_view dictionaryKey,
                                         std::string_view arrayKey) override {
        return m_real.infoStrings(path, dictionaryKey, arrayKey);
    }
    std::vector<std::string> infoStringsOfEach(const std::string& path, std::string_view listKey,
                                               std::string_view arrayKey) override {
        return m_real.infoStringsOfEach(path, listKey, arrayKey);
    }
    int reads = 0;

  private:
    posix::PlistBundles m_real{"/bin/true"};
};

std::string xml(std::string_view identifier) {
    return "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>" +
           std::string(identifier) + "</string></dict></plist>";
}

/// One key and one value; the lengths stand in one byte each.
std::string binary(std::string_view identifier) {
    const auto text = [](std::string_view bytes) {
        return std::string("\x5F\x10") + static_cast<char>(bytes.size()) + std::string(bytes);
    };
    const std::string key = text("CFBundleIdentifier");
    const std::string value = text(identifier);
    std::string bytes = "bplist00\xD1\x01\x02" + key + value;
    const auto trailer = [&](std::size_t number) {
        bytes += std::string(7, '\0') + static_cast<char>(number);
    };
    const std::size_t table = bytes.size();
    for (const std::size_t offset : {std::size_t{8}, std::size_t{11}, 11 + key.size()})
        bytes += static_cast<char>(offset);
    bytes += std::string(6, '\0') + "\x01\x01";
    trailer(3);
    trailer(0);
    trailer(table);
    return bytes;
}

class Registry : public testing::Test {
  protected:
    std::string at(const std::string& name) const { return folder.path("Applications/" + name); }
    std::string bundle(const std::string& name, std::string_view identifier = kWord) {
        folder.write("Applications/" + name + "/Contents/Info.plist", xml(identifier));
        return at(name);
    }
    std::string information(const std::string& name) const {
        return at(name + "/Contents/Info.plist");
    }
    Paths found(std::string_view identifier = kWord) { return applications.pathsFor(identifier); }

    tests::TemporaryFolder folder;
    CountingBundles bundles;
    linuxhost::ProcApplications applications{
        {.bundles = bundles, .root = folder.path(), .home = folder.path("home")}};
};

// --- What it knows

TEST_F(Registry, XmlAndBinaryDictionariesAreRead) {
    const std::string a = bundle("A.app");
    folder.write("Applications/B.app/Contents/Info.plist", binary(kWord));
    EXPECT_THAT(found(), ElementsAre(a, at("B.app")));
}

TEST_F(Registry, LocalisedFoldersAreEnteredLikeOthers) {
    const std::string word = bundle("Office.localized/Word.app");
    EXPECT_THAT(found(), ElementsAre(word));
}

TEST_F(Registry, NamesMayHoldLineEndsAndBars) {
    const std::string lines = bundle("Office\n2004/\nWord.app");
    const std::string bars = bundle("a|||b|||16/Word.app");
    const std::string bytes = bundle("\xFF.app");
    EXPECT_THAT(found(), ElementsAre(lines, bars, bytes));
}

TEST_F(Registry, BrokenHugeAndAbsentDictionariesAreNone) {
    bundle("Broken.app");
    folder.write("Applications/Broken.app/Contents/Info.plist", xml(kWord).substr(0, 60));
    folder.write("Applications/Empty.app/Contents/Info.plist", "");
    fs::create_directories(at("Absent.app/Contents"));
    fs::create_directories(at("Bare.app"));
    bundle("Huge.app");
    fs::resize_file(information("Huge.app"), std::uintmax_t{64} << 20);
    bundle("Other.app", "com.example.other");
    EXPECT_THAT(found(), IsEmpty());
    EXPECT_THAT(found(""), IsEmpty());
}

TEST_F(Registry, ADictionaryThatIsNoFileIsNone) {
    fs::create_directories(information("Folder.app"));
    fs::create_directories(at("Pipe.app/Contents"));
    ASSERT_EQ(::mkfifo(information("Pipe.app").c_str(), 0600), 0);
    fs::create_directories(at("Device.app/Contents"));
    fs::create_symlink("/dev/zero", information("Device.app"));
    fs::create_directories(at("Circle.app/Contents"));
    fs::create_symlink("Info.plist", information("Circle.app"));
    folder.write("Applications/File.app/Contents", "a file");
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(Registry, WhatIsOnlyCalledLikeABundleIsNone) {
    folder.write("Applications/File.app", xml(kWord));
    ASSERT_EQ(::mkfifo(at("Pipe.app").c_str(), 0600), 0);
    fs::create_symlink("absent", at("Nowhere.app"));
    fs::create_symlink("Circle.app", at("Circle.app"));
    EXPECT_THAT(found(), IsEmpty());
    const std::string word = bundle("Word.app");
    EXPECT_THAT(found(), ElementsAre(word));
}

TEST_F(Registry, UnreadableFoldersArePassedOver) {
    bundle("Closed/Word.app");
    const std::string open = bundle("Open/Word.app");
    bundle("Secret.app");
    fs::permissions(at("Closed"), fs::perms::none);
    fs::permissions(information("Secret.app"), fs::perms::none);
    const tests::AsOrdinaryUser ordinary(folder.path());
    EXPECT_THAT(found(), ElementsAre(open));
    fs::permissions(at("Closed"), fs::perms::owner_all);
    fs::permissions(information("Secret.app"), fs::perms::owner_all);
    EXPECT_THAT(found(), ElementsAre(at("Closed/Word.app"), open, at("Secret.app")));
}

TEST_F(Registry, ABundleWithLinksToItIsNamedOnceByItsOwnPath) {
    const std::string own = bundle("Office/Word.app");
    fs::create_directory_symlink("Office/Word.app", at("A.app"));
    fs::create_directory_symlink(own, at("Z.app"));
    fs::create_directory_symlink("Z.app", at("Chain.app"));
    EXPECT_THAT(found(), ElementsAre(own));
}

TEST_F(Registry, ABundleElsewhereIsNamedOnceByTheFirstLinkToIt) {
    folder.write("elsewhere/Word.app/Contents/Info.plist", xml(kWord));
    fs::create_directories(at("Office"));
    for (const std::string name : {"B.app", "A.app", "Office/C.app"})
        fs::create_directory_symlink(folder.path("elsewhere/Word.app"), at(name));
    EXPECT_THAT(found(), ElementsAre(at("A.app")));
    fs::remove(at("A.app"));
    EXPECT_THAT(found(), ElementsAre(at("B.app")));
}

TEST_F(Registry, AUsersFolderThatIsALinkToTheMachinesAddsNothing) {
    const std::string word = bundle("Word.app");
    fs::create_directories(folder.path("home"));
    fs::create_directory_symlink(at(""), folder.path("home/Applications"));
    EXPECT_THAT(found(), ElementsAre(word));
}

TEST_F(Registry, TwoCopiesOfABundleAreTwo) {
    const std::string a = bundle("A.app");
    const std::string b = bundle("B.app");
    EXPECT_THAT(found(), ElementsAre(a, b));
}

TEST(EachOnce, WhatLeadsNowhereIsLeftOutAndTheOrderStays) {
    const tests::TemporaryFolder folder;
    fs::create_directory(folder.path("b"));
    fs::create_directory(folder.path("a"));
    fs::create_directory_symlink("a", folder.path("link"));
    EXPECT_THAT(linuxhost::eachOnce({folder.path("link"), folder.path("b"), folder.path("absent"),
                                     folder.path("a"), folder.path("b")}),
                ElementsAre(folder.path("b"), folder.path("a")));
    EXPECT_THAT(linuxhost::eachOnce({}), IsEmpty());
}

// --- Never what was

TEST_F(Registry, BundlesThatComeAndGoAreSeenAtOnce) {
    EXPECT_THAT(found(), IsEmpty());
    const std::string a = bundle("A.app");
    EXPECT_THAT(found(), ElementsAre(a));
    const std::string b = bundle("Office/B.app");
    EXPECT_THAT(found(), ElementsAre(a, b));
    fs::rename(a, at("C.app"));
    EXPECT_THAT(found(), ElementsAre(at("C.app"), b));
    fs::rename(at("C.app"), at("Office/C.app"));
    EXPECT_THAT(found(), ElementsAre(b, at("Office/C.app")));
    fs::rename(at("Office"), at("Word 2004"));
    EXPECT_THAT(found(), ElementsAre(at("Word 2004/B.app"), at("Word 2004/C.app")));
    fs::rename(at("Word 2004"), folder.path("Word 2004"));
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(Registry, ADictionaryThatIsReplacedWithinTheSameSecondIsReadAgain) {
    bundle("Word.app");
    const auto written = fs::last_write_time(information("Word.app"));
    for (int i = 0; i < 50; ++i) {
        // As long as before, and with the time of the old one.
        const std::string identifier = i % 2 ? "com.example.Word" : "com.example.Were";
        const bool isInPlace = i % 4 < 2;
        const std::string name = isInPlace ? "Word.app/Contents/Info.plist" : "new";
        folder.write("Applications/" + name, xml(identifier));
        fs::last_write_time(at(name), written);
        if (!isInPlace)
            fs::rename(at(name), information("Word.app"));
        ASSERT_THAT(found(identifier), ElementsAre(at("Word.app"))) << i;
        ASSERT_THAT(found(i % 2 ? "com.example.Were" : "com.example.Word"), IsEmpty()) << i;
    }
}

TEST_F(Registry, ADictionaryIsReadOnceAndAgainWhenItHasChanged) {
    const std::string a = bundle("Office/A.app");
    const std::string b = bundle("Office/B.app");
    ASSERT_TRUE(tests::becomesSettled(information("Office/B.app")));
    EXPECT_THAT(found(), ElementsAre(a, b));
    EXPECT_EQ(bundles.reads, 2);
    EXPECT_THAT(found(), ElementsAre(a, b));
    EXPECT_THAT(found("com.example.other"), IsEmpty());
    EXPECT_EQ(bundles.reads, 2);
    const auto written = fs::last_write_time(information("Office/A.app"));
    bundle("Office/A.app", "com.example.Were");
    fs::last_write_time(information("Office/A.app"), written);
    EXPECT_THAT(found(), ElementsAre(b));
    EXPECT_EQ(bundles.reads, 3);
    fs::rename(a, folder.path("A"));
    fs::rename(b, a);
    EXPECT_THAT(found(), ElementsAre(a));
    fs::remove(information("Office/A.app"));
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(Registry, AnotherBundleInTheSamePlaceIsSeen) {
    const std::string a = bundle("A.app");
    const std::string b = bundle("B.app", "com.example.Other");
    ASSERT_TRUE(tests::becomesSettled(information("B.app")));
    EXPECT_THAT(found(), ElementsAre(a));
    fs::rename(a, at("C.app"));
    fs::rename(b, a);
    fs::rename(at("C.app"), b);
    EXPECT_THAT(found(), ElementsAre(b));
    fs::create_directory_symlink(b, at("D.app"));
    fs::remove(information("A.app"));
    fs::create_symlink("../../B.app/Contents/Info.plist", information("A.app"));
    EXPECT_THAT(found(), ElementsAre(a, b));
}

} // namespace
