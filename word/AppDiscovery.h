// What is installed and what is running: the wizard's questions about applications. The installer
// window asks here whether the product or Word is open. Looks only; changes nothing.
// Main thread.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/ports/Applications.h"
#include "platform/ports/Bundles.h"

namespace ec {

/// Word's bundle identifier.
inline constexpr std::string_view kWordIdentifier = "com.microsoft.Word";

class AppDiscovery {
  public:
    struct Needs {
        ports::Applications& applications;
        ports::Bundles& bundles;
    };
    explicit AppDiscovery(Needs needs) : m_needs(needs) {}
    AppDiscovery(const AppDiscovery&) = delete;
    AppDiscovery& operator=(const AppDiscovery&) = delete;

    /// `getBundleStringForPath:Key:` answers the text under `key` in the bundle's Info.plist; none
    /// when there is no bundle, no dictionary or no such text.
    std::optional<std::string> getBundleStringForPath(const std::string& path,
                                                      std::string_view key) const {
        return m_needs.bundles.infoString(path, key);
    }

    /// `isAppWithBundleIDRunning:` tells whether at least one application with the identifier is
    /// running; never for none.
    bool isAppWithBundleIDRunning(std::optional<std::string_view> identifier) const {
        return identifier && m_needs.applications.isRunning(*identifier);
    }

    /// `isWordRunning` asks for Word.
    bool isWordRunning() const { return isAppWithBundleIDRunning(kWordIdentifier); }

    /// `checkWordExists`: Words are not looked for yet, so there is none.
    bool checkWordExists() const { return false; }

  private:
    Needs m_needs;
};

} // namespace ec
