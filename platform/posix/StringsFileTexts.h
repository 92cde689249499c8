// Translations from the bundle's tables, "Resources/LANGUAGE.lproj/Localizable.strings", written as
// property lists (ports::LocalizedTexts). Made by the composition root; read once, then constant.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/ports/LocalizedTexts.h"

namespace posix {

class StringsFileTexts final : public ports::LocalizedTexts {
  public:
    struct Needs {
        std::string resourceFolder;
        /// The user's languages as locale names ("de_AT.UTF-8"), the dearest first; empty: English.
        std::vector<std::string> languages;
    };

    /// Takes the table of the first language that has one: for "de_AT" that is "de_AT.lproj", else
    /// "de.lproj". English needs none, its texts are the keys; no later language is tried then.
    /// A name that can't be a language's is passed over, and so is a table that can't be read.
    explicit StringsFileTexts(const Needs& needs);

    std::string translated(std::string_view english) const override;
    std::optional<std::string> file(std::string_view name) const override;

  private:
    std::string m_resourceFolder;
    std::string m_language = "en";
    std::map<std::string, std::string, std::less<>> m_table;
};

} // namespace posix
