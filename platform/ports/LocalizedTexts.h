// The main bundle's localized-string table, and its files in the user's language.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace ports {

/// The English text of a user-visible text, which is its key in the table.
class TextKey {
  public:
    // NOLINTNEXTLINE(google-explicit-constructor): written as the text itself
    constexpr TextKey(const char* english) : m_english(english) {}

    constexpr std::string_view english() const { return m_english; }
    constexpr bool operator==(const TextKey&) const = default;

  private:
    std::string_view m_english;
};

class LocalizedTexts {
  public:
    virtual ~LocalizedTexts() = default;

    /// The text in the user's language; the key itself where the table has none.
    std::string lookUp(TextKey key) const { return translated(key.english()); }

    /// The same for a text that is known only at run time: of an interface file, or of the
    /// product's own resources.
    virtual std::string translated(std::string_view english) const = 0;

    /// The path of the resource file `name` in the user's language, else in English; none when the
    /// bundle has neither.
    virtual std::optional<std::string> file(std::string_view name) const = 0;
};

} // namespace ports
