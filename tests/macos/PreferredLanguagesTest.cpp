#include "platform/macos/PreferredLanguages.h"

#include <gtest/gtest.h>
#include <optional>

#include "tests/macos/FakeCoreFoundation.h"

using fakes::coreFoundation;

namespace {

std::optional<std::vector<CFStringRef>> languages;

} // namespace

extern "C" CFArrayRef CFLocaleCopyPreferredLanguages() {
    return languages ? coreFoundation().newTextList(*languages) : nullptr;
}

namespace {

using Names = std::vector<std::string>;

class PreferredLanguagesOfMacOs : public testing::Test {
  protected:
    PreferredLanguagesOfMacOs() { coreFoundation() = {}; }
    ~PreferredLanguagesOfMacOs() override { EXPECT_EQ(coreFoundation().living, 0); }
};

TEST_F(PreferredLanguagesOfMacOs, AreGivenAsTheyStandTheDearestFirst) {
    languages = {coreFoundation().newString("zh-Hans-CN"), coreFoundation().newString("de-AT"),
                 coreFoundation().newString("en")};
    EXPECT_EQ(macoshost::preferredLanguages(), (Names{"zh-Hans-CN", "de-AT", "en"}));
    EXPECT_EQ(coreFoundation().retains, 0);
}

TEST_F(PreferredLanguagesOfMacOs, AreNoneWithoutAList) {
    languages.reset();
    EXPECT_EQ(macoshost::preferredLanguages(), Names{});
    EXPECT_EQ(coreFoundation().releases, 0);
}

TEST_F(PreferredLanguagesOfMacOs, AreNoneInAnEmptyList) {
    languages.emplace();
    EXPECT_EQ(macoshost::preferredLanguages(), Names{});
}

TEST_F(PreferredLanguagesOfMacOs, LeaveOutWhatHasNoFormInUtf8) {
    languages = {coreFoundation().newString("??", true), coreFoundation().newString("fr-CA")};
    EXPECT_EQ(macoshost::preferredLanguages(), Names{"fr-CA"});
}

} // namespace
