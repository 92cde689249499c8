// A window model and its dialog. The user's wish to close goes through the model, whether it comes
// from the title bar or from a key; nothing but the model hides the dialog.
#pragma once

#include <vector>

#include <QDialog>
#include <QPointer>
#include <QPushButton>

#include "platform/controls/Window.h"
#include "ui/bind/Binding.h"

namespace ui {

/// Return presses the first button in sight of those that the interface file lets be the default
/// one ("autoDefault"). Escape presses the button in sight that has the property "takesEscape", and
/// is the wish to close the window where there is none.
/// While a progress bar in sight runs, Escape does nothing, and Return no longer presses the
/// default button: a second press must not cancel what the first one began.
class WindowBinding final : public QObject, public Binding<controls::Window> {
  public:
    /// The model takes title and enabling from the widget; later the widget follows the model. The
    /// widget outlives the binding.
    WindowBinding(controls::Window& window, QDialog& widget);

  private:
    void mirror(const controls::Window& window) override;
    void drawNow() override { m_widget.repaint(); }
    void modelDied() override { m_widget.hide(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

    void show();
    bool isBusy() const;
    void chooseDefault();
    void escape();

    QDialog& m_widget;
    std::vector<QPointer<QPushButton>> m_defaults; // in the order of the file
    QPointer<QPushButton> m_escape;
    bool m_placed = false;
};

} // namespace ui
