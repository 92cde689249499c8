// What the port for property-list files promises, on the real adapter and on the fake, and what
// only real files show.
#include "platform/posix/FilePropertyLists.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "platform/posix/Plist.h"
#include "tests/fakes/FakePropertyLists.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

namespace {

namespace fs = std::filesystem;
using Outcome = ports::ReadDictionary::Outcome;
using Texts = std::vector<std::string>;
using testing::HasSubstr;

std::string xml(const std::string& body) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">" + body +
           "</plist>\n";
}

struct RealLists {
    std::string path() { return folder.path("a.plist"); }
    std::string badPath() { return folder.path("missing/a.plist"); }
    void damage() { folder.write("a.plist", "<plist><dict>"); }
    tests::TemporaryFolder folder;
    posix::FilePropertyLists lists;
};

struct PretendedLists {
    std::string path() { return "/a.plist"; }
    std::string badPath() {
        lists.refusesChanges = true;
        return "/missing/a.plist";
    }
    void damage() { lists.broken.insert(path()); }
    fakes::FakePropertyLists lists;
};

template <class Host>
class PropertyListsContract : public testing::Test {
  protected:
    Host host;
    ports::PropertyLists& lists = host.lists;
};
using ListHosts = testing::Types<RealLists, PretendedLists>;
TYPED_TEST_SUITE(PropertyListsContract, ListHosts);

TYPED_TEST(PropertyListsContract, AnEmptyDictionaryHasNothing) {
    const auto dictionary = this->lists.emptyDictionary();
    EXPECT_EQ(dictionary->string("a"), std::nullopt);
    EXPECT_EQ(dictionary->strings("a"), std::nullopt);
}

TYPED_TEST(PropertyListsContract, WhatWasSetIsThereInItsOwnTypeOnly) {
    const auto dictionary = this->lists.emptyDictionary();
    dictionary->setString("s", "\u00E9 <&>");
    dictionary->setStrings("a", {"one", "", "two"});
    dictionary->setStrings("e", {});
    EXPECT_EQ(dictionary->string("s"), "\u00E9 <&>");
    EXPECT_EQ(dictionary->strings("a"), Texts({"one", "", "two"}));
    EXPECT_EQ(dictionary->strings("e"), Texts());
    EXPECT_EQ(dictionary->strings("s"), std::nullopt);
    EXPECT_EQ(dictionary->string("a"), std::nullopt);
    EXPECT_EQ(dictionary->string("S"), std::nullopt);
}

TYPED_TEST(PropertyListsContract, AValueReplacesOneOfAnotherType) {
    const auto dictionary = this->lists.emptyDictionary();
    dictionary->setString("k", "v");
    dictionary->setStrings("k", {"w"});
    EXPECT_EQ(dictionary->strings("k"), Texts({"w"}));
    dictionary->setString("k", "x");
    EXPECT_EQ(dictionary->string("k"), "x");
    EXPECT_EQ(dictionary->strings("k"), std::nullopt);
}

TYPED_TEST(PropertyListsContract, AddedEntriesReplaceThoseOfTheSameKeysAndLeaveTheOthers) {
    const auto dictionary = this->lists.emptyDictionary();
    dictionary->setString("a", "old");
    dictionary->setString("b", "kept");
    const auto other = this->lists.emptyDictionary();
    other->setStrings("a", {"new"});
    other->setString("c", "more");
    dictionary->addEntriesFrom(*other);
    other->setString("c", "changed later");
    EXPECT_EQ(dictionary->strings("a"), Texts({"new"}));
    EXPECT_EQ(dictionary->string("b"), "kept");
    EXPECT_EQ(dictionary->string("c"), "more");
}

TYPED_TEST(PropertyListsContract, AMissingFileIsMissing) {
    const auto file = this->lists.readFile(this->host.path());
    EXPECT_EQ(file.outcome, Outcome::missing);
    EXPECT_EQ(file.dictionary, nullptr);
}

TYPED_TEST(PropertyListsContract, ABrokenFileIsBroken) {
    this->host.damage();
    const auto file = this->lists.readFile(this->host.path());
    EXPECT_EQ(file.outcome, Outcome::broken);
    EXPECT_EQ(file.dictionary, nullptr);
}

