#include "ui/Indicators.h"

#include <algorithm>
#include <cmath>

#include "ui/Colours.h"

namespace ui {

namespace {

constexpr qreal kBoxRadius = 4;
constexpr qreal kFrameRadius = 5;
constexpr qreal kDisabledOpacity = 0.45;
constexpr int kSmallestSlider = 28;

QRectF squareIn(const QRect& rect) {
    QRectF square(0, 0, kIndicatorSize - 1, kIndicatorSize - 1);
    square.moveCenter(QRectF(rect).center());
    // half a point off the grid, where a line of one point is sharp
    square.moveTo(std::floor(square.x()) + 0.5, std::floor(square.y()) + 0.5);
    return square;
}

QPointF at(const QRectF& box, qreal x, qreal y) {
    return {box.left() + box.width() * x, box.top() + box.height() * y};
}

} // namespace

void drawIndicator(Indicator kind, const QStyleOption& option, QPainter& painter) {
    const QPalette& palette = option.palette;
    const bool on = option.state & QStyle::State_On;
    const bool mixed = option.state & QStyle::State_NoChange;
    const bool onAccent = option.state & QStyle::State_Selected;
    const bool enabled = option.state & QStyle::State_Enabled;
    const QColor accent = palette.color(QPalette::Active, QPalette::Highlight);
    const QColor full = onAccent ? QColor(Qt::white) : accent;
    const QColor mark = onAccent ? accent : QColor(Qt::white);
    const QColor ground = onAccent ? QColor(Qt::transparent) : palette.color(QPalette::Base);
    const QRectF box = squareIn(option.rect);

    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!enabled)
        painter.setOpacity(kDisabledOpacity);
    painter.setPen(QPen(on || mixed ? full : onAccent ? full : outline(palette), 1));
    painter.setBrush(on || mixed ? full : ground);
    if (kind == Indicator::radioButton)
        painter.drawEllipse(box);
    else
        painter.drawRoundedRect(box, kBoxRadius, kBoxRadius);

    painter.setPen(QPen(mark, 1.9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    if (kind == Indicator::radioButton && on) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(mark);
        painter.drawEllipse(box.center(), box.width() * 0.2, box.width() * 0.2);
    } else if (mixed) {
        painter.drawLine(at(box, 0.27, 0.5), at(box, 0.73, 0.5));
    } else if (on) {
        const QPointF tick[] = {at(box, 0.24, 0.53), at(box, 0.43, 0.72), at(box, 0.77, 0.31)};
        painter.drawPolyline(tick, 3);
    }
    painter.restore();
}

void drawBranch(const QStyleOption& option, QPainter& painter) {
    if (!(option.state & QStyle::State_Children))
        return;
    const bool onAccent = option.state & QStyle::State_Selected;
    const QPointF middle = QRectF(option.rect).center();
    const qreal aside = option.direction == Qt::RightToLeft ? -1 : 1;
    const bool open = option.state & QStyle::State_Open;
    const QPointF down[] = {{-4, -2}, {0, 2}, {4, -2}};
    const QPointF closed[] = {{-2 * aside, -4}, {2 * aside, 0}, {-2 * aside, 4}};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(middle);
    painter.setPen(
        QPen(onAccent ? QColor(Qt::white) : option.palette.color(QPalette::PlaceholderText), 1.7,
             Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPolyline(open ? down : closed, 3);
    painter.restore();
}

void drawFocusRing(const QStyleOptionFocusRect& option, QPainter& painter) {
    if (!(option.state & QStyle::State_KeyboardFocusChange))
        return;
    const QColor ring = option.palette.color(QPalette::Active, QPalette::Link);
    const bool stands =
        contrast(ring, option.palette.color(QPalette::Active, QPalette::Base)) >= kVisible;
    const bool onAccent =
        option.state & QStyle::State_Selected ||
        option.backgroundColor == option.palette.color(QPalette::Active, QPalette::Highlight);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(onAccent || !stands ? QColor(255, 255, 255, 210) : ring, 1.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), kFrameRadius - 1,
                            kFrameRadius - 1);
    painter.restore();
}

void drawFrame(const QStyleOption& option, QPainter& painter) {
    const bool focus =
        (option.state & QStyle::State_HasFocus) && (option.state & QStyle::State_Enabled);
    const qreal width = focus ? kFrameWidth : 1;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(focus ? option.palette.color(QPalette::Active, QPalette::Link)
                              : option.palette.color(QPalette::Mid),
                        width));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(
        QRectF(option.rect).adjusted(width / 2, width / 2, -width / 2, -width / 2), kFrameRadius,
        kFrameRadius);
    painter.restore();
}

QRect scrollBarSlider(const QStyleOptionSlider& option) {
    const bool upright = option.orientation == Qt::Vertical;
    const int groove = upright ? option.rect.height() : option.rect.width();
    const int range = option.maximum - option.minimum;
    int length = groove;
    if (range > 0)
        length = std::clamp(
            static_cast<int>(qint64(groove) * option.pageStep / (qint64(range) + option.pageStep)),
            std::min(kSmallestSlider, groove), groove);
    const int start = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, groove - length, option.upsideDown);
    const QRect& bar = option.rect;
    return upright ? QRect(bar.left(), bar.top() + start, bar.width(), length)
                   : QRect(bar.left() + start, bar.top(), length, bar.height());
}

void drawScrollBar(const QStyleOptionSlider& option, const QRect& slider, QPainter& painter) {
    painter.save();
    painter.fillRect(option.rect, option.palette.color(QPalette::Base));
    if (option.maximum > option.minimum) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        const bool held = option.state & (QStyle::State_Sunken | QStyle::State_MouseOver);
        painter.setBrush(held ? option.palette.color(QPalette::PlaceholderText)
                              : outline(option.palette));
        const QRectF thumb = QRectF(slider).adjusted(3, 3, -3, -3);
        const qreal radius = std::min(thumb.width(), thumb.height()) / 2;
        painter.drawRoundedRect(thumb, radius, radius);
    }
    painter.restore();
}

} // namespace ui
