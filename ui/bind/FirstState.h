// What every kind of control takes from the interface file.
#pragma once

#include <QWidget>

#include "platform/controls/Control.h"

namespace ui {

/// Enabling and visibility as the interface file gives them.
inline void takeFirstState(controls::Control& control, const QWidget& widget) {
    control.setEnabled(widget.isEnabledTo(widget.window()));
    // every widget is hidden until its window shows; only the file's word counts
    control.setHidden(widget.isHidden() && widget.testAttribute(Qt::WA_WState_ExplicitShowHide));
}

} // namespace ui
