// How check boxes, radio buttons, focus rings, frames and scroll bars are drawn. Used by Theme.
#pragma once

#include <QPainter>
#include <QStyleOption>
#include <QStyleOptionSlider>

namespace ui {

/// Edge of a check box or radio button, in points.
inline constexpr int kIndicatorSize = 16;
/// Of the frame round a list, a text or a field; the ring of the one with the keyboard fills it.
inline constexpr int kFrameWidth = 2;
inline constexpr int kScrollBarExtent = 12;

enum class Indicator { checkBox, radioButton };

/// Off, on (State_On) or mixed (State_NoChange), in the middle of the option's rectangle. On a
/// selected row (State_Selected) the colours change places, so that the mark stays in sight.
void drawIndicator(Indicator kind, const QStyleOption& option, QPainter& painter);

/// The arrow beside a row of a tree that has rows below it: aside, and down when they are shown.
void drawBranch(const QStyleOption& option, QPainter& painter);

/// The ring round whatever has the keyboard.
void drawFocusRing(const QStyleOptionFocusRect& option, QPainter& painter);

/// The frame round a list, a text or a field, with the ring when it has the keyboard.
void drawFrame(const QStyleOption& option, QPainter& painter);

/// The ground and the slider of a scroll bar without buttons.
void drawScrollBar(const QStyleOptionSlider& option, const QRect& slider, QPainter& painter);
QRect scrollBarSlider(const QStyleOptionSlider& option);

} // namespace ui
