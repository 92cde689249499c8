// A tree of components with a check box on each row. Interface files name it as the class
// "ui::ComponentTree" and give its columns in the properties `columnIdentifiers` and
// `columnTitles`. Works on an OutlineModel; keeps no row of its own.
#pragma once

#include <functional>

#include <QTreeView>

namespace ui {

class OutlineModel;

class ComponentTree final : public QTreeView {
    Q_OBJECT

  public:
    explicit ComponentTree(QWidget* parent = nullptr);

    /// Shows these rows, every group open. The model outlives the widget's use of it.
    void showRows(OutlineModel& model);
    /// Opens every group again, after everything is new.
    void openAll();

  protected:
    /// The space bar ticks the current row's box, whatever the column.
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void openBelow(const QModelIndex& parent);
    void layOutColumns();

    OutlineModel* m_rows = nullptr;
    bool m_laidOut = false;
};

} // namespace ui
