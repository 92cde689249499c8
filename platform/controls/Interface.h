// The outlets of one interface file: a window and its controls by the names that the file gives
// them. Made by the object that owns the models; front ends bind by it, and the unattended driver
// finds controls by it.
#pragma once

#include <string_view>
#include <variant>
#include <vector>

#include "platform/controls/Button.h"
#include "platform/controls/DocumentView.h"
#include "platform/controls/ImageView.h"
#include "platform/controls/MenuItem.h"
#include "platform/controls/OutlineView.h"
#include "platform/controls/Progress.h"
#include "platform/controls/RadioMatrix.h"
#include "platform/controls/TabView.h"
#include "platform/controls/TableView.h"
#include "platform/controls/TextField.h"
#include "platform/controls/Window.h"

namespace controls {

using Outlet = std::variant<Button*, TextField*, Progress*, TabView*, RadioMatrix*, ImageView*,
                            DocumentView*, OutlineView*, TableView*, MenuItem*>;

struct NamedOutlet {
    std::string_view name;
    Outlet control;
};

struct Interface {
    Window& window;
    std::vector<NamedOutlet> outlets;

    /// The outlet of that name, or null.
    const NamedOutlet* find(std::string_view name) const {
        for (const NamedOutlet& outlet : outlets)
            if (outlet.name == name)
                return &outlet;
        return nullptr;
    }
};

} // namespace controls
