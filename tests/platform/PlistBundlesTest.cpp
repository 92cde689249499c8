#include "platform/posix/PlistBundles.h"

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <initializer_list>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "platform/posix/PlistReader.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using posix::PlistBundles;
using posix::PlistReader;

const std::string kHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST "
    "1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n<plist version=\"1.0\">";

std::string xml(const std::string& body) {
    return kHead + body + "</plist>\n";
}

std::string nested(int levels) {
    std::string text;
    for (int i = 0; i < levels; ++i)
        text += "<array>";
    for (int i = 0; i < levels; ++i)
        text += "</array>";
    return text;
}

/// A binary list from ready-made objects, the first being the top; all numbers one byte wide but
/// the offsets, which have two.
std::string binary(const std::vector<std::string>& objects) {
    std::string bytes = "bplist00";
    std::string table;
    for (const std::string& object : objects) {
        table += static_cast<char>(bytes.size() >> 8);
        table += static_cast<char>(bytes.size() & 0xFF);
        bytes += object;
    }
    const std::size_t tableAt = bytes.size();
    bytes += table + std::string(6, '\0') + "\x02\x01";
    for (const std::uint64_t number :
         {std::uint64_t{objects.size()}, std::uint64_t{0}, static_cast<std::uint64_t>(tableAt)})
        for (int shift = 56; shift >= 0; shift -= 8)
            bytes += static_cast<char>(number >> shift & 0xFF);
    return bytes;
}

std::string arrayOf(std::initializer_list<int> references) {
    std::string object(1, static_cast<char>(0xA0 | references.size()));
    for (const int reference : references)
        object += static_cast<char>(reference);
    return object;
}

TEST(PlistReader, XmlAndBinaryListsGiveTheirStrings) {
    const auto fromXml =
        PlistReader::read(xml("<dict><key>a</key><string>&lt;\xC3\xA9&gt;</string></dict>"));
    ASSERT_TRUE(fromXml);
    EXPECT_EQ(fromXml->string("a"), "<\xC3\xA9>");
    const auto fromBinary =
        PlistReader::read(binary({std::string("\xD2\x01\x03\x02\x04"), "\x51k", "\x55value",
                                  "\x51u", std::string("\x61\x00\xE9", 3)}));
    ASSERT_TRUE(fromBinary);
    EXPECT_EQ(fromBinary->string("k"), "value");
    EXPECT_EQ(fromBinary->string("u"), "\xC3\xA9");
}

