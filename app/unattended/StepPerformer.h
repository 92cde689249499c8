// Does what one step of an answers file says to a window, as a person at its controls would. What
// such a person could not do is refused with the reason. Waiting is not its business, nor is the
// order of the steps (AnswersDriver). Main thread only.
#pragma once

#include <optional>
#include <string>

#include "app/unattended/AnswersFile.h"
#include "app/unattended/EventStream.h"
#include "app/unattended/Scene.h"

namespace app {

/// Why something could not be done, with the remedy; none when it is done.
using Refusal = std::optional<std::string>;

/// Does the step; `events` gets the snapshots. Refuses a WaitStep.
Refusal performStep(const Step& step, const Scene& scene, EventStream& events);

/// A click on the button or menu command.
Refusal pressOutlet(const std::string& outlet, const Scene& scene);

/// A click on the component's check box: toggles it, or sets it where it shows something else than
/// `state` (0 or 1).
Refusal clickComponent(const std::string& name, std::optional<int> state, const Scene& scene);

/// Finds the component, or says why not. For the command line too, which looks before there is any
/// window.
Refusal lookUpComponent(const ec::ComponentOutline& outline, const std::string& name,
                        ec::ecItem*& found);

} // namespace app
