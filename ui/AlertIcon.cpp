#include "ui/AlertIcon.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

namespace ui {

namespace {

// All drawn in a square of 48 by 48.
constexpr qreal kSquare = 48;

struct Sign {
    QRgb top, bottom, ink;
};

Sign signOf(ports::AlertStyle style) {
    switch (style) {
    case ports::AlertStyle::critical:
        return {0xffee5a52, 0xffcc2f35, 0xffffffff};
    case ports::AlertStyle::informational:
        return {0xff3fa9e6, 0xff0f74bd, 0xffffffff};
    case ports::AlertStyle::warning:
        break;
    }
    return {0xffffc93f, 0xfff3a41b, 0xff4a3000};
}

QPainterPath ground(ports::AlertStyle style) {
    QPainterPath path;
    if (style == ports::AlertStyle::warning) {
        // a triangle with round corners: the pen that draws it is wide and round
        path.moveTo(24, 8);
        path.lineTo(43, 40);
        path.lineTo(5, 40);
        path.closeSubpath();
    } else {
        path.addEllipse(QRectF(3, 3, 42, 42));
    }
    return path;
}

void drawMark(ports::AlertStyle style, QPainter& painter) {
    switch (style) {
    case ports::AlertStyle::critical:
        painter.drawLine(QPointF(17.5, 17.5), QPointF(30.5, 30.5));
        painter.drawLine(QPointF(30.5, 17.5), QPointF(17.5, 30.5));
        break;
    case ports::AlertStyle::informational:
        painter.drawLine(QPointF(24, 22.5), QPointF(24, 33));
        painter.drawPoint(QPointF(24, 15));
        break;
    case ports::AlertStyle::warning:
        painter.drawLine(QPointF(24, 18), QPointF(24, 28));
        painter.drawPoint(QPointF(24, 35));
        break;
    }
}

} // namespace

QPixmap alertIcon(ports::AlertStyle style, int points, qreal ratio) {
    QPixmap pixmap(QSize(points, points) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(points / kSquare, points / kSquare);

    const Sign sign = signOf(style);
    QLinearGradient shade(0, 2, 0, 46);
    shade.setColorAt(0, QColor(sign.top));
    shade.setColorAt(1, QColor(sign.bottom));
    painter.setBrush(shade);
    painter.setPen(style == ports::AlertStyle::warning
                       ? QPen(QBrush(shade), 6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
                       : QPen(Qt::NoPen));
    painter.drawPath(ground(style));
    painter.setPen(QPen(QColor(sign.ink), 4.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    drawMark(style, painter);
    return pixmap;
}

} // namespace ui
