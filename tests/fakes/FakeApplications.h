// ports::Applications without processes.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "platform/ports/Applications.h"

namespace fakes {

class FakeApplications final : public ports::Applications {
  public:
    /// Identifiers of what runs.
    std::set<std::string, std::less<>> running;
    /// Bundles that can be launched; with `launchesAll` every one.
    std::set<std::string> launchable;
    bool launchesAll = true;
    /// Every identifier that was asked for and every path that was launched, in order.
    std::vector<std::string> asked;
    std::vector<std::string> launched;

    bool isRunning(std::string_view bundleIdentifier) override {
        asked.emplace_back(bundleIdentifier);
        return running.contains(bundleIdentifier);
    }

    bool launch(const std::string& path) override {
        if (!launchesAll && !launchable.contains(path))
            return false;
        launched.push_back(path);
        return true;
    }
};

} // namespace fakes
