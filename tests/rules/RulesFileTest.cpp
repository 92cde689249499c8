// The rules file: how its text becomes items, and what files of the wrong kind come to.
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "rules/ecRules.h"
#include "tests/support/OrdinaryUser.h"
#include "tests/support/TemporaryFolder.h"

using namespace std::string_literals;
using namespace std::string_view_literals;
using testing::ElementsAre;
using testing::Optional;

namespace {

using ec::ecRules;
using Numbers = std::vector<std::uint32_t>;
namespace fs = std::filesystem;

class RulesFile : public testing::Test {
  protected:
    void write(std::string_view bytes) { m_folder.write(kName, bytes); }
    std::string file() const { return m_folder.path(kName); }
    std::string folder() const { return m_folder.path(); }

    void expectNoLines() const {
        ecRules rules(folder());
        EXPECT_EQ(rules.count(), 0u);
        for (const std::uint32_t item : {0u, 1u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
            EXPECT_EQ(rules.getItemName(item), std::nullopt);
            EXPECT_EQ(rules.getItemFlag(item), std::nullopt);
            EXPECT_EQ(rules.getItemDesc(item), std::nullopt);
            EXPECT_EQ(rules.getItemMethod(item), std::nullopt);
            EXPECT_EQ(rules.getItemFiles(item), std::nullopt);
            EXPECT_EQ(rules.getItemChildren(item), std::nullopt);
        }
        EXPECT_EQ(rules.getRootItemChildren(), std::nullopt);
    }

    static constexpr std::string_view kName = "Customizer.rules.txt";

  private:
    tests::TemporaryFolder m_folder;
};

constexpr std::string_view kTwoGroups = "Word|0|For writing\n"
                                        "Add-in|1|Cites|inst_Word\n"
                                        "System|0|For the system|inst_Dir|a\n"
                                        "Importer|1|Finds|inst_Spotlight|b|c\n"
                                        "Services|x|Serves|inst_Services\n"
                                        "Browser|0|Collects|inst_Tessaron\n";

TEST_F(RulesFile, IsReadFromTheResourceFolder) {
    write(kTwoGroups);
    const ecRules rules(folder());
    ASSERT_EQ(rules.count(), 7u);
    EXPECT_EQ(rules.getItemName(3), "Importer");
    EXPECT_EQ(rules.getItemFlag(3), "1");
    EXPECT_EQ(rules.getItemDesc(3), "Finds");
    EXPECT_EQ(rules.getItemMethod(3), "inst_Spotlight");
    EXPECT_THAT(rules.getItemFiles(3), Optional(ElementsAre("b", "c")));
}

TEST_F(RulesFile, IsReadOnceAndNotLookedAtAgain) {
    write("A|0|\n");
    const ecRules rules(folder());
    fs::remove(file());
    EXPECT_EQ(rules.getItemName(0), "A");
}

TEST_F(RulesFile, IsReadThroughALink) {
    std::ofstream(folder() + "/real") << "A|0|";
    fs::create_symlink("real", file());
    EXPECT_EQ(ecRules(folder()).getItemName(0), "A");
}

TEST_F(RulesFile, OfTheSharedRulesIsReadOnTheFirstCallOnly) {
    write("First|0|");
    ecRules& rules = ecRules::mainRules(folder());
    write("Second|0|");
    EXPECT_EQ(&ecRules::mainRules(folder()), &rules);
    EXPECT_EQ(rules.getItemName(0), "First");
}

TEST_F(RulesFile, ThatIsMissingHasNoLines) {
    expectNoLines();
}

TEST_F(RulesFile, InAMissingFolderHasNoLines) {
    EXPECT_EQ(ecRules(folder() + "/none").count(), 0u);
    EXPECT_EQ(ecRules("").count(), 0u);
}

TEST_F(RulesFile, ThatIsAFolderHasNoLines) {
    fs::create_directory(file());
    expectNoLines();
}

TEST_F(RulesFile, ThatIsAPipeHasNoLinesAndIsNotWaitedFor) {
    ASSERT_EQ(::mkfifo(file().c_str(), 0600), 0);
    expectNoLines();
}

TEST_F(RulesFile, ThatIsALinkToNowhereOrToItselfHasNoLines) {
    fs::create_symlink("nowhere", file());
    expectNoLines();
    fs::remove(file());
    fs::create_symlink(kName, file());
    expectNoLines();
}

TEST_F(RulesFile, ThatMayNotBeReadHasNoLines) {
    write(kTwoGroups);
    fs::permissions(file(), fs::perms::none);
    const tests::AsOrdinaryUser ordinary(folder());
    ASSERT_TRUE(fs::is_regular_file(file()));
    expectNoLines();
}

TEST_F(RulesFile, WhoseReadingFailsHasNoLines) {
    // Its first page is no memory, so that reading is an error for everybody.
    const fs::path unreadable = "/proc/self/mem";
    if (!fs::is_regular_file(unreadable))
        GTEST_SKIP() << "no file here that opens and can't be read";
    fs::create_symlink(unreadable, file());
    expectNoLines();
}

TEST_F(RulesFile, ThatIsEmptyHasOneEmptyLine) {
    write("");
    const ecRules rules(folder());
    EXPECT_EQ(rules.count(), 1u);
    EXPECT_EQ(rules.getItemName(0), "");
    EXPECT_EQ(rules.getItemFlag(0), std::nullopt);
    EXPECT_EQ(rules.getRootItemChildren(), std::nullopt);
}

TEST_F(RulesFile, ThatIsNotUtf8HasNoLines) {
    for (const auto bytes : {"Gr\xFCn|0|\n"sv, "A|0|\xC0\xAF"sv, "A|0|\xED\xA0\x80"sv,
                             "A|0|\xF4\x90\x80\x80"sv, "A|0|\xE4\xB8"sv}) {
        write(bytes);
        expectNoLines();
    }
}

TEST_F(RulesFile, MayHoldEveryCharacter) {
    write("Gr\u00FCn|0|\u6570\u5B66 \U0001F4DA|inst_File|\u0395\u03BB");
    const ecRules rules(folder());
    EXPECT_EQ(rules.getItemName(0), "Gr\u00FCn");
    EXPECT_EQ(rules.getItemDesc(0), "\u6570\u5B66 \U0001F4DA");
    EXPECT_THAT(rules.getItemFiles(0), Optional(ElementsAre("\u0395\u03BB")));
}

TEST_F(RulesFile, KeepsAByteOrderMarkInTheFirstName) {
    write("\xEF\xBB\xBF"
          "A|0|\n");
    const ecRules rules(folder());
    EXPECT_EQ(rules.getItemName(0), "\uFEFFA");
    EXPECT_EQ(rules.getRootItemChildren(), Numbers{0});
}

TEST_F(RulesFile, KeepsNulBytesInTheirFields) {
    write("A\0B|0|\0\nC|\0|\n"sv);
    const ecRules rules(folder());
    EXPECT_EQ(rules.getItemName(0), "A\0B"sv);
    EXPECT_EQ(rules.getItemDesc(0), "\0"sv);
    EXPECT_EQ(rules.getItemFlag(1), "\0"sv);
    EXPECT_EQ(rules.getItemChildren(0), Numbers{1});
}

TEST_F(RulesFile, MayHaveAnEnormousLine) {
    constexpr std::size_t kFields = 1'000'000;
    std::string text = "A|0|" + std::string(20'000'000, 'x') + "|m";
    for (std::size_t i = 0; i < kFields; ++i)
        text += "|f";
    write(text + "\n" + std::string(20'000'000, 'y'));
    const ecRules rules(folder());
    ASSERT_EQ(rules.count(), 2u);
    EXPECT_EQ(rules.getItemDesc(0)->size(), 20'000'000u);
    EXPECT_EQ(rules.getItemFiles(0)->size(), kFields);
    EXPECT_EQ(rules.getItemName(1)->size(), 20'000'000u);
    EXPECT_EQ(rules.getRootItemChildren(), Numbers{0});
}

TEST_F(RulesFile, MayHaveAHundredThousandLines) {
    std::string text = "G|0|\n";
    for (int i = 0; i < 100'000; ++i)
        text += "m|1|\n";
    write(text);
    const ecRules rules(folder());
    EXPECT_EQ(rules.count(), 100'002u);
    EXPECT_EQ(rules.getItemChildren(0)->size(), 100'000u);
}

TEST(RulesFormat, AFinalLineFeedMakesOneExtraEmptyItemThatIsCountedButNeverShown) {
    const auto rules = ecRules::fromText("A|0|\nB|1|\n");
    EXPECT_EQ(rules.count(), 3u);
    EXPECT_EQ(rules.getItemName(2), "");
    EXPECT_EQ(rules.getItemFlag(2), std::nullopt);
    EXPECT_EQ(rules.getRootItemChildren(), Numbers{0});
    EXPECT_EQ(rules.getItemChildren(0), Numbers{1});
}

TEST(RulesFormat, AGroupOfThreeFieldsHasNoMethodAndNoFiles) {
    const auto rules = ecRules::fromText("A|0|info");
    EXPECT_EQ(rules.getRootItemChildren(), Numbers{0});
    EXPECT_EQ(rules.getItemDesc(0), "info");
    EXPECT_EQ(rules.getItemMethod(0), std::nullopt);
    EXPECT_EQ(rules.getItemFiles(0), std::nullopt);
}

TEST(RulesFormat, AMemberBeforeAnyGroupBelongsToNone) {
    const auto rules = ecRules::fromText("Early|1|\nA|0|\nB|1|");
    EXPECT_EQ(rules.getRootItemChildren(), Numbers{1});
    EXPECT_EQ(rules.getItemChildren(0), std::nullopt);
    EXPECT_EQ(rules.getItemChildren(1), Numbers{2});
    EXPECT_EQ(rules.getItemName(0), "Early");
}

TEST(RulesFormat, SixFieldsAreTwoFilesAndFourAreNone) {
    const auto rules = ecRules::fromText("A|0|i|m|f|g\nB|0|i|m\nC|0|i|m|");
    EXPECT_THAT(rules.getItemFiles(0), Optional(ElementsAre("f", "g")));
    EXPECT_EQ(rules.getItemFiles(1), std::nullopt);
    EXPECT_THAT(rules.getItemFiles(2), Optional(ElementsAre("")));
}

TEST(RulesFormat, CarriageReturnsStayInTheLastField) {
    const auto rules = ecRules::fromText("A|0|i|m|f|g\r\nB|1|i\r\nC|0\r\n");
    EXPECT_THAT(rules.getItemFiles(0), Optional(ElementsAre("f", "g\r")));
    EXPECT_EQ(rules.getItemDesc(1), "i\r");
    EXPECT_EQ(rules.getItemFlag(2), "0\r");
    EXPECT_EQ(rules.getRootItemChildren(), Numbers{0}) << "a flag with a return is no group's";
    EXPECT_EQ(rules.getItemChildren(0), (Numbers{1, 2}));
}

TEST(RulesFormat, ACarriageReturnAloneEndsNoLine) {
    const auto rules = ecRules::fromText("A|0|\rB|1|");
    EXPECT_EQ(rules.count(), 1u);
    EXPECT_EQ(rules.getItemDesc(0), "\rB");
}

TEST(RulesFormat, TheFirstLineWithoutABarEndsTheTreeButKeepsItsNumber) {
    const auto rules = ecRules::fromText("A|0|\nB|1|\nno item\nC|1|\nD|0|\nE|1|");
    EXPECT_EQ(rules.count(), 6u);
    EXPECT_EQ(rules.getRootItemChildren(), Numbers{0});
    EXPECT_EQ(rules.getItemChildren(0), Numbers{1});
    EXPECT_EQ(rules.getItemName(2), "no item");
    EXPECT_EQ(rules.getItemChildren(2), std::nullopt);
    EXPECT_EQ(rules.getItemName(5), "E");
    EXPECT_EQ(rules.getItemChildren(4), Numbers{5}) << "still a group, though not shown";
}

TEST(RulesFormat, AGroupAtTheEndHasNoMembers) {
    const auto rules = ecRules::fromText("A|0|\nB|1|\nC|0|");
    EXPECT_EQ(rules.getRootItemChildren(), (Numbers{0, 2}));
    EXPECT_EQ(rules.getItemChildren(2), std::nullopt);
}

TEST(RulesFormat, OnlyTheTextZeroMarksAGroup) {
    const auto rules = ecRules::fromText("A|0|\nB||\nC|00|\nD| 0|\nE|0 |\nF|-1|\nG|");
    EXPECT_EQ(rules.getRootItemChildren(), Numbers{0});
    EXPECT_EQ(rules.getItemChildren(0), (Numbers{1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(rules.getItemFlag(6), "");
    EXPECT_EQ(ecRules::fromText("A|0").getRootItemChildren(), Numbers{0});
}

TEST(RulesFormat, AMemberHasNoChildren) {
    const auto rules = ecRules::fromText(std::string(kTwoGroups));
    EXPECT_EQ(rules.getItemChildren(2), (Numbers{3, 4}));
    EXPECT_EQ(rules.getItemChildren(3), std::nullopt);
    EXPECT_EQ(rules.getItemChildren(7), std::nullopt);
    EXPECT_EQ(rules.getItemChildren(0xFFFFFFFF), std::nullopt);
}

TEST(RulesFormat, NothingIsQuotedOrEscapedOrAComment) {
    const auto rules = ecRules::fromText("#\"A\\|0|\"");
    EXPECT_EQ(rules.getItemName(0), "#\"A\\");
    EXPECT_EQ(rules.getItemDesc(0), "\"");
}

TEST(RulesFormat, AnUnknownMethodIsAMethodLikeAnyOther) {
    const auto rules = ecRules::fromText("A|0|\nB|1|i|inst_Teapot|f");
    EXPECT_EQ(rules.getItemMethod(1), "inst_Teapot");
    EXPECT_EQ(rules.getItemChildren(0), Numbers{1});
}

TEST(RulesFormat, LookUpsOfDifferentItemsDontMix) {
    const auto rules = ecRules::fromText("A|0|a|m\nB|1\nC|1|c");
    EXPECT_EQ(rules.getItemName(0), "A");
    EXPECT_EQ(rules.getItemMethod(1), std::nullopt);
    EXPECT_EQ(rules.getItemDesc(2), "c");
    EXPECT_EQ(rules.getItemDesc(9), std::nullopt);
    EXPECT_EQ(rules.getItemDesc(2), "c");
    EXPECT_EQ(rules.getItemDesc(0), "a");
}

TEST(RulesFormat, TextsOutliveLaterLookUps) {
    const auto rules = ecRules::fromText("A|0|a\nB|1|b");
    const auto name = rules.getItemName(0);
    EXPECT_EQ(rules.getItemName(1), "B");
    EXPECT_EQ(name, "A");
}

} // namespace
