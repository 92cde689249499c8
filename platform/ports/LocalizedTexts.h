// The main bundle's localized-string table. The English text is the key.
#pragma once

#include <string>
#include <string_view>

namespace ports {

class LocalizedTexts {
  public:
    virtual ~LocalizedTexts() = default;

    /// The translation of `key` into the user's language; `key` itself where the table has none.
    virtual std::string lookUp(std::string_view key) const = 0;
};

} // namespace ports
