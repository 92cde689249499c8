// Styled text as the HTML that labels and text browsers show.
#pragma once

#include <QString>

#include "platform/controls/StyledText.h"

namespace ui {

/// Has it one look throughout, so that it needs no HTML?
bool isPlain(const controls::StyledText& text);

/// One paragraph for each line; blanks stay as they are. A line end at the very end begins no
/// further paragraph. Spacing in points, which are the toolkit's logical pixels.
QString asHtml(const controls::StyledText& text);

} // namespace ui
