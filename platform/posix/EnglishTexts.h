// The texts in English, which are their own keys: what a run without a window speaks, whatever the
// user's language is (ports::LocalizedTexts). Made by the composition root; constant.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/ports/LocalizedTexts.h"

namespace posix {

/// The path of `<resourceFolder>/<language>.lproj/<name>`, else of the same file in "en.lproj";
/// none when neither is there.
std::optional<std::string> localizedFile(const std::string& resourceFolder,
                                         std::string_view language, std::string_view name);

class EnglishTexts final : public ports::LocalizedTexts {
  public:
    explicit EnglishTexts(std::string resourceFolder)
        : m_resourceFolder(std::move(resourceFolder)) {}

    std::string translated(std::string_view english) const override { return std::string(english); }
    std::optional<std::string> file(std::string_view name) const override {
        return localizedFile(m_resourceFolder, "en", name);
    }
    std::string languageTag() const override { return "en"; }

  private:
    std::string m_resourceFolder;
};

} // namespace posix
