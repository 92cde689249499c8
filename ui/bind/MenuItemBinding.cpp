#include "ui/bind/MenuItemBinding.h"

#include <QApplication>

namespace ui {

namespace {

bool isCovered(const QDialog& window) {
    const QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal == &window)
        return false;
    return modal->windowModality() == Qt::ApplicationModal || modal->parentWidget() == &window;
}

} // namespace

MenuItemBinding::MenuItemBinding(controls::MenuItem& item, QAction& action, const QDialog& window)
    : Binding(item), m_action(action) {
    item.setEnabled(action.isEnabled());
    item.setHidden(!action.isVisible());
    mirror(item);
    connect(&action, &QAction::triggered, this, [this, &window] {
        if (model() && !isCovered(window))
            model()->press();
    });
}

void MenuItemBinding::mirror(const controls::MenuItem& item) {
    m_action.setEnabled(item.isEnabled());
    m_action.setVisible(!item.isHidden());
}

} // namespace ui
