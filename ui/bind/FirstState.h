// What every kind of control takes from the interface file.
#pragma once

#include <QWidget>

#include "platform/controls/Control.h"

namespace ui {

/// Enabling and visibility as the interface file gives them. To be read before anything else of the
/// control: each change of the model is mirrored into the widget at once.
class FirstState {
  public:
    explicit FirstState(const QWidget& widget)
        : m_enabled(widget.isEnabledTo(widget.window())),
          // every widget is hidden until its window shows; only the file's word counts
          m_hidden(widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide)) {}

    void giveTo(controls::Control& control) const {
        control.setEnabled(m_enabled);
        control.setHidden(m_hidden);
    }

  private:
    bool m_enabled;
    bool m_hidden;
};

} // namespace ui
