#include <array>
#include <cstdio>
#include <gtest/gtest.h>
#include <string>
#include <unistd.h>

#include "platform/posix/ProcessSystem.h"
#include "platform/posix/StandardSystemLog.h"
#include "platform/posix/StringsFileTexts.h"
#include "tests/support/TemporaryFolder.h"

namespace {

using posix::StringsFileTexts;

class StringsFileTextsTest : public testing::Test {
  protected:
    void table(const std::string& language, const std::string& value) {
        folder.write(language + ".lproj/Localizable.strings",
                     "<plist version=\"1.0\"><dict><key>Yes</key><string>" + value +
                         "</string></dict></plist>");
    }
    std::string yes(std::vector<std::string> languages) {
        return StringsFileTexts(
                   {.resourceFolder = folder.path("resources"), .languages = std::move(languages)})
            .lookUp("Yes");
    }
    tests::TemporaryFolder folder;
};

TEST_F(StringsFileTextsTest, TheNearestTableOfTheDearestLanguageIsTaken) {
    table("resources/de", "Ja");
    table("resources/de_AT", "Jo");
    table("resources/fr", "Oui");
    EXPECT_EQ(yes({"de_AT.UTF-8", "fr"}), "Jo");
    EXPECT_EQ(yes({"de_CH@euro", "fr"}), "Ja");
    EXPECT_EQ(yes({"it", "fr_FR.UTF-8"}), "Oui");
    EXPECT_EQ(yes({"it"}), "Yes");
    EXPECT_EQ(yes({}), "Yes");
}

TEST_F(StringsFileTextsTest, EnglishIsReadyWithoutATable) {
    table("resources/de", "Ja");
    EXPECT_EQ(yes({"en_GB.UTF-8", "de"}), "Yes");
}

TEST_F(StringsFileTextsTest, ANameFromTheEnvironmentCannotLeadElsewhere) {
    table("elsewhere", "Leaked");
    EXPECT_EQ(yes({"../elsewhere"}), "Yes");
    EXPECT_EQ(yes({"", ".UTF-8", "_"}), "Yes");
}

TEST_F(StringsFileTextsTest, ATableThatCannotBeReadIsPassedOver) {
    folder.write("resources/de.lproj/Localizable.strings", "\"Yes\" = \"Ja\";");
    table("resources/fr", "Oui");
    EXPECT_EQ(yes({"de", "fr"}), "Oui");
}

TEST(StandardSystemLog, ALineGoesToStandardErrorAsOneLineAndAsItStands) {
    posix::Pipe pipe = posix::makePipe();
    const posix::Descriptor before(::dup(STDERR_FILENO));
    ::dup2(pipe.writing.number(), STDERR_FILENO);
    {
        posix::StandardSystemLog log;
        log.write("100%s done\nand\tmore");
    }
    ::dup2(before.number(), STDERR_FILENO);
    pipe.writing.close();
    std::array<char, 512> buffer;
    const ssize_t count = ::read(pipe.reading.number(), buffer.data(), buffer.size());
    const std::string line(buffer.data(), static_cast<std::size_t>(count > 0 ? count : 0));
    EXPECT_TRUE(line.starts_with("Scrivel 21 Installer[")) << line;
    EXPECT_TRUE(line.ends_with("]: 100%s done and more\n")) << line;
}

} // namespace
