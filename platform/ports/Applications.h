// Applications as the host knows them: where they are, which run, and how one is launched.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace ports {

class Applications {
  public:
    virtual ~Applications() = default;

    /// Is at least one application with this bundle identifier running? Letter case counts.
    virtual bool isRunning(std::string_view bundleIdentifier) = 0;

    /// The paths of the application bundles with this identifier that the host knows, each once, in
    /// an order that stays the same; empty for none. Letter case counts. Throws PlatformError where
    /// the host's registry does.
    virtual std::vector<std::string> pathsFor(std::string_view bundleIdentifier) = 0;

    /// Starts the application bundle at `path` in a session of its own and does not wait for it.
    /// False when it can't be started; nothing else happens then.
    virtual bool launch(const std::string& path) = 0;
};

} // namespace ports
