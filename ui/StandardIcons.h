// The icons of file dialogs and small buttons, drawn as lines in the appearance's own ink. Used by
// Theme for the toolkit's standard icons.
#pragma once

#include <QIcon>
#include <QStyle>

namespace ui {

/// Null for an icon that has no drawing of ours.
QIcon standardIconOf(QStyle::StandardPixmap icon, const QPalette& palette);

/// An application in a list of files.
QIcon applicationIcon();

} // namespace ui
