#include "app/unattended/Descriptions.h"

namespace app {

namespace {

Event described(const controls::Button& button) {
    return {{"kind", "button"},
            {"title", button.title()},
            {"enabled", button.isEnabled()},
            {"hidden", button.isHidden()}};
}

Event described(const controls::TextField& field) {
    return {{"kind", "text"},
            {"text", field.text()},
            {"enabled", field.isEnabled()},
            {"hidden", field.isHidden()}};
}

Event described(const controls::Progress& progress) {
    return {
        {"kind", "progress"}, {"running", progress.isRunning()}, {"hidden", progress.isHidden()}};
}

Event described(const controls::TabView& tabs) {
    return {{"kind", "tabs"}, {"selected", tabs.selected()}};
}

Event described(const controls::RadioMatrix& matrix) {
    return {{"kind", "radio"}, {"selected", matrix.selected()}, {"enabled", matrix.isEnabled()}};
}

Event described(const controls::ImageView& image) {
    return {{"kind", "image"}, {"file", image.picture().name}};
}

Event described(const controls::DocumentView& document) {
    if (!document.file().empty())
        return {{"kind", "document"}, {"file", document.file()}};
    return {{"kind", "document"}, {"text", document.text().text()}};
}

Event described(const controls::OutlineView& outline) {
    Event selected; // null
    if (const auto* item = outline.selectedItem(); item && outline.dataSource())
        selected =
            outline.dataSource()->outlineViewObjectValue(controls::OutlineView::kNameColumn, item);
    return {{"kind", "outline"}, {"selected", selected}, {"enabled", outline.isEnabled()}};
}

Event described(const controls::TableView& table) {
    Event rows = Event::array();
    for (int row = 0; row < table.rows(); ++row) {
        Event texts = Event::array();
        for (const std::string_view column : table.columns())
            texts.push_back(table.value(column, row));
        rows.push_back(std::move(texts));
    }
    return {{"kind", "table"}, {"rows", std::move(rows)}, {"selected", table.selectedRow()}};
}

Event described(const controls::MenuItem& item) {
    return {{"kind", "menu"}, {"enabled", item.isEnabled()}, {"hidden", item.isHidden()}};
}

} // namespace

Event describedControls(const controls::Interface& outlets) {
    Event all = Event::object();
    for (const auto& [name, control] : outlets.outlets)
        std::visit([&](const auto* model) { all[std::string(name)] = described(*model); }, control);
    return all;
}

Event described(const ec::Component& component) {
    return {{"item", component.item},
            {"name", component.name},
            {"group", component.group ? Event(*component.group) : Event()},
            {"state", component.state},
            {"initial", component.initial},
            {"enabled", component.enabled}};
}

Event describedComponents(const ec::ComponentOutline& outline) {
    Event all = Event::array();
    for (const ec::Component& component : outline.components())
        all.push_back(described(component));
    return all;
}

} // namespace app
