// The rows of a controls::TableView as the toolkit's tables want them; keeps none of them.
#pragma once

#include <QAbstractTableModel>

#include "platform/controls/TableView.h"
#include "ui/models/Columns.h"

namespace ui {

class TableModel final : public QAbstractTableModel {
  public:
    TableModel(const controls::TableView& view, Columns columns)
        : m_view(&view), m_columns(std::move(columns)), m_rows(view.rows()) {}

    /// What the data source says may be different. True when there are as many rows as before.
    bool reload();
    /// The view has died: no rows any more.
    void forget();

    int rowCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_rows;
    }
    int columnCount(const QModelIndex& parent = {}) const override {
        return parent.isValid() ? 0 : m_columns.count();
    }
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    const controls::TableView* m_view;
    Columns m_columns;
    int m_rows; // as the toolkit was told last
};

} // namespace ui
