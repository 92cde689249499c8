#include "platform/linux/BundleIdentifiers.h"

namespace linuxhost {

std::optional<std::string> BundleIdentifiers::identifierOf(const std::string& bundle) {
    // Before the dictionary is read: a change while it is being read then shows later.
    const auto now = Corvaldine::CP::stamp_of(bundle + "/Contents/Info.plist");
    if (!now) {
        m_known.erase(bundle);
        return std::nullopt;
    }
    const auto [entry, isNew] = m_known.try_emplace(bundle);
    Known& known = entry->second;
    if (isNew || !known.stamp.holds(*now))
        known = {*now, m_bundles.infoString(bundle, "CFBundleIdentifier")};
    return known.identifier;
}

} // namespace linuxhost
