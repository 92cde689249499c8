// The rows of a controls::OutlineView as the toolkit's trees want them. Asks the data source for a
// row when it is first needed and for its texts when it is first drawn, and keeps both until the
// outline is reloaded.
#pragma once

#include <memory>
#include <optional>
#include <vector>

#include <QAbstractItemModel>

#include "platform/controls/OutlineView.h"
#include "platform/ports/LocalizedTexts.h"
#include "ui/models/Columns.h"

namespace ui {

class OutlineModel final : public QAbstractItemModel {
  public:
    /// Can the row's check box be set (bool)? A row that can't is drawn grey.
    static constexpr int kIsAvailable = Qt::UserRole;

    struct Needs {
        /// Null it by `forget` when it dies.
        controls::OutlineView& view;
        Columns columns;
        const ports::LocalizedTexts& texts;
    };
    explicit OutlineModel(Needs needs);
    ~OutlineModel() override;

    /// What the data source says may be different. Rows of the same shape only change their looks,
    /// so that the tree stays as the user has opened it; the answer is then true. Else everything
    /// is new.
    bool reload();
    /// The view has died: no rows any more.
    void forget();

    /// Null for no row.
    controls::OutlineItem* itemAt(const QModelIndex& index) const;
    QModelIndex indexOf(const controls::OutlineItem* item) const;
    int checkColumn() const { return m_checkColumn; }
    int nameColumn() const { return m_nameColumn; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& index) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& = {}) const override { return m_columns.count(); }
    bool hasChildren(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// Qt::CheckStateRole of any column: the check box of the row.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

  private:
    struct Node;

    Node& nodeAt(const QModelIndex& index) const;
    Node& child(Node& parent, int row) const;
    void count(Node& node) const;
    bool hasSameShape(Node& node) const;
    void forgetTexts(Node& node) const;
    void tellChanged(Node& node);
    const Node* find(Node& node, const controls::OutlineItem* item) const;
    QModelIndex indexOf(const Node& node, int column) const;

    QString text(Node& node, int column) const;
    Qt::CheckState checkState(const Node& node) const;
    QString described(Node& node) const;

    controls::OutlineView* m_view;
    controls::OutlineDataSource* m_source = nullptr;
    Columns m_columns;
    const ports::LocalizedTexts& m_texts;
    int m_nameColumn;
    int m_checkColumn;
    int m_infoColumn;
    std::unique_ptr<Node> m_root;
};

} // namespace ui
