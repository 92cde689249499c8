// The bundle that the program runs from, as the system knows it (ports::Bundles). Information
// dictionaries are read from the disk each time, by the reader that all systems share: NSBundle
// keeps a bundle's dictionary for as long as the process lives, and the installer replaces bundles
// while it runs. Made once by the composition root.
#pragma once

#include <string>

#include "platform/posix/PlistBundles.h"

namespace macoshost {

class MainBundle final : public ports::Bundles {
  public:
    /// Asks the system once; what it does not say is told from the executable's place.
    MainBundle();

    std::string mainBundle() const override { return m_bundle; }
    std::string mainResourceFolder() const override { return m_resourceFolder; }
    std::string mainExecutable() const override { return m_onDisk.mainExecutable(); }
    std::optional<std::string> infoString(const std::string& path, std::string_view key) override {
        return m_onDisk.infoString(path, key);
    }
    std::vector<std::string> infoStrings(const std::string& path, std::string_view dictionaryKey,
                                         std::string_view arrayKey) override {
        return m_onDisk.infoStrings(path, dictionaryKey, arrayKey);
    }
    std::vector<std::string> infoStringsOfEach(const std::string& path, std::string_view listKey,
                                               std::string_view arrayKey) override {
        return m_onDisk.infoStringsOfEach(path, listKey, arrayKey);
    }

  private:
    posix::PlistBundles m_onDisk;
    std::string m_bundle;
    std::string m_resourceFolder;
};

} // namespace macoshost
