#include "ui/bind/TableBinding.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QStyledItemDelegate>

#include "ui/bind/FirstState.h"

namespace ui {

namespace {

/// Paths run from left to right also where the language does not: else their first slash would
/// stand behind them.
class LeftToRight final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QString displayText(const QVariant& value, const QLocale&) const override {
        constexpr QChar kIsolate(0x2066), kEnd(0x2069);
        return kIsolate + value.toString() + kEnd;
    }
};

} // namespace

TableBinding::TableBinding(controls::TableView& table, QTableView& widget,
                           const ports::LocalizedTexts& texts)
    : Binding(table), m_widget(widget), m_rows(table, Columns::of(widget, &texts)) {
    widget.setModel(&m_rows);
    widget.setItemDelegate(new LeftToRight(&widget));
    FirstState(widget).giveTo(table);
    widget.setSelectionBehavior(QTableView::SelectRows);
    widget.setSelectionMode(QTableView::SingleSelection);
    widget.setEditTriggers(QTableView::NoEditTriggers);
    widget.setTabKeyNavigation(false);
    widget.setShowGrid(false);
    widget.setTextElideMode(Qt::ElideMiddle);
    widget.setWordWrap(false);
    widget.setCornerButtonEnabled(false);
    widget.verticalHeader()->hide();
    widget.verticalHeader()->setDefaultSectionSize(widget.verticalHeader()->minimumSectionSize() +
                                                   4);
    widget.horizontalHeader()->setHighlightSections(false);
    widget.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    // paths get the room, not what is short
    const int last = m_rows.columnCount() - 1;
    if (last > 0)
        widget.horizontalHeader()->setSectionResizeMode(last, QHeaderView::ResizeToContents);
    connect(widget.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (model() && !m_mirrors)
            model()->selectRow(selectedRow());
    });
    mirror(table);
}

int TableBinding::selectedRow() const {
    const auto rows = m_widget.selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.first().row();
}

void TableBinding::mirror(const controls::TableView& table) {
    m_mirrors = true;
    m_rows.reload();
    m_widget.setEnabled(table.isEnabled());
    m_widget.setVisible(!table.isHidden());
    if (table.selectedRow() < 0)
        m_widget.clearSelection();
    else if (table.selectedRow() != selectedRow())
        m_widget.setCurrentIndex(m_rows.index(table.selectedRow(), 0));
    m_mirrors = false;
}

} // namespace ui
