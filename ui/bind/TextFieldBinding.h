// A text model and its label.
#pragma once

#include <QLabel>

#include "platform/controls/TextField.h"
#include "ui/bind/Binding.h"

namespace ui {

class TextFieldBinding final : public Binding<controls::TextField> {
  public:
    /// The model takes text, enabling and visibility from the widget; later the widget follows the
    /// model. The widget outlives the binding.
    TextFieldBinding(controls::TextField& field, QLabel& widget);

  private:
    void mirror(const controls::TextField& field) override;
    void drawNow() override { m_widget.repaint(); }

    QLabel& m_widget;
};

} // namespace ui
