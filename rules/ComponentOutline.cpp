#include "rules/ComponentOutline.h"

namespace ec {

namespace {

using controls::CheckCell;
using controls::OutlineItem;
using controls::OutlineView;

CheckCell cellOf(std::int32_t state) {
    switch (state) {
    case ItemState::mixed:
        return {.state = ItemState::mixed, .allowsMixed = true, .enabled = true};
    case ItemState::unavailable:
        return {.state = ItemState::off, .allowsMixed = false, .enabled = false};
    default:
        return {.state = state, .allowsMixed = false, .enabled = true};
    }
}

/// Is `text` the group's name, a slash and the member's name?
bool isPath(std::string_view text, std::string_view group, std::string_view member) {
    return text.size() == group.size() + 1 + member.size() && text.starts_with(group) &&
           text[group.size()] == '/' && text.ends_with(member);
}

} // namespace

void ComponentOutline::attach() {
    m_needs.ecOutlineView.setDataSource(this);
    m_needs.ecOutlineView.setDelegate(this);
    m_needs.ecOutlineView.reloadData();
}

void ComponentOutline::settleGroups() {
    for (const auto& group : m_needs.root.children())
        if (group->numberOfChildren() != 0 && !group->getItemMethod())
            group->setItemState(group->determineState());
    m_needs.ecOutlineView.reloadData();
}

ComponentOutline::Found ComponentOutline::find(std::string_view name) const {
    Found found;
    const auto take = [&found](ecItem& item) {
        found.ambiguous = found.ambiguous || found.item != nullptr;
        found.item = found.ambiguous ? nullptr : &item;
    };
    for (const auto& group : m_needs.root.children()) {
        const std::string_view groupName = group->getItemName().value_or("");
        if (groupName == name)
            take(*group);
        for (const auto& member : group->children()) {
            const std::string_view memberName = member->getItemName().value_or("");
            if (memberName == name || isPath(name, groupName, memberName))
                take(*member);
        }
    }
    return found;
}

std::vector<Component> ComponentOutline::components() const {
    std::vector<Component> all;
    const auto add = [&all](const ecItem& item, std::optional<std::uint32_t> group) {
        const std::int32_t state = item.getItemState();
        all.push_back({.item = item.itemNum(),
                       .name = item.getItemName().value_or(""),
                       .group = group,
                       .state = state,
                       .initial = item.getItemInitialState(),
                       .enabled = cellOf(state).enabled});
    };
    for (const auto& group : m_needs.root.children()) {
        add(*group, std::nullopt);
        for (const auto& member : group->children())
            add(*member, group->itemNum());
    }
    return all;
}

int ComponentOutline::outlineViewNumberOfChildrenOfItem(const OutlineItem* item) {
    return node(item).numberOfChildren();
}

bool ComponentOutline::outlineViewIsItemExpandable(const OutlineItem* item) {
    const bool hasChildren = node(item).numberOfChildren() > 0;
    return item ? hasChildren : !hasChildren;
}

OutlineItem* ComponentOutline::outlineViewChildOfItem(int index, const OutlineItem* item) {
    return node(item).childAtIndex(index);
}

std::string_view ComponentOutline::outlineViewObjectValue(std::string_view column,
                                                          const OutlineItem* item) {
    const ecItem& shown = node(item);
    if (column == OutlineView::kNameColumn)
        return shown.getItemName().value_or("");
    if (column == OutlineView::kCheckColumn)
        return shown.getItemState() != 0 ? "1" : "0";
    if (column == OutlineView::kInfoColumn)
        return shown.getItemDescription().value_or("");
    return {};
}

void ComponentOutline::outlineViewSetObjectValue(bool value, std::string_view /*column*/,
                                                 OutlineItem* item) {
    const ecItem& toggled = node(item);
    if (toggled.getItemState() == ItemState::unavailable)
        return;
    const std::int32_t state = value ? ItemState::on : ItemState::off;
    toggled.setItemState(state);
    const ecItem* parent = toggled.parent();
    if (!parent)
        return;
    if (parent->isRoot()) {
        for (const auto& member : toggled.children())
            member->setItemState(state);
    } else {
        parent->setItemState(parent->determineState());
    }
    m_needs.ecOutlineView.reloadData();
}

CheckCell ComponentOutline::outlineViewWillDisplayCell(const OutlineItem* item) {
    return cellOf(node(item).getItemState());
}

bool ComponentOutline::outlineViewShouldEdit(std::string_view column, const OutlineItem* item) {
    return item && column == OutlineView::kCheckColumn;
}

const ecItem& ComponentOutline::node(const OutlineItem* item) const {
    return item ? *static_cast<const ecItem*>(item) : m_needs.root;
}

} // namespace ec
