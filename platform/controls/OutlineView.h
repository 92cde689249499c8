// A tree of rows with columns, one of which holds check boxes. The rows come from a data source;
// the view keeps none of them, but which row the user has selected.
#pragma once

#include <functional>
#include <string_view>
#include <utility>

#include "platform/controls/Control.h"

namespace controls {

/// One row of an outline. What it is only its data source knows, and it lives as long as that
/// does. A null pointer stands for the root, which has no row.
class OutlineItem {
  protected:
    ~OutlineItem() = default;
};

/// How a check box looks: `state` 1 on, 0 off, anything else mixed where `allowsMixed`.
struct CheckCell {
    int state = 0;
    bool allowsMixed = false;
    bool enabled = true;
    bool operator==(const CheckCell&) const = default;
};

class OutlineDataSource {
  public:
    virtual int outlineViewNumberOfChildrenOfItem(const OutlineItem* item) = 0;
    virtual bool outlineViewIsItemExpandable(const OutlineItem* item) = 0;
    /// Null when there is no such child.
    virtual OutlineItem* outlineViewChildOfItem(int index, const OutlineItem* item) = 0;
    /// Valid until the next `reloadData`.
    virtual std::string_view outlineViewObjectValue(std::string_view column,
                                                    const OutlineItem* item) = 0;
    /// The user has set the item's check box.
    virtual void outlineViewSetObjectValue(bool value, std::string_view column,
                                           OutlineItem* item) = 0;

  protected:
    ~OutlineDataSource() = default;
};

class OutlineDelegate {
  public:
    virtual CheckCell outlineViewWillDisplayCell(const OutlineItem* item) = 0;
    virtual bool outlineViewShouldEdit(std::string_view column, const OutlineItem* item) = 0;

  protected:
    ~OutlineDelegate() = default;
};

class OutlineView final : public Control {
  public:
    /// The columns of the interface file, in order.
    static constexpr std::string_view kNameColumn = "component";
    static constexpr std::string_view kCheckColumn = "installed";
    static constexpr std::string_view kInfoColumn = "info";

    OutlineDataSource* dataSource() const { return m_dataSource; }
    void setDataSource(OutlineDataSource* source) { m_dataSource = source; }
    OutlineDelegate* delegate() const { return m_delegate; }
    void setDelegate(OutlineDelegate* delegate) { m_delegate = delegate; }

    /// Everything that the data source says may be different now. Always notifies.
    void reloadData() {
        ++m_generation;
        changed();
    }
    /// Counts the calls of `reloadData`.
    unsigned generation() const { return m_generation; }

    /// The row that the user has selected, null for none.
    OutlineItem* selectedItem() const { return m_selected; }
    void select(OutlineItem* item) {
        if (item == m_selected)
            return;
        m_selected = item;
        changed();
        if (const auto action = m_selectionDidChange)
            action();
    }
    void setSelectionDidChange(std::function<void()> action) {
        m_selectionDidChange = std::move(action);
    }

    /// A click on the item's check box: sets it when it is off or mixed, else clears it. False, and
    /// nothing happens, where the box is disabled or can't be edited.
    bool press(OutlineItem* item) {
        const auto cell = checkCell(item);
        return set(item, cell.allowsMixed || cell.state != 1);
    }
    /// Sets or clears the item's check box as a click would; the same answer.
    bool set(OutlineItem* item, bool on) {
        if (!isEnabled() || isHidden() || !item || !m_dataSource || !m_delegate ||
            !m_delegate->outlineViewShouldEdit(kCheckColumn, item) || !checkCell(item).enabled)
            return false;
        m_dataSource->outlineViewSetObjectValue(on, kCheckColumn, item);
        return true;
    }
    CheckCell checkCell(const OutlineItem* item) const {
        return m_delegate ? m_delegate->outlineViewWillDisplayCell(item) : CheckCell{};
    }

  private:
    OutlineDataSource* m_dataSource = nullptr;
    OutlineDelegate* m_delegate = nullptr;
    unsigned m_generation = 0;
    OutlineItem* m_selected = nullptr;
    std::function<void()> m_selectionDidChange;
};

} // namespace controls
