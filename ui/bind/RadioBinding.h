// A radio matrix and the widget that holds its cells: the radio buttons that are its direct
// children, in the order of the file.
#pragma once

#include <QRadioButton>

#include "platform/controls/RadioMatrix.h"
#include "ui/bind/Binding.h"

namespace ui {

class RadioBinding final : public QObject, public Binding<controls::RadioMatrix> {
  public:
    /// The model takes enabling and visibility from the widget; which cell is on the model says
    /// from the beginning. The widget outlives the binding.
    RadioBinding(controls::RadioMatrix& matrix, QWidget& widget);

    /// Are there as many cells as the model has rows?
    static bool suits(const controls::RadioMatrix& matrix, const QWidget& widget) {
        return cellsOf(widget).size() == matrix.rows();
    }

  private:
    static QList<QRadioButton*> cellsOf(const QWidget& widget) {
        return widget.findChildren<QRadioButton*>(QString(), Qt::FindDirectChildrenOnly);
    }
    void mirror(const controls::RadioMatrix& matrix) override;
    void drawNow() override { m_widget.repaint(); }

    QWidget& m_widget;
};

} // namespace ui
