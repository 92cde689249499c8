// The texts in the user's language, from the bundle's translations,
// "Resources/translations/scrivel_LANGUAGE.qm" (ports::LocalizedTexts). Made by the composition
// root before the toolkit's application object, which it does not need; read once, then constant.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <QByteArray>
#include <QTranslator>

#include "platform/ports/LocalizedTexts.h"

namespace ui {

class TranslatedTexts final : public ports::LocalizedTexts {
  public:
    struct Needs {
        std::string resourceFolder;
        /// The user's languages as locale names ("de_AT.UTF-8") or language tags ("zh-Hans"), the
        /// dearest first; empty: English.
        std::vector<std::string> languages;
    };

    /// Takes the first language that has a translation: for "de_AT" that is scrivel_de_AT, else
    /// scrivel_de; for simplified Chinese of any country scrivel_zh_CN, for traditional Chinese
    /// scrivel_zh_TW. English needs none, its texts are the keys; no later language is tried then.
    /// A name that can't be a language's is passed over, and so is a file that can't be read.
    explicit TranslatedTexts(const Needs& needs);

    std::string translated(std::string_view english) const override;
    std::optional<std::string> file(std::string_view name) const override;
    std::string languageTag() const override { return m_language; }

  private:
    bool load(const QString& path);

    std::string m_resourceFolder;
    std::string m_language = "en";
    QByteArray m_file; ///< what the translator reads
    QTranslator m_translator;
};

} // namespace ui
