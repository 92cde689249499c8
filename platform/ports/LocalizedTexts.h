// The user-visible texts in the user's language, and the resource files in it. The English text is
// the key; every one of them stands in the catalogue, resources/translations/scrivel_en.ts, and a
// program that looks up another one does not compile. Asked by whoever shows a text.
#pragma once

#include <cstddef>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "platform/ports/generated/TextKeys.h"

namespace ports {

/// A text of the catalogue, written as the English text itself: `lookUp("Cancel")`.
class TextKey {
  public:
    // NOLINTNEXTLINE(google-explicit-constructor): written as the text itself
    consteval TextKey(const char* english) : m_english(english) {
        if (!isInCatalogue(m_english))
            theCatalogueHasNoSuchText();
    }

    constexpr std::string_view english() const { return m_english; }
    constexpr bool operator==(const TextKey&) const = default;

    /// The same question for a text that is known only at run time.
    static constexpr bool isInCatalogue(std::string_view english) {
        std::size_t first = 0, last = std::size(kTextKeys);
        while (first < last) {
            const std::size_t middle = first + (last - first) / 2;
            if (kTextKeys[middle] < english)
                first = middle + 1;
            else
                last = middle;
        }
        return first < std::size(kTextKeys) && kTextKeys[first] == english;
    }

  private:
    /// No constant expression: named by the compiler's message when a text is missing.
    static void theCatalogueHasNoSuchText() {}

    std::string_view m_english;
};

class LocalizedTexts {
  public:
    virtual ~LocalizedTexts() = default;

    /// The text in the user's language; the key itself where that has none.
    std::string lookUp(TextKey key) const { return translated(key.english()); }

    /// The same for a text that is known only at run time: of an interface file, or of the
    /// product's own resources.
    virtual std::string translated(std::string_view english) const = 0;

    /// The path of the resource file `name` in the user's language, else in English; none when the
    /// bundle has neither.
    virtual std::optional<std::string> file(std::string_view name) const = 0;

    /// The language that the texts are in, named as its files are: "en", "de", "zh_CN".
    virtual std::string languageTag() const = 0;
};

} // namespace ports
