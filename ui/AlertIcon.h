// The sign of an alert, drawn: a cross on red, an exclamation mark on amber, an "i" on blue.
#pragma once

#include <QPixmap>

#include "platform/ports/FrontEnd.h"

namespace ui {

/// A square of `points`, drawn for the density `ratio` of the screen.
QPixmap alertIcon(ports::AlertStyle style, int points, qreal ratio);

} // namespace ui
