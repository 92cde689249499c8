#include "ui/bind/RadioBinding.h"

#include <algorithm>

#include <QGuiApplication>

#include "ui/bind/FirstState.h"

namespace ui {

RadioBinding::RadioBinding(controls::RadioMatrix& matrix, QWidget& widget)
    : Binding(matrix), m_widget(widget) {
    FirstState(widget).giveTo(matrix);
    const auto cells = cellsOf(widget);
    for (int row = 0; row < cells.size(); ++row)
        // a click, and an arrow key that comes from the next cell; Qt's Control is macOS's Command
        connect(cells[row], &QRadioButton::clicked, this, [this, row] {
            if (!model())
                return;
            const bool off = model()->canBeEmptied() && model()->isOn(row) &&
                             QGuiApplication::keyboardModifiers().testFlag(Qt::ControlModifier);
            if (off)
                model()->pressOff();
            else
                model()->press(row);
            if (model())
                mirror(*model());
        });
    mirror(matrix);
}

void RadioBinding::mirror(const controls::RadioMatrix& matrix) {
    const auto cells = cellsOf(m_widget);
    for (int row = 0; row < cells.size(); ++row) {
        QRadioButton& cell = *cells[row];
        if (cell.isChecked() == matrix.isOn(row))
            continue;
        // a button that excludes the others can't be switched off by itself
        cell.setAutoExclusive(false);
        cell.setChecked(matrix.isOn(row));
        cell.setAutoExclusive(true);
    }
    // one stop for the Tab key, at the cell that is on; the arrow keys lead to the others
    const int stop = std::max(matrix.selected(), 0);
    for (int row = 0; row < cells.size(); ++row)
        cells[row]->setFocusPolicy(row == stop ? Qt::StrongFocus : Qt::ClickFocus);
    m_widget.setEnabled(matrix.isEnabled());
    m_widget.setVisible(!matrix.isHidden());
}

} // namespace ui
