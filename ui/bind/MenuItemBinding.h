// A command of a menu and its action.
#pragma once

#include <QAction>
#include <QDialog>

#include "platform/controls/MenuItem.h"
#include "ui/bind/Binding.h"

namespace ui {

class MenuItemBinding final : public QObject, public Binding<controls::MenuItem> {
  public:
    /// The model takes enabling and visibility from the action; later the action follows the model.
    /// The action is that of a menu of `window`: while a sheet covers the window or another window
    /// is modal, choosing it does nothing, also where a desktop shows the menu elsewhere. Both
    /// outlive the binding.
    MenuItemBinding(controls::MenuItem& item, QAction& action, const QDialog& window);

  private:
    void mirror(const controls::MenuItem& item) override;
    void drawNow() override {} // a menu is drawn when it opens

    QAction& m_action;
};

} // namespace ui
