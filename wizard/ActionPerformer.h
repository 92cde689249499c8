// Actions by name: how a facet reaches an operation that stands above it. The tables of steps name
// actions as text; the controller, which knows every operation, performs them.
#pragma once

#include <string_view>

namespace ec {

/// What an action answers. Only a leave action has it looked at: an object keeps the wizard on its
/// page.
enum class ActionResult { nothing, object };

class ActionPerformer {
  public:
    /// `runSelector:` performs the action of that name (its selector's first keyword), without an
    /// argument. An empty name does nothing; one that no action has does nothing and leaves a line
    /// in the system log. Both answer `nothing`.
    virtual ActionResult runSelector(std::string_view name) = 0;

  protected:
    ~ActionPerformer() = default;
};

} // namespace ec
