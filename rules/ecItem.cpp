#include "rules/ecItem.h"

#include <algorithm>

namespace ec {

ecItem& ecItem::rootItem(ecRules& rules) {
    static ecItem root(rules, kRootItem, nullptr);
    return root;
}

std::span<const std::unique_ptr<ecItem>> ecItem::children() const {
    if (m_IsALeafNode || !m_children.empty())
        return m_children;
    const auto numbers =
        isRoot() ? m_rules.getRootItemChildren() : m_rules.getItemChildren(m_itemNum);
    if (!numbers) {
        m_IsALeafNode = true;
        return m_children;
    }
    m_children.reserve(numbers->size());
    for (const std::uint32_t number : *numbers)
        m_children.push_back(std::make_unique<ecItem>(m_rules, number, this));
    return m_children;
}

ecItem* ecItem::childAtIndex(int index) const {
    if (index < 0 || index >= numberOfChildren())
        return nullptr;
    return m_children[static_cast<std::size_t>(index)].get();
}

std::int32_t ecItem::determineState() const {
    const auto members = children();
    if (members.empty())
        return getItemState();
    const std::int32_t candidate = members.front()->getItemState();
    const bool common = std::ranges::all_of(
        members, [candidate](const auto& member) { return member->getItemState() == candidate; });
    return common ? candidate : ItemState::mixed;
}

} // namespace ec
