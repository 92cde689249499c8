// The identifiers of bundles, each read once: a bundle's dictionary is looked at again only when
// its file is another one or has changed. Used by ProcApplications, which asks for many bundles at
// once.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "cp/FileStamp.h"
#include "platform/ports/Bundles.h"

namespace linuxhost {

class BundleIdentifiers {
  public:
    explicit BundleIdentifiers(ports::Bundles& bundles) : m_bundles(bundles) {}

    /// The bundle's "CFBundleIdentifier" as it is now; none when there is no bundle, no readable
    /// dictionary or no such text. Never throws.
    std::optional<std::string> identifierOf(const std::string& bundle);

  private:
    struct Known {
        Corvaldine::CP::FileStamp stamp;
        std::optional<std::string> identifier;
    };

    ports::Bundles& m_bundles;
    std::map<std::string, Known> m_known;
};

} // namespace linuxhost
