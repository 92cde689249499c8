// What keys mean in our windows and sheets.
#pragma once

class QEvent;

namespace ui {

/// Return or Enter that repeats because it is held down: the press that opened a sheet or began an
/// installation must not answer or cancel it as well.
bool isHeldReturn(const QEvent& event);

/// Escape, or what the platform uses for it.
bool isEscape(const QEvent& event);

/// The platform's key for closing a window (Ctrl-W, Cmd-W).
bool isCloseKey(const QEvent& event);

} // namespace ui
