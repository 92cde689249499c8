// Every action of the wizard by its name: the selector's first keyword. ecController looks up here
// what the tables of steps, its own facets and the answers file name.
#pragma once

#include <string_view>

#include "wizard/ActionPerformer.h"

namespace ec {

class ecController;

using Action = ActionResult (*)(ecController&);

/// The action of that name, or null.
Action actionNamed(std::string_view name);

} // namespace ec
