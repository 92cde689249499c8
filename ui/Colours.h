// The colours of the front end for the light and the dark appearance, and the measure that they are
// held to: text must stand out from its ground by 4.5 to 1 (WCAG 2.1, level AA).
#pragma once

#include <QColor>
#include <QPalette>

#include "platform/controls/StyledText.h"

namespace ui {

inline constexpr double kLegible = 4.5;
/// What has no words (boxes, rings, sliders) must stand out by 3 to 1.
inline constexpr double kVisible = 3;

/// Contrast of two opaque colours, 1 (none) to 21 (black on white), as WCAG 2.1 defines it.
double contrast(const QColor& one, const QColor& other);

QColor toQColor(const controls::Colour& colour);

/// Every role of the appearance. `Highlight` is the accent under white text, `Link` the one that
/// stands alone (progress), `Mid` the colour of lines, `PlaceholderText` that of secondary text.
QPalette paletteFor(bool dark);

/// Of what is only an outline: an empty check box, the slider of a scroll bar.
QColor outline(const QPalette& palette);

/// A link among the words of a text.
QColor linkColour(const QPalette& palette);

/// The faces of a button.
struct ButtonFaces {
    QColor rest;
    QColor hover;
    QColor pressed;
    QColor border;
};

/// A plain button, or the default one in the accent colour.
ButtonFaces buttonFaces(const QPalette& palette, bool isDefault);

/// For a title that carries a colour of its own: faces on which that colour is legible in both
/// appearances; light ones for a dark title.
ButtonFaces buttonFacesUnder(const QColor& title, const QPalette& palette, bool isDefault);

} // namespace ui
