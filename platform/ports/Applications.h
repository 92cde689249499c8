// Applications as the host knows them: where they are, which run, and how one is launched.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ports {

class Applications {
  public:
    virtual ~Applications() = default;

    /// Is at least one application with this bundle identifier running? Letter case counts where
    /// the host has no registry of its own that passes over it.
    virtual bool isRunning(std::string_view bundleIdentifier) = 0;

    /// The paths of the application bundles with this identifier that the host knows, each once, in
    /// an order that stays the same; empty for none. Those that have vanished since may be among
    /// them. Letter case as above. Throws PlatformError where the host's registry does.
    virtual std::vector<std::string> pathsFor(std::string_view bundleIdentifier) = 0;

    /// The paths of the application bundles that open documents like the one at `document`, in
    /// whatever role, each once, in an order that stays the same. None when the host knows no
    /// application at all for it. The document's kind is told by its name, in which letter case
    /// does not count; a host may also look at the document, which should be there. Never throws.
    virtual std::optional<std::vector<std::string>> pathsForDocument(std::string_view document) = 0;

    /// Starts the application bundle at `path` in a session of its own and does not wait for it.
    /// False when it can't be started; nothing else happens then.
    virtual bool launch(const std::string& path) = 0;
};

} // namespace ports
