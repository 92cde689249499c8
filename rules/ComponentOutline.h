// What the outline of the components shows and what a click in it does: the data source and the
// delegate of the outline view `ecOutlineView`. A facet of the wizard's controller. The rules hold
// all states, so what is ticked here the install driver finds there; nothing is installed here.
// The program's other users of the components (answers, the list of components, snapshots) read
// and find them here too, so that they see what the outline shows. Main thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "platform/controls/OutlineView.h"
#include "rules/ecItem.h"

namespace ec {

/// A component as the outline shows it.
struct Component {
    std::uint32_t item; ///< its number in the rules
    std::string_view name;
    std::optional<std::uint32_t> group; ///< its group's number; none for a group
    std::int32_t state;                 ///< the current one (see ItemState)
    std::int32_t initial;               ///< the state that the checks found
    bool enabled;                       ///< can its check box be clicked?
    bool operator==(const Component&) const = default;
};

class ComponentOutline : public controls::OutlineDataSource, public controls::OutlineDelegate {
  public:
    struct Needs {
        ecItem& root;
        controls::OutlineView& ecOutlineView;
    };
    explicit ComponentOutline(Needs needs) : m_needs(needs) {}
    ComponentOutline(const ComponentOutline&) = delete;
    ComponentOutline& operator=(const ComponentOutline&) = delete;
    virtual ~ComponentOutline() = default;

    /// Becomes the outline view's data source and delegate and has it reloaded.
    void attach();

    /// Gives every group that has members and no install method of its own, and which no check
    /// therefore looks at, the state that its members have in common.
    void settleGroups();

    /// What `find` came to: the component, or null with the reason.
    struct Found {
        ecItem* item = nullptr;
        bool ambiguous = false; ///< several components answer to the name
    };
    /// The component with the name. "Group/Member" also names a member, for names that stand twice.
    Found find(std::string_view name) const;

    /// All components that the outline can show, in the order of their numbers, each group before
    /// its members. The names live as long as the rules.
    std::vector<Component> components() const;

    // Below, a null item is the root.

    /// `outlineView:numberOfChildrenOfItem:`
    int outlineViewNumberOfChildrenOfItem(const controls::OutlineItem* item) override;
    /// `outlineView:isItemExpandable:`: does the item have children? For the root the answer is the
    /// other way round; a view never asks about it.
    bool outlineViewIsItemExpandable(const controls::OutlineItem* item) override;
    /// `outlineView:child:ofItem:`
    controls::OutlineItem* outlineViewChildOfItem(int index,
                                                  const controls::OutlineItem* item) override;
    /// `outlineView:objectValueForTableColumn:byItem:`: the name, the description, or "1" and "0"
    /// for the check box, where everything that is not off is "1": how a mixed or unavailable box
    /// looks is the cell's matter. Empty for any other column, and where the rules have no text.
    std::string_view outlineViewObjectValue(std::string_view column,
                                            const controls::OutlineItem* item) override;
    /// `outlineView:setObjectValue:forTableColumn:byItem:`: the user has ticked or cleared the
    /// item's box. Ignored for an unavailable item. A member's group then shows what its members
    /// have in common; a group passes its new state on to all its members, those included that
    /// were unavailable. Reloads the view. The column doesn't matter: only one can be edited.
    void outlineViewSetObjectValue(bool value, std::string_view column,
                                   controls::OutlineItem* item) override;

    /// `outlineView:willDisplayCell:forTableColumn:item:`: how the item's check box looks.
    controls::CheckCell outlineViewWillDisplayCell(const controls::OutlineItem* item) override;
    /// `outlineView:shouldEditTableColumn:item:`: the check box can be, names and descriptions not.
    bool outlineViewShouldEdit(std::string_view column, const controls::OutlineItem* item) override;

  private:
    const ecItem& node(const controls::OutlineItem* item) const;

    Needs m_needs;
};

} // namespace ec
