// Bundles as folders on disk (ports::Bundles): "X.app/Contents" with "Info.plist", "MacOS" and
// "Resources" in it. Made by the composition root with the executable's own path.
#pragma once

#include <string>

#include "platform/ports/Bundles.h"

namespace posix {

class PlistBundles final : public ports::Bundles {
  public:
    /// `executable` as the system knows it; links in it are resolved. An executable that does not
    /// lie in a bundle has its resources beside it.
    explicit PlistBundles(const std::string& executable);

    std::string mainBundle() const override { return m_bundle; }
    std::string mainResourceFolder() const override { return m_resourceFolder; }
    std::string mainExecutable() const override { return m_executable; }
    std::optional<std::string> infoString(const std::string& path, std::string_view key) override;
    std::vector<std::string> infoStrings(const std::string& path, std::string_view dictionaryKey,
                                         std::string_view arrayKey) override;
    std::vector<std::string> infoStringsOfEach(const std::string& path, std::string_view listKey,
                                               std::string_view arrayKey) override;

  private:
    std::string m_executable;
    std::string m_bundle;
    std::string m_resourceFolder;
};

} // namespace posix
