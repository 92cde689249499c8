// What every ports::LocalizedTexts promises, for the test program of each adapter: it makes one
// over a resource folder, with `texts(folder)`, and instantiates the suite.
#pragma once

#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "platform/ports/LocalizedTexts.h"
#include "tests/support/TemporaryFolder.h"

namespace tests {

template <class Host>
class LocalizedTextsContract : public testing::Test {
  protected:
    TemporaryFolder folder;
    Host host;
};
TYPED_TEST_SUITE_P(LocalizedTextsContract);

TYPED_TEST_P(LocalizedTextsContract, EveryTextOfTheCatalogueIsSomeTextInTheLanguage) {
    const ports::LocalizedTexts& texts = this->host.texts(this->folder);
    EXPECT_FALSE(texts.languageTag().empty());
    for (const std::string_view key : ports::kTextKeys)
        EXPECT_FALSE(texts.translated(key).empty()) << key;
}

TYPED_TEST_P(LocalizedTextsContract, ATextThatIsNotInTheCatalogueStaysAsItIs) {
    const ports::LocalizedTexts& texts = this->host.texts(this->folder);
    EXPECT_EQ(texts.translated("install %@"), "install %@");
    EXPECT_EQ(texts.translated("größer"), "größer");
    EXPECT_EQ(texts.translated(""), "");
    EXPECT_EQ(texts.translated(std::string_view("Cancelled").substr(0, 6)), texts.lookUp("Cancel"));
}

TYPED_TEST_P(LocalizedTextsContract, AFileThatIsMissingInTheLanguageIsTheEnglishOne) {
    const std::string english = this->folder.write("en.lproj/ReadMe.html", "Read me");
    const ports::LocalizedTexts& texts = this->host.texts(this->folder);
    EXPECT_EQ(texts.file("ReadMe.html"), english);
    EXPECT_EQ(texts.file("Other.html"), std::nullopt);
}

TYPED_TEST_P(LocalizedTextsContract, AFileInTheLanguageIsPreferred) {
    this->folder.write("en.lproj/ReadMe.html", "Read me");
    const std::string own = this->folder.write(
        this->host.texts(this->folder).languageTag() + ".lproj/ReadMe.html", "!");
    EXPECT_EQ(this->host.texts(this->folder).file("ReadMe.html"), own);
}

REGISTER_TYPED_TEST_SUITE_P(LocalizedTextsContract, EveryTextOfTheCatalogueIsSomeTextInTheLanguage,
                            ATextThatIsNotInTheCatalogueStaysAsItIs,
                            AFileThatIsMissingInTheLanguageIsTheEnglishOne,
                            AFileInTheLanguageIsPreferred);

} // namespace tests