TYPED_TEST(PropertyListsContract, WhatIsWrittenIsReadAgain) {
    const auto dictionary = this->lists.emptyDictionary();
    dictionary->setString("s", " two\nlines & <more> \u00E9");
    dictionary->setStrings("a", {"one", "two"});
    ASSERT_TRUE(this->lists.writeFile(*dictionary, this->host.path()));
    const auto file = this->lists.readFile(this->host.path());
    ASSERT_EQ(file.outcome, Outcome::read);
    EXPECT_EQ(file.dictionary->string("s"), " two\nlines & <more> \u00E9");
    EXPECT_EQ(file.dictionary->strings("a"), Texts({"one", "two"}));
}

TYPED_TEST(PropertyListsContract, WritingReplacesWhatWasThere) {
    this->host.damage();
    ASSERT_TRUE(this->lists.writeFile(*this->lists.emptyDictionary(), this->host.path()));
    EXPECT_EQ(this->lists.readFile(this->host.path()).outcome, Outcome::read);
}

TYPED_TEST(PropertyListsContract, AFileThatCannotBeWrittenIsTold) {
    EXPECT_FALSE(this->lists.writeFile(*this->lists.emptyDictionary(), this->host.badPath()));
    EXPECT_EQ(this->lists.readFile(this->host.badPath()).outcome, Outcome::missing);
}

TYPED_TEST(PropertyListsContract, ASetAsideFileTakesTheFirstFreeName) {
    const std::string path = this->host.path();
    for (const char* end : {".damaged", ".damaged-2", ".damaged-3"}) {
        this->host.damage();
        EXPECT_EQ(this->lists.setAside(path), path + end);
        EXPECT_EQ(this->lists.readFile(path).outcome, Outcome::missing);
        EXPECT_EQ(this->lists.readFile(path + end).outcome, Outcome::broken);
    }
}

TYPED_TEST(PropertyListsContract, AMissingFileCannotBeSetAside) {
    EXPECT_EQ(this->lists.setAside(this->host.path()), std::nullopt);
}

// --- Real files alone

class FilePropertyListsTest : public testing::Test {
  protected:
    ports::ReadDictionary read(const std::string& bytes) {
        return lists.readFile(folder.write("a.plist", bytes));
    }
    bool write(const std::string& path) {
        const auto dictionary = lists.emptyDictionary();
        dictionary->setString("k", "new");
        return lists.writeFile(*dictionary, path);
    }
    std::string valueIn(const std::string& path) {
        const auto file = lists.readFile(path);
        return file.dictionary ? file.dictionary->string("k").value_or("no string") : "no file";
    }
    static unsigned modeOf(const std::string& path) {
        struct stat facts{};
        EXPECT_EQ(::stat(path.c_str(), &facts), 0);
        return facts.st_mode & 07777u;
    }

    tests::TemporaryFolder folder;
    posix::FilePropertyLists lists;
};

/// Everything that a list can hold, as the library prints it.
const std::string kAllTypes = "\t<key>date</key>\n"
                              "\t<date>1890-01-02T03:04:05Z</date>\n"
                              "\t<key>data</key>\n"
                              "\t<data>\n\tAAEC/w==\n\t</data>\n"
                              "\t<key>real</key>\n"
                              "\t<real>3.14159265358979</real>\n"
                              "\t<key>negative</key>\n"
                              "\t<integer>-5</integer>\n"
                              "\t<key>large</key>\n"
                              "\t<integer>18446744073709551615</integer>\n"
                              "\t<key>yes</key>\n"
                              "\t<true/>\n"
                              "\t<key>nested &lt;&amp;&gt;</key>\n"
                              "\t<dict>\n"
                              "\t\t<key>array</key>\n"
                              "\t\t<array>\n"
                              "\t\t\t<false/>\n"
                              "\t\t\t<string>&lt;\u00E9&gt;</string>\n"
                              "\t\t\t<dict/>\n"
                              "\t\t\t<array/>\n"
                              "\t\t</array>\n"
                              "\t</dict>\n";

TEST_F(FilePropertyListsTest, KeysAndTypesThatNobodyKnowsStayByteForByteAndInTheirOrder) {
    const auto file = read(xml("<dict>" + kAllTypes + "</dict>"));
    ASSERT_EQ(file.outcome, Outcome::read);
    const auto dictionary = lists.emptyDictionary();
    dictionary->addEntriesFrom(*file.dictionary);
    dictionary->setStrings("Word", {"one"});
    ASSERT_TRUE(lists.writeFile(*dictionary, folder.path("a.plist")));
    EXPECT_THAT(folder.read("a.plist"), HasSubstr("<dict>\n" + kAllTypes +
                                                  "\t<key>Word</key>\n\t<array>\n\t\t<string>one"
                                                  "</string>\n\t</array>\n</dict>\n</plist>"));
}

