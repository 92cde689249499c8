// A text model and its label.
#pragma once

#include <QLabel>

#include "platform/controls/TextField.h"
#include "ui/bind/Binding.h"

namespace ui {

/// Dynamic property of a label, also in interface files (bool): it takes no room while it is empty.
inline constexpr char kCollapses[] = "collapses";

class TextFieldBinding final : public Binding<controls::TextField> {
  public:
    /// The model takes text, enabling and visibility from the widget; later the widget follows the
    /// model. A word that is too long for a line is wrapped where the widget wraps; its text can't
    /// be selected then. The widget outlives the binding.
    TextFieldBinding(controls::TextField& field, QLabel& widget);

  private:
    void mirror(const controls::TextField& field) override;
    void drawNow() override { m_widget.repaint(); }

    QLabel& m_widget;
    const Qt::TextInteractionFlags m_interaction; ///< as the interface file has it
};

} // namespace ui
