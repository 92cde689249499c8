// A table and its view.
#pragma once

#include <QTableView>

#include "platform/controls/TableView.h"
#include "ui/bind/Binding.h"
#include "ui/models/TableModel.h"

namespace ui {

class TableBinding final : public QObject, public Binding<controls::TableView> {
  public:
    /// The model takes enabling and visibility from the widget; later the widget follows the model,
    /// and the user's selection goes to the model. The widget outlives the binding.
    TableBinding(controls::TableView& table, QTableView& widget,
                 const ports::LocalizedTexts& texts);

    /// Has the widget the table's columns, each with a title?
    static bool suits(const controls::TableView& table, const QTableView& widget) {
        return Columns::of(widget).areExactly(table.columns());
    }

  private:
    void mirror(const controls::TableView& table) override;
    void drawNow() override { m_widget.repaint(); }
    void modelDied() override { m_rows.forget(); }
    int selectedRow() const;

    QTableView& m_widget;
    TableModel m_rows;
    bool m_mirrors = false; // what the widget says meanwhile is our own doing
};

} // namespace ui
