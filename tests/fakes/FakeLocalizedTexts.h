// ports::LocalizedTexts from a table that a test fills.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/LocalizedTexts.h"

namespace fakes {

/// Orders keys, and finds them by their text.
struct ByText {
    using is_transparent = void;
    static std::string_view text(std::string_view english) { return english; }
    static std::string_view text(ports::TextKey key) { return key.english(); }
    bool operator()(const auto& left, const auto& right) const { return text(left) < text(right); }
};

class FakeLocalizedTexts final : public ports::LocalizedTexts {
  public:
    /// Translations; only texts of the catalogue can have one.
    std::map<ports::TextKey, std::string, ByText> table;
    /// Every key that was looked up, in order.
    mutable std::vector<std::string> lookedUp;

    /// Paths by the names of resource files.
    std::map<std::string, std::string, std::less<>> files;

    std::string translated(std::string_view key) const override {
        lookedUp.emplace_back(key);
        const auto entry = table.find(key);
        return entry == table.end() ? std::string(key) : entry->second;
    }
    std::string languageTag() const override { return "en"; }
    std::optional<std::string> file(std::string_view name) const override {
        const auto entry = files.find(name);
        return entry == files.end() ? std::nullopt : std::optional(entry->second);
    }
};

} // namespace fakes
