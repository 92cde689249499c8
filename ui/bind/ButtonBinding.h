// A button model and its push button: title, colour of the title and state one way, clicks the
// other.
#pragma once

#include <QPushButton>

#include "platform/controls/Button.h"
#include "ui/bind/Binding.h"

namespace ui {

class ButtonBinding final : public QObject, public Binding<controls::Button> {
  public:
    /// The model takes title, enabling and visibility from the widget; later the widget follows the
    /// model. The widget outlives the binding.
    ButtonBinding(controls::Button& button, QPushButton& widget);

  private:
    /// A title has one colour and one weight: those of its first run.
    void mirror(const controls::Button& button) override;
    void drawNow() override { m_widget.repaint(); }
    bool eventFilter(QObject* watched, QEvent* event) override;

    QPushButton& m_widget;
};

} // namespace ui