TEST(PlistReader, OnlyStringsAreGivenAsStrings) {
    const auto list = PlistReader::read(
        xml("<dict><key>n</key><integer>7</integer><key>d</key><dict/><key>s</key>"
            "<string></string></dict>"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->string("n"), std::nullopt);
    EXPECT_EQ(list->string("d"), std::nullopt);
    EXPECT_EQ(list->string("absent"), std::nullopt);
    EXPECT_EQ(list->string(std::string("s\0x", 3)), std::nullopt);
    EXPECT_EQ(list->string("s"), "");
}

TEST(PlistReader, AListThatIsNoDictionaryHasNoStrings) {
    const auto list = PlistReader::read(xml("<array><string>a</string></array>"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->string("a"), std::nullopt);
}

TEST(PlistReader, OfTwoEqualKeysTheFirstCounts) {
    const auto list = PlistReader::read(
        binary({std::string("\xD2\x01\x02\x03\x04"), "\x51k", "\x51k", "\x51x", "\x51y"}));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->string("k"), "x");
}

TEST(PlistReader, AKeyWithAZeroOrOfAnotherKindIsRefused) {
    const std::string dictionary("\xD1\x01\x02");
    EXPECT_TRUE(PlistReader::read(binary({dictionary, "\x52kk", "\x51x"})));
    EXPECT_FALSE(PlistReader::read(binary({dictionary, std::string("\x52k\0", 3), "\x51x"})));
    EXPECT_FALSE(PlistReader::read(binary({dictionary, std::string("\x62\0k\0\0", 5), "\x51x"})));
    EXPECT_FALSE(PlistReader::read(binary({dictionary, "\x10\x07", "\x51x"})));
}

TEST(PlistReader, WhatIsNoPropertyListIsRefused) {
    EXPECT_FALSE(PlistReader::read(""));
    EXPECT_FALSE(PlistReader::read("plain text"));
    EXPECT_FALSE(PlistReader::read("bplist00"));
    EXPECT_FALSE(PlistReader::read("bplist99" + xml("<dict/>")));
    EXPECT_FALSE(PlistReader::read(kHead + "<dict><key>a</key>"));
}

TEST(PlistReader, AHundredLevelsAreReadAndMoreAreRefused) {
    EXPECT_TRUE(PlistReader::read(xml(nested(100))));
    EXPECT_FALSE(PlistReader::read(xml(nested(102))));
    EXPECT_FALSE(PlistReader::read(xml(nested(300000))));
}

TEST(PlistReader, ClosingTagsThatTheLibraryDoesNotSeeDoNotHideDepth) {
    for (const char* hidden :
         {"<!--</array>-->", "<![CDATA[</array>]]>", "<?x </array>?>", "<array x=\"/>\">"}) {
        std::string text;
        for (int i = 0; i < 300000; ++i)
            text += std::string("<array>") + hidden;
        EXPECT_FALSE(PlistReader::read(xml(text))) << hidden;
    }
}

TEST(PlistReader, ADocumentTypeWithDeclarationsIsRefused) {
    EXPECT_FALSE(PlistReader::read("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><dict/></plist>"));
}

TEST(PlistReader, ABinaryListDeeperThanAHundredLevelsIsRefused) {
    std::vector<std::string> levels;
    for (int i = 0; i < 100; ++i)
        levels.push_back(arrayOf({i + 1}));
    levels.push_back("\x51x");
    EXPECT_TRUE(PlistReader::read(binary(levels)));
    levels.back() = arrayOf({101});
    levels.push_back("\x51x");
    EXPECT_FALSE(PlistReader::read(binary(levels)));
}

TEST(PlistReader, DepthThatIsReachedOverASharedObjectCountsInFull) {
    // The top refers to the middle of the chain first and to its beginning later.
    std::vector<std::string> levels{arrayOf({80, 1})};
    for (int i = 1; i < 140; ++i)
        levels.push_back(arrayOf({i + 1}));
    levels.push_back("\x51x");
    EXPECT_FALSE(PlistReader::read(binary(levels)));
}

TEST(PlistReader, ABinaryListThatRefersToItselfIsRefused) {
    EXPECT_FALSE(PlistReader::read(binary({arrayOf({0})})));
    EXPECT_FALSE(PlistReader::read(binary({arrayOf({1}), arrayOf({2}), arrayOf({1})})));
}

TEST(PlistReader, ABinaryListThatUnfoldsWithoutBoundIsRefused) {
    std::vector<std::string> levels;
    for (int i = 0; i < 60; ++i)
        levels.push_back(arrayOf({i + 1, i + 1}));
    levels.push_back("\x51x");
    EXPECT_FALSE(PlistReader::read(binary(levels)));
}

TEST(PlistReader, ASharedObjectThatStaysSmallIsFine) {
    EXPECT_TRUE(PlistReader::read(binary({arrayOf({1, 1, 2}), arrayOf({2, 2}), "\x51x"})));
}

TEST(PlistReader, AnythingButARegularFileIsRefused) {
    const tests::TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(PlistReader::readFile(folder.path("pipe")));
    EXPECT_FALSE(PlistReader::readFile(folder.path()));
    EXPECT_FALSE(PlistReader::readFile(folder.path("absent")));
}

TEST(PlistReader, AFileBeyondSixteenMegabytesIsRefused) {
    const tests::TemporaryFolder folder;
    const std::string file = folder.write("big", xml("<dict/>"));
    EXPECT_TRUE(PlistReader::readFile(file));
    std::filesystem::resize_file(file, (16 << 20) + 1);
    EXPECT_FALSE(PlistReader::readFile(file));
}

TEST(PlistReader, CharacterReferencesAreRefusedWhereTheyWouldCostSecondsAndReadElsewhere) {
    const std::string reference = "&amp;";
    std::string inOneText;
    std::string inManyTexts;
    for (int i = 0; i < 300'000; ++i) {
        inOneText += reference;
        inManyTexts += "<string>&amp;</string>";
    }
    EXPECT_FALSE(PlistReader::read(xml("<string>" + inOneText + "</string>")));
    EXPECT_TRUE(PlistReader::read(xml("<array>" + inManyTexts + "</array>")));
    const auto few = PlistReader::read(
        xml("<dict><key>a</key><string>" + inOneText.substr(0, 50'000) + "</string></dict>"));
    ASSERT_TRUE(few);
    EXPECT_EQ(few->string("a"), std::string(10'000, '&'));
}

TEST(PlistBundles, ResourcesLieInTheBundleOfTheExecutable) {
    const tests::TemporaryFolder folder;
    const std::string executable = folder.writeProgram("X.app/Contents/MacOS/X", "");
    const PlistBundles bundles(executable);
    EXPECT_EQ(bundles.mainExecutable(), executable);
    EXPECT_EQ(bundles.mainResourceFolder(), folder.path("X.app/Contents/Resources"));
}

TEST(PlistBundles, ALinkToTheExecutableLeadsToItsBundle) {
    const tests::TemporaryFolder folder;
    const std::string executable = folder.writeProgram("X.app/Contents/MacOS/X", "");
    std::filesystem::create_symlink(executable, folder.path("starter"));
    EXPECT_EQ(PlistBundles(folder.path("starter")).mainResourceFolder(),
              folder.path("X.app/Contents/Resources"));
}

TEST(PlistBundles, AnExecutableOutsideABundleHasItsResourcesBesideIt) {
    const tests::TemporaryFolder folder;
    const std::string executable = folder.writeProgram("bin/X", "");
    EXPECT_EQ(PlistBundles(executable).mainResourceFolder(), folder.path("bin"));
}

TEST(PlistBundles, ABrokenInformationDictionaryIsAsGoodAsNone) {
    const tests::TemporaryFolder folder;
    folder.write("X.app/Contents/Info.plist", "<plist><dict><key>a</key>");
    PlistBundles bundles("/bin/true");
    EXPECT_EQ(bundles.infoString(folder.path("X.app"), "a"), std::nullopt);
}

} // namespace
