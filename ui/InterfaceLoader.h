// Reads one interface file in Qt Designer's format into a dialog. Used by UiFiles.
#pragma once

#include <memory>

#include <QDialog>

namespace ui {

/// The dialog of the file at `path`, with its menu bar, if it has one, at the top. Null when the
/// file is missing or unreadable or its top widget is no dialog. A widget of a class that is
/// neither Qt's nor one of ours is left out.
std::unique_ptr<QDialog> dialogFrom(const QString& path);

} // namespace ui
