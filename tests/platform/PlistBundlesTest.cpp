#include "platform/posix/PlistBundles.h"

#include <cstdint>
#include <filesystem>
#include <gtest/gtest.h>
#include <initializer_list>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <vector>

#include "platform/posix/Plist.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using posix::Plist;
using posix::PlistBundles;

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

TEST(Plist, XmlAndBinaryListsGiveTheirStrings) {
    const auto fromXml =
        Plist::read(xml("<dict><key>a</key><string>&lt;\xC3\xA9&gt;</string></dict>"));
    ASSERT_TRUE(fromXml);
    EXPECT_EQ(fromXml->string("a"), "<\xC3\xA9>");
    const auto fromBinary =
        Plist::read(binary({std::string("\xD2\x01\x03\x02\x04"), "\x51k", "\x55value", "\x51u",
                            std::string("\x61\x00\xE9", 3)}));
    ASSERT_TRUE(fromBinary);
    EXPECT_EQ(fromBinary->string("k"), "value");
    EXPECT_EQ(fromBinary->string("u"), "\xC3\xA9");
}

TEST(Plist, OnlyStringsAreGivenAsStrings) {
    const auto list =
        Plist::read(xml("<dict><key>n</key><integer>7</integer><key>d</key><dict/><key>s</key>"
                        "<string></string></dict>"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->string("n"), std::nullopt);
    EXPECT_EQ(list->string("d"), std::nullopt);
    EXPECT_EQ(list->string("absent"), std::nullopt);
    EXPECT_EQ(list->string(std::string("s\0x", 3)), std::nullopt);
    EXPECT_EQ(list->string("s"), "");
}

TEST(Plist, AListThatIsNoDictionaryHasNoStrings) {
    const auto list = Plist::read(xml("<array><string>a</string></array>"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->string("a"), std::nullopt);
}

TEST(Plist, OfTwoEqualKeysTheFirstCounts) {
    const auto list = Plist::read(
        binary({std::string("\xD2\x01\x02\x03\x04"), "\x51k", "\x51k", "\x51x", "\x51y"}));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->string("k"), "x");
    Plist copy = Plist::emptyDictionary();
    copy.addEntriesFrom(*list);
    EXPECT_EQ(copy.string("k"), "x");
}

TEST(Plist, AKeyWithAZeroOrOfAnotherKindIsRefused) {
    const std::string dictionary("\xD1\x01\x02");
    EXPECT_TRUE(Plist::read(binary({dictionary, "\x52kk", "\x51x"})));
    EXPECT_FALSE(Plist::read(binary({dictionary, std::string("\x52k\0", 3), "\x51x"})));
    EXPECT_FALSE(Plist::read(binary({dictionary, std::string("\x62\0k\0\0", 5), "\x51x"})));
    EXPECT_FALSE(Plist::read(binary({dictionary, "\x10\x07", "\x51x"})));
}

TEST(Plist, AZeroInAnXmlListIsRefused) {
    using namespace std::string_literals;
    EXPECT_FALSE(Plist::read(xml("<dict><key>a</key><string>b\0c</string></dict>"s)));
    EXPECT_FALSE(Plist::read(xml("<dict><key>a\0b</key><string>c</string></dict>"s)));
}

TEST(Plist, AddedStringsOfABinaryListEndAtAZeroAndAreWrittenSo) {
    const auto list = Plist::read(binary({"\xD1\x01\x02", "\x51k", "\xA1\x03",
                                          std::string("\x53"
                                                      "a\0b",
                                                      4)}));
    ASSERT_TRUE(list);
    Plist copy = Plist::emptyDictionary();
    copy.addEntriesFrom(*list);
    EXPECT_EQ(copy.array("k"), std::vector<std::string>{"a"});
    const auto written = copy.xml();
    ASSERT_TRUE(written);
    EXPECT_NE(written->find("<string>a</string>"), std::string::npos) << *written;
}

TEST(Plist, WhatIsNoPropertyListIsRefused) {
    EXPECT_FALSE(Plist::read(""));
    EXPECT_FALSE(Plist::read("plain text"));
    EXPECT_FALSE(Plist::read("bplist00"));
    EXPECT_FALSE(Plist::read("bplist99" + xml("<dict/>")));
    EXPECT_FALSE(Plist::read(kHead + "<dict><key>a</key>"));
}

TEST(Plist, AHundredLevelsAreReadAndMoreAreRefused) {
    EXPECT_TRUE(Plist::read(xml(nested(100))));
    EXPECT_FALSE(Plist::read(xml(nested(102))));
    EXPECT_FALSE(Plist::read(xml(nested(300000))));
}

TEST(Plist, ClosingTagsThatTheLibraryDoesNotSeeDoNotHideDepth) {
    for (const char* hidden :
         {"<!--</array>-->", "<![CDATA[</array>]]>", "<?x </array>?>", "<array x=\"/>\">"}) {
        std::string text;
        for (int i = 0; i < 300000; ++i)
            text += std::string("<array>") + hidden;
        EXPECT_FALSE(Plist::read(xml(text))) << hidden;
    }
}

TEST(Plist, ADocumentTypeWithDeclarationsIsRefused) {
    EXPECT_FALSE(Plist::read("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><dict/></plist>"));
}

TEST(Plist, ABinaryListDeeperThanAHundredLevelsIsRefused) {
    std::vector<std::string> levels;
    for (int i = 0; i < 100; ++i)
        levels.push_back(arrayOf({i + 1}));
    levels.push_back("\x51x");
    EXPECT_TRUE(Plist::read(binary(levels)));
    levels.back() = arrayOf({101});
    levels.push_back("\x51x");
    EXPECT_FALSE(Plist::read(binary(levels)));
}

TEST(Plist, DepthThatIsReachedOverASharedObjectCountsInFull) {
    // The top refers to the middle of the chain first and to its beginning later.
    std::vector<std::string> levels{arrayOf({80, 1})};
    for (int i = 1; i < 140; ++i)
        levels.push_back(arrayOf({i + 1}));
    levels.push_back("\x51x");
    EXPECT_FALSE(Plist::read(binary(levels)));
}

TEST(Plist, ABinaryListThatRefersToItselfIsRefused) {
    EXPECT_FALSE(Plist::read(binary({arrayOf({0})})));
    EXPECT_FALSE(Plist::read(binary({arrayOf({1}), arrayOf({2}), arrayOf({1})})));
}

TEST(Plist, ABinaryListThatUnfoldsWithoutBoundIsRefused) {
    std::vector<std::string> levels;
    for (int i = 0; i < 60; ++i)
        levels.push_back(arrayOf({i + 1, i + 1}));
    levels.push_back("\x51x");
    EXPECT_FALSE(Plist::read(binary(levels)));
}

TEST(Plist, ASharedObjectThatStaysSmallIsFine) {
    EXPECT_TRUE(Plist::read(binary({arrayOf({1, 1, 2}), arrayOf({2, 2}), "\x51x"})));
}

TEST(Plist, AnythingButARegularFileIsRefused) {
    const tests::TemporaryFolder folder;
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_FALSE(Plist::readFile(folder.path("pipe")));
    EXPECT_FALSE(Plist::readFile(folder.path()));
    EXPECT_FALSE(Plist::readFile(folder.path("absent")));
}

TEST(Plist, AFileBeyondSixteenMegabytesIsRefused) {
    const tests::TemporaryFolder folder;
    const std::string file = folder.write("big", xml("<dict/>"));
    EXPECT_TRUE(Plist::readFile(file));
    std::filesystem::resize_file(file, (16 << 20) + 1);
    EXPECT_FALSE(Plist::readFile(file));
}

TEST(Plist, CharacterReferencesAreRefusedWhereTheyWouldCostSecondsAndReadElsewhere) {
    const std::string reference = "&amp;";
    std::string inOneText;
    std::string inManyTexts;
    for (int i = 0; i < 300'000; ++i) {
        inOneText += reference;
        inManyTexts += "<string>&amp;</string>";
    }
    EXPECT_FALSE(Plist::read(xml("<string>" + inOneText + "</string>")));
    EXPECT_TRUE(Plist::read(xml("<array>" + inManyTexts + "</array>")));
    const auto few = Plist::read(
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

TEST(PlistBundles, AnExecutableOutsideABundleHasItsFolderForABundle) {
    const tests::TemporaryFolder folder;
    const std::string executable = folder.writeProgram("bin/X", "");
    EXPECT_EQ(PlistBundles(executable).mainBundle(), folder.path("bin"));
}

TEST(PlistBundles, OfAnArrayOnlyTheStringsAreGivenAndOtherTypesCountAsNone) {
    const tests::TemporaryFolder folder;
    folder.write("X.app/Contents/Info.plist",
                 xml("<dict><key>D</key><dict><key>A</key><array><integer>1</integer><string>s"
                     "</string></array><key>S</key><string>s</string></dict></dict>"));
    PlistBundles bundles("/bin/true");
    using Texts = std::vector<std::string>;
    EXPECT_EQ(bundles.infoStrings(folder.path("X.app"), "D", "A"), Texts({"s"}));
    EXPECT_EQ(bundles.infoStrings(folder.path("X.app"), "D", "S"), Texts());
    EXPECT_EQ(bundles.infoStrings(folder.path("X.app"), "A", "A"), Texts());
}

TEST(PlistBundles, OfAListOfDictionariesOnlyTheStringsOfArraysAreGiven) {
    const tests::TemporaryFolder folder;
    folder.write("X.app/Contents/Info.plist",
                 xml("<dict><key>L</key><array><string>s</string><dict><key>A</key><string>t"
                     "</string></dict><dict><key>A</key><array><integer>1</integer><string>u"
                     "</string></array></dict></array><key>D</key><dict><key>A</key><array>"
                     "<string>v</string></array></dict></dict>"));
    PlistBundles bundles("/bin/true");
    using Texts = std::vector<std::string>;
    EXPECT_EQ(bundles.infoStringsOfEach(folder.path("X.app"), "L", "A"), Texts({"u"}));
    EXPECT_EQ(bundles.infoStringsOfEach(folder.path("X.app"), "D", "A"), Texts());
    EXPECT_EQ(bundles.infoStringsOfEach(folder.path("X.app"), "A", "A"), Texts());
}

TEST(PlistBundles, ABrokenInformationDictionaryIsAsGoodAsNone) {
    const tests::TemporaryFolder folder;
    folder.write("X.app/Contents/Info.plist", "<plist><dict><key>a</key>");
    PlistBundles bundles("/bin/true");
    EXPECT_EQ(bundles.infoString(folder.path("X.app"), "a"), std::nullopt);
}

} // namespace