TEST_F(FilePropertyListsTest, ABinaryListIsReadAndWrittenAsXml) {
    const std::string binary("bplist00\xD2\x01\x02\x03\x04\x51k\x51i\x55value\x10\x2A"
                             "\x08\x0D\x0F\x11\x17\0\0\0\0\0\0\x01\x01\0\0\0\0\0\0\0\x05"
                             "\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x19",
                             8 + 5 + 2 + 2 + 6 + 2 + 5 + 8 + 24);
    const auto file = read(binary);
    ASSERT_EQ(file.outcome, Outcome::read);
    EXPECT_EQ(file.dictionary->string("k"), "value");
    ASSERT_TRUE(lists.writeFile(*file.dictionary, folder.path("a.plist")));
    EXPECT_TRUE(folder.read("a.plist").starts_with("<?xml"));
    EXPECT_THAT(folder.read("a.plist"), HasSubstr("<key>i</key>\n\t<integer>42</integer>"));
}

TEST_F(FilePropertyListsTest, ElementsThatAreNoStringsArePassedOverButStayUntilTheArrayIsSet) {
    const auto file = read(xml("<dict><key>Word</key><array><string>one</string><integer>7"
                               "</integer><string>two</string></array></dict>"));
    ASSERT_EQ(file.outcome, Outcome::read);
    EXPECT_EQ(file.dictionary->strings("Word"), Texts({"one", "two"}));
    ASSERT_TRUE(lists.writeFile(*file.dictionary, folder.path("a.plist")));
    EXPECT_THAT(folder.read("a.plist"), HasSubstr("<integer>7</integer>"));
    file.dictionary->setStrings("Word", *file.dictionary->strings("Word"));
    ASSERT_TRUE(lists.writeFile(*file.dictionary, folder.path("a.plist")));
    EXPECT_THAT(folder.read("a.plist"), Not(HasSubstr("<integer>")));
}

TEST_F(FilePropertyListsTest, AFileThatHoldsNoDictionaryIsBroken) {
    for (const std::string& bytes :
         {std::string(), std::string("text"), xml(""), xml("<array><string>a</string></array>"),
          xml("<string>a</string>"), std::string("bplist00")})
        EXPECT_EQ(read(bytes).outcome, Outcome::broken) << bytes;
    EXPECT_EQ(lists.readFile(folder.path()).outcome, Outcome::broken);
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(lists.readFile(folder.path("pipe")).outcome, Outcome::broken);
}

TEST_F(FilePropertyListsTest, AFileThatCannotBeReadIsBrokenAndNotMissing) {
    const std::string path = folder.write("a.plist", xml("<dict/>"));
    ASSERT_EQ(::chmod(path.c_str(), 0), 0);
    const tests::AsOrdinaryUser ordinary(folder.path());
    EXPECT_EQ(lists.readFile(path).outcome, Outcome::broken);
}

TEST_F(FilePropertyListsTest, APathThroughAFileIsMissing) {
    folder.write("file", "");
    EXPECT_EQ(lists.readFile(folder.path("file/a.plist")).outcome, Outcome::missing);
}

TEST_F(FilePropertyListsTest, AFileDeeperThanAHundredLevelsIsBroken) {
    std::string deep;
    for (int i = 0; i < 101; ++i)
        deep = "<array>" + deep + "</array>";
    EXPECT_EQ(read(xml("<dict><key>a</key>" + deep + "</dict>")).outcome, Outcome::broken);
}

TEST_F(FilePropertyListsTest, WhatCouldNotBeReadAgainIsNotWritten) {
    ASSERT_TRUE(write(folder.path("a.plist")));
    const auto dictionary = lists.emptyDictionary();
    dictionary->setString("k", std::string(17 << 20, 'x'));
    EXPECT_FALSE(lists.writeFile(*dictionary, folder.path("a.plist")));
    EXPECT_EQ(valueIn(folder.path("a.plist")), "new");
}

