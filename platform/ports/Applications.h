// Applications as the host knows them: which run, and how one is launched.
#pragma once

#include <string>
#include <string_view>

namespace ports {

class Applications {
  public:
    virtual ~Applications() = default;

    /// Is at least one application with this bundle identifier running? Letter case counts.
    virtual bool isRunning(std::string_view bundleIdentifier) = 0;

    /// Starts the application bundle at `path` in a session of its own and does not wait for it.
    /// False when it can't be started; nothing else happens then.
    virtual bool launch(const std::string& path) = 0;
};

} // namespace ports
