// ports::InterfaceFiles without files: every name loads but those that a test calls missing. The
// outlets keep the state they have.
#pragma once

#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/ports/FrontEnd.h"

namespace fakes {

class FakeInterfaceFiles final : public ports::InterfaceFiles {
  public:
    std::set<std::string, std::less<>> missing;
    /// Every name that was loaded, in order.
    std::vector<std::string> loaded;
    /// What was bound last, by name. To be used only while its owner lives.
    std::map<std::string, controls::Interface*, std::less<>> interfaces;

    /// A control of the interface that was loaded last under that name.
    template <class Control>
    Control& control(std::string_view interface, std::string_view outlet) const {
        const auto* named = interfaces.find(interface)->second->find(outlet);
        if (!named)
            throw std::logic_error("There is no outlet " + std::string(outlet));
        return *std::get<Control*>(named->control);
    }

    bool load(std::string_view name, controls::Interface& outlets) override {
        if (missing.contains(name))
            return false;
        loaded.emplace_back(name);
        interfaces[std::string(name)] = &outlets;
        return true;
    }
};

} // namespace fakes