TEST_F(FilePropertyListsTest, ANewFileIsForItsOwnerAloneAndAnOldOneKeepsItsMode) {
    const std::string path = folder.path("a.plist");
    ASSERT_TRUE(write(path));
    EXPECT_EQ(modeOf(path), 0600u);
    ASSERT_EQ(::chmod(path.c_str(), 0664), 0);
    ASSERT_TRUE(write(path));
    EXPECT_EQ(modeOf(path), 0664u);
    EXPECT_EQ(folder.names(), Texts({"a.plist"}));
}

TEST_F(FilePropertyListsTest, ALinkStaysAndItsTargetIsWritten) {
    folder.write("elsewhere/b.plist", xml("<dict/>"));
    fs::create_symlink("elsewhere/c.plist", folder.path("a.plist"));
    fs::create_symlink(folder.path("elsewhere/b.plist"), folder.path("elsewhere/c.plist"));
    ASSERT_TRUE(write(folder.path("a.plist")));
    EXPECT_TRUE(fs::is_symlink(folder.path("a.plist")));
    EXPECT_TRUE(fs::is_symlink(folder.path("elsewhere/c.plist")));
    EXPECT_EQ(valueIn(folder.path("elsewhere/b.plist")), "new");
    EXPECT_EQ(folder.names("elsewhere"), Texts({"b.plist", "c.plist"}));
}

TEST_F(FilePropertyListsTest, ALinkToNothingIsMissingAndItsTargetIsMade) {
    fs::create_symlink("b.plist", folder.path("a.plist"));
    EXPECT_EQ(lists.readFile(folder.path("a.plist")).outcome, Outcome::missing);
    ASSERT_TRUE(write(folder.path("a.plist")));
    EXPECT_TRUE(fs::is_symlink(folder.path("a.plist")));
    EXPECT_EQ(valueIn(folder.path("b.plist")), "new");
}

TEST_F(FilePropertyListsTest, LinksInACircleFail) {
    fs::create_symlink("b.plist", folder.path("a.plist"));
    fs::create_symlink("a.plist", folder.path("b.plist"));
    EXPECT_FALSE(write(folder.path("a.plist")));
    EXPECT_EQ(lists.setAside(folder.path("a.plist")), std::nullopt);
    EXPECT_EQ(folder.names(), Texts({"a.plist", "b.plist"}));
}

TEST_F(FilePropertyListsTest, WhatIsNoFileIsNeitherReplacedNorSetAside) {
    fs::create_directory(folder.path("folder"));
    ASSERT_EQ(::mkfifo(folder.path("pipe").c_str(), 0600), 0);
    for (const char* name : {"folder", "pipe"}) {
        EXPECT_FALSE(write(folder.path(name)));
        EXPECT_EQ(lists.setAside(folder.path(name)), std::nullopt);
    }
    EXPECT_EQ(folder.names(), Texts({"folder", "pipe"}));
}

TEST_F(FilePropertyListsTest, AFolderThatTakesNoFileKeepsTheOldOneAndNothingElse) {
    ASSERT_TRUE(write(folder.path("Preferences.plist")));
    const std::string path = folder.write("closed/a.plist", "broken");
    ASSERT_EQ(::chmod(folder.path("closed").c_str(), 0500), 0);
    const tests::AsOrdinaryUser ordinary(folder.path());
    EXPECT_FALSE(write(path));
    EXPECT_EQ(lists.setAside(path), std::nullopt);
    EXPECT_EQ(folder.names("closed"), Texts({"a.plist"}));
    EXPECT_EQ(folder.read("closed/a.plist"), "broken");
}

TEST_F(FilePropertyListsTest, ASetAsideFileIsTheLinksTargetAndTheLinkStays) {
    folder.write("elsewhere/b.plist", "broken");
    fs::create_symlink("elsewhere/b.plist", folder.path("a.plist"));
    EXPECT_EQ(lists.setAside(folder.path("a.plist")), folder.path("elsewhere/b.plist.damaged"));
    EXPECT_TRUE(fs::is_symlink(folder.path("a.plist")));
    EXPECT_EQ(folder.read("elsewhere/b.plist.damaged"), "broken");
    EXPECT_EQ(folder.names("elsewhere"), Texts({"b.plist.damaged"}));
}

TEST_F(FilePropertyListsTest, ALinkToNothingTakesTheSecondNameToo) {
    folder.write("a.plist", "broken");
    fs::create_symlink("nothing", folder.path("a.plist.damaged"));
    EXPECT_EQ(lists.setAside(folder.path("a.plist")), folder.path("a.plist.damaged-2"));
}

} // namespace
