// What a snapshot says: the controls of a window and the components of the outline, as JSON. Reads
// only.
#pragma once

#include "app/unattended/EventStream.h"
#include "platform/controls/Interface.h"
#include "rules/ComponentOutline.h"

namespace app {

/// The `controls` member of a snapshot: every outlet by its name.
Event describedControls(const controls::Interface& outlets);

/// One element of the `components` member of a snapshot.
Event described(const ec::Component& component);
/// The member itself.
Event describedComponents(const ec::ComponentOutline& outline);

} // namespace app
