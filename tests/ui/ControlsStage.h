// A made-up window with one control of each kind, for the tests of the bindings: its interface
// file, its models, and the sources of its outline and its table.
#pragma once

#include <array>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include <QByteArray>
#include <QDialog>

#include "platform/controls/Interface.h"
#include "tests/ui/Stage.h"

namespace stage {

/// The interface file: three pages, two radio buttons, columns as the models want them.
QByteArray controlsFile();

struct Component final : controls::OutlineItem {
    std::string name;
    std::string info;
    controls::CheckCell cell;
    std::vector<Component*> children;
};

/// Groups of components, with every call of the view counted.
class Components final : public controls::OutlineDataSource, public controls::OutlineDelegate {
  public:
    Component& add(std::string name, controls::CheckCell cell = {}, Component* group = nullptr);

    int outlineViewNumberOfChildrenOfItem(const controls::OutlineItem* item) override;
    bool outlineViewIsItemExpandable(const controls::OutlineItem* item) override;
    controls::OutlineItem* outlineViewChildOfItem(int index,
                                                  const controls::OutlineItem* item) override;
    std::string_view outlineViewObjectValue(std::string_view column,
                                            const controls::OutlineItem* item) override;
    void outlineViewSetObjectValue(bool value, std::string_view column,
                                   controls::OutlineItem* item) override;
    controls::CheckCell outlineViewWillDisplayCell(const controls::OutlineItem* item) override;
    bool outlineViewShouldEdit(std::string_view column, const controls::OutlineItem* item) override;

    /// Reloaded after a tick, as the product does it.
    controls::OutlineView* view = nullptr;
    int textsAsked = 0;
    int cellsAsked = 0;
    int childrenAsked = 0;

  private:
    const std::vector<Component*>& childrenOf(const controls::OutlineItem* item) const;

    std::deque<Component> m_all;
    std::vector<Component*> m_groups;
};

class Paths final : public controls::TableDataSource {
  public:
    std::vector<std::array<std::string, 2>> rows;

    int numberOfRowsInTableView() override { return static_cast<int>(rows.size()); }
    std::string tableViewObjectValue(std::string_view column, int row) override;
};

struct ControlModels {
    controls::Window window;
    controls::TabView pages{3};
    controls::RadioMatrix agree{2, 1};
    controls::ImageView picture;
    controls::DocumentView document;
    controls::OutlineView outline;
    controls::TableView table{{"path", "version"}};
    controls::MenuItem command;
    controls::TextField names;
    controls::TextField title;
    controls::Button next;
    controls::Interface outlets{window,
                                {{"pages", &pages},
                                 {"agree", &agree},
                                 {"picture", &picture},
                                 {"document", &document},
                                 {"outline", &outline},
                                 {"table", &table},
                                 {"command", &command},
                                 {"names", &names},
                                 {"title", &title},
                                 {"next", &next}}};
};

/// Writes `file` into the resources as "Controls.ui" and loads it.
bool loadControls(ControlModels& models, const QByteArray& file = controlsFile());

/// The window's dialog in sight, or null.
QDialog* controlsDialog();

/// The names of the wizard's pages as the product shows them at the side.
controls::StyledText pageNames();

/// As the user's mouse does it, so that what is modal counts.
void clickOn(QWidget& widget, QPoint at);
void clickOn(QWidget& widget);

} // namespace stage
