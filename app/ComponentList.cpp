#include "app/ComponentList.h"

#include <algorithm>

#include "app/unattended/Descriptions.h"
#include "wizard/LaunchModes.h"

namespace app {

namespace {

std::string_view wordFor(std::int32_t state) {
    switch (state) {
    case ec::ItemState::off:
        return "not installed";
    case ec::ItemState::mixed:
        return "partly installed";
    case ec::ItemState::unavailable:
        return "not available";
    default:
        return "installed";
    }
}

/// How many columns a terminal needs for the text, one for each character.
std::size_t widthOf(std::string_view text) {
    return static_cast<std::size_t>(std::ranges::count_if(
        text, [](char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }));
}

Event orNull(std::optional<std::string_view> text) {
    return text ? Event(*text) : Event();
}

} // namespace

std::string componentTable(const ec::ComponentOutline& outline) {
    const auto cellOf = [](const ec::Component& component) {
        return (component.group ? "  " : "") + std::string(component.name);
    };
    std::size_t width = 0;
    for (const ec::Component& component : outline.components())
        width = std::max(width, widthOf(cellOf(component)));
    std::string table;
    for (const ec::Component& component : outline.components()) {
        const std::string cell = cellOf(component);
        table += (table.empty() ? "" : "\n") + cell + std::string(width - widthOf(cell) + 2, ' ');
        table += wordFor(component.state);
    }
    return table;
}

Event componentArray(const ec::ComponentOutline& outline, const ec::ecRules& rules) {
    Event all = Event::array();
    for (const ec::Component& component : outline.components()) {
        Event element = described(component);
        element["description"] = orNull(rules.getItemDesc(component.item));
        element["method"] = orNull(rules.getItemMethod(component.item));
        all.push_back(std::move(element));
    }
    return all;
}

RunOutcome ComponentList::run() {
    ec::ecController controller(m_program.host(), m_program.rules(), m_program.root());
    RunOutcome outcome{
        .result = controller.mResultCode, .code = ExitCode::done, .reason = {}, .summary = {}};
    if (controller.components().empty()) {
        outcome.code = ExitCode::failed;
        outcome.reason = "the file Customizer.rules.txt can't be read from " +
                         controller.m_custResourceDir +
                         ", or has no component; get a complete copy of the installer";
    }
    controller.m_mode = ec::launch::kCustomize;
    controller.readCustomizerData();
    controller.readBreadcrumbs();
    controller.constructWordAndStartupPaths();
    controller.installCheck();
    controller.settleGroups();

    const CommandLine& options = m_program.options();
    if (options.events)
        m_program.events().emit("snapshot",
                                {{"name", "components"},
                                 {"page", nullptr},
                                 {"state", nullptr},
                                 {"controls", Event::object()},
                                 {"components", componentArray(controller, m_program.rules())}});
    else if (options.json)
        outcome.summary = componentArray(controller, m_program.rules())
                              .dump(2, ' ', false, Event::error_handler_t::replace);
    else
        outcome.summary = componentTable(controller);
    return outcome;
}

} // namespace app
