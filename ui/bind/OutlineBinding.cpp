#include "ui/bind/OutlineBinding.h"

#include <QItemSelectionModel>

#include "ui/bind/FirstState.h"

namespace ui {

OutlineBinding::OutlineBinding(controls::OutlineView& outline, ComponentTree& widget,
                               const ports::LocalizedTexts& texts)
    : Binding(outline), m_widget(widget),
      m_rows({.view = outline, .columns = Columns::of(widget, &texts), .texts = texts}),
      m_generation(outline.generation()) {
    widget.showRows(m_rows);
    FirstState(widget).giveTo(outline);
    connect(widget.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        const auto rows = m_widget.selectionModel()->selectedRows(m_rows.nameColumn());
        if (model())
            model()->select(rows.isEmpty() ? nullptr : m_rows.itemAt(rows.first()));
    });
    mirror(outline);
}

bool OutlineBinding::suits(const controls::OutlineView&, const ComponentTree& widget) {
    using controls::OutlineView;
    return Columns::of(widget).areExactly(std::initializer_list<std::string_view>{
        OutlineView::kNameColumn, OutlineView::kCheckColumn, OutlineView::kInfoColumn});
}

void OutlineBinding::mirror(const controls::OutlineView& outline) {
    if (m_generation != outline.generation()) {
        m_generation = outline.generation();
        if (!m_rows.reload())
            m_widget.openAll();
    }
    m_widget.setEnabled(outline.isEnabled());
    m_widget.setVisible(!outline.isHidden());
    showSelection(outline);
}

void OutlineBinding::showSelection(const controls::OutlineView& outline) {
    QItemSelectionModel& selection = *m_widget.selectionModel();
    const auto rows = selection.selectedRows(m_rows.nameColumn());
    const auto* shown = rows.isEmpty() ? nullptr : m_rows.itemAt(rows.first());
    if (shown == outline.selectedItem())
        return;
    const QModelIndex row = m_rows.indexOf(outline.selectedItem());
    if (row.isValid())
        selection.setCurrentIndex(row,
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    else if (!rows.isEmpty())
        selection.clearSelection();
    else if (model())
        model()->select(nullptr); // the row that was selected is gone
}

} // namespace ui
