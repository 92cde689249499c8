// ports::InterfaceFiles without files: every name loads but those that a test calls missing. The
// outlets keep the state they have.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "platform/ports/FrontEnd.h"

namespace fakes {

class FakeInterfaceFiles final : public ports::InterfaceFiles {
  public:
    std::set<std::string, std::less<>> missing;
    /// Every name that was loaded, in order.
    std::vector<std::string> loaded;

    bool load(std::string_view name, controls::Interface&) override {
        if (missing.contains(name))
            return false;
        loaded.emplace_back(name);
        return true;
    }
};

} // namespace fakes
