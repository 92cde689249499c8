#include "app/unattended/StepPerformer.h"

#include <algorithm>
#include <map>

#include "app/unattended/Descriptions.h"

namespace app {

namespace {

std::string inQuotes(std::string_view name) {
    return "\"" + std::string(name) + "\"";
}

/// The outlet as a control of that kind; null when the window has none.
template <class Control>
Control* controlNamed(const std::string& name, const Scene& scene) {
    const auto* named = scene.outlets.find(name);
    auto* const* control = named ? std::get_if<Control*>(&named->control) : nullptr;
    return control ? *control : nullptr;
}

Refusal notThere(std::string_view kind, const std::string& name, const Scene& scene) {
    return "this window has no " + std::string(kind) + " " + inQuotes(name) +
           (scene.outlets.find(name) ? ": the control of that name is of another kind"
                                     : "; a snapshot lists the controls it has");
}

/// Can a person reach the control just now?
Refusal outOfReach(std::string_view kind, const std::string& name,
                   const controls::Control& control) {
    if (control.isEnabled() && !control.isHidden())
        return std::nullopt;
    return "the " + std::string(kind) + " " + inQuotes(name) + " can't be used now: it is " +
           (control.isEnabled() ? "hidden" : "disabled");
}

Refusal noSuchRow(const std::string& name, int row, int rows) {
    return inQuotes(name) + " has no row " + std::to_string(row) +
           (rows == 0 ? "; it is empty" : "; its rows are 0 to " + std::to_string(rows - 1));
}

/// "Group", "Group/Member" where the name stands twice, else "Member"; in the outline's order.
std::string namesOf(const ec::ComponentOutline& outline) {
    const auto all = outline.components();
    std::map<std::uint32_t, std::string_view> groups;
    std::string text;
    for (const ec::Component& component : all) {
        if (!component.group)
            groups[component.item] = component.name;
        const bool twice = std::ranges::count(all, component.name, &ec::Component::name) > 1;
        std::string name(component.name);
        if (twice && component.group)
            name = std::string(groups[*component.group]) + "/" + name;
        text += (text.empty() ? "" : ", ") + inQuotes(name);
    }
    return text;
}

struct Performer {
    const Scene& scene;
    EventStream& events;

    Refusal operator()(const PressStep& step) const { return pressOutlet(step.outlet, scene); }

    Refusal operator()(const ComponentStep& step) const {
        return clickComponent(step.component, step.state, scene);
    }

    Refusal operator()(const SelectStep& step) const {
        auto* matrix = controlNamed<controls::RadioMatrix>(step.outlet, scene);
        if (!matrix)
            return notThere("radio matrix", step.outlet, scene);
        if (auto refusal = outOfReach("radio matrix", step.outlet, *matrix))
            return refusal;
        if (step.row < (matrix->canBeEmptied() ? -1 : 0) || step.row >= matrix->rows())
            return noSuchRow(step.outlet, step.row, matrix->rows());
        if (step.row < 0)
            matrix->pressOff();
        else
            matrix->press(step.row);
        return std::nullopt;
    }

    Refusal operator()(const SelectRowStep& step) const {
        auto* table = controlNamed<controls::TableView>(step.outlet, scene);
        if (!table)
            return notThere("table", step.outlet, scene);
        if (auto refusal = outOfReach("table", step.outlet, *table))
            return refusal;
        if (step.row < -1 || step.row >= table->rows())
            return noSuchRow(step.outlet, step.row, table->rows());
        table->selectRow(step.row);
        return std::nullopt;
    }

    Refusal operator()(const CallStep& step) const {
        if (!scene.wizard)
            return "this window has no actions to call; the wizard has";
        if (step.action.empty() || !ec::ecController::hasAction(step.action))
            return "the wizard has no action " + inQuotes(step.action) +
                   "; write the first keyword of its selector, without a colon";
        (void)scene.wizard->runSelector(step.action);
        return std::nullopt;
    }

    Refusal operator()(const SnapshotStep& step) const {
        const auto* wizard = scene.wizard;
        events.emit("snapshot",
                    {{"name", step.name},
                     {"page", wizard ? Event(wizard->ecTabView.selected()) : Event()},
                     {"state", wizard ? Event(wizard->state()) : Event()},
                     {"controls", describedControls(scene.outlets)},
                     {"components", wizard ? describedComponents(*wizard) : Event::array()}});
        return std::nullopt;
    }

    Refusal operator()(const WaitStep&) const { return "waiting is done elsewhere"; }
};

} // namespace

Refusal performStep(const Step& step, const Scene& scene, EventStream& events) {
    return std::visit(Performer{scene, events}, step);
}

Refusal pressOutlet(const std::string& outlet, const Scene& scene) {
    const auto press = [&](std::string_view kind, auto& control) {
        auto refusal = outOfReach(kind, outlet, control);
        if (!refusal)
            control.press();
        return refusal;
    };
    if (auto* button = controlNamed<controls::Button>(outlet, scene))
        return press("button", *button);
    if (auto* item = controlNamed<controls::MenuItem>(outlet, scene))
        return press("menu command", *item);
    return notThere("button", outlet, scene);
}

Refusal lookUpComponent(const ec::ComponentOutline& outline, const std::string& name,
                        ec::ecItem*& found) {
    const auto [item, ambiguous] = outline.find(name);
    found = item;
    if (item)
        return std::nullopt;
    if (ambiguous)
        return "several components are named " + inQuotes(name) +
               "; write \"Group/Member\". There are " + namesOf(outline);
    const std::string names = namesOf(outline);
    return "there is no component " + inQuotes(name) + "; " +
           (names.empty() ? "there are none at all: is Customizer.rules.txt in the resources?"
                          : "there are " + names);
}

Refusal clickComponent(const std::string& name, std::optional<int> state, const Scene& scene) {
    if (!scene.wizard)
        return "this window has no components; the wizard has";
    ec::ecItem* item = nullptr;
    if (auto refusal = lookUpComponent(*scene.wizard, name, item))
        return refusal;
    controls::OutlineView& view = scene.wizard->ecOutlineView;
    const controls::CheckCell cell = view.checkCell(item);
    if (!cell.enabled)
        return "the component " + inQuotes(name) +
               " can't be changed: it is not available on this computer";
    if (state && cell.state == *state)
        return std::nullopt;
    const bool done = state ? view.set(item, *state != 0) : view.press(item);
    if (!done)
        return "the component " + inQuotes(name) + " can't be changed now";
    return std::nullopt;
}

} // namespace app
