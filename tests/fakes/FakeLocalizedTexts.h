// ports::LocalizedTexts from a table that a test fills.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/LocalizedTexts.h"

namespace fakes {

class FakeLocalizedTexts final : public ports::LocalizedTexts {
  public:
    /// Translations by their English texts.
    std::map<std::string, std::string, std::less<>> table;
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
