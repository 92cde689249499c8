// A node of the component tree that the outline shows: the root, the groups of the rules file, and
// under each its members. A node is no more than an item number with a place in the tree: names,
// descriptions and states are read from and written to the rules at every call, where the install
// driver finds them. So nodes never have to be told of a change, and a node that can't be changed
// itself still sets its item's state. Made by ComponentOutline's owner (the root) and by their
// parents. Main thread.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

#include "platform/controls/OutlineView.h"
#include "rules/ecRules.h"

namespace ec {

class ecItem final : public controls::OutlineItem {
  public:
    /// The item number of the root, which stands for no item.
    static constexpr std::uint32_t kRootItem = 0xFFFFFFFF;

    /// `initWithItem:parent:`. The rules and the parent have to outlive the node; the root has no
    /// parent.
    ecItem(ecRules& rules, std::uint32_t itemNum, const ecItem* parent)
        : m_rules(rules), m_itemNum(itemNum), m_parent(parent) {}
    ecItem(const ecItem&) = delete;
    ecItem& operator=(const ecItem&) = delete;

    /// `rootItem`: the shared root, made on the first call, for the rules given then. For the
    /// composition root, which hands it on.
    static ecItem& rootItem(ecRules& rules);

    /// `children`: made when first asked for and then kept as long as the node; empty for a leaf.
    std::span<const std::unique_ptr<ecItem>> children() const;
    /// `childAtIndex:`: null when there is no such child.
    ecItem* childAtIndex(int index) const;
    /// `numberOfChildren`
    int numberOfChildren() const { return static_cast<int>(children().size()); }

    /// What the rules hold for the item. The root has no name, no description and the state 0, and
    /// setting its state does nothing.
    std::optional<std::string_view> getItemName() const { return m_rules.getItemName(m_itemNum); }
    std::optional<std::string_view> getItemDescription() const {
        return m_rules.getItemDesc(m_itemNum);
    }
    std::optional<std::string_view> getItemMethod() const {
        return m_rules.getItemMethod(m_itemNum);
    }
    std::int32_t getItemState() const { return m_rules.getItemState(m_itemNum); }
    std::int32_t getItemInitialState() const { return m_rules.getItemInitialState(m_itemNum); }
    /// `setItemState:` sets the current state.
    void setItemState(std::int32_t state) const { m_rules.setItemState(m_itemNum, state); }

    /// `parent`: null for the root.
    const ecItem* parent() const { return m_parent; }
    std::uint32_t itemNum() const { return m_itemNum; }
    bool isRoot() const { return m_itemNum == kRootItem; }

    /// `determineState`: the state that a group's members have in common, or -2 where they differ.
    /// Only for nodes with children; any other answers its own state.
    std::int32_t determineState() const;

  private:
    ecRules& m_rules;
    std::uint32_t m_itemNum;
    mutable bool m_IsALeafNode = false; ///< has looked for children and found none
    const ecItem* m_parent;
    mutable std::vector<std::unique_ptr<ecItem>> m_children;
};

} // namespace ec
