#include "ui/ProgressBar.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include <QPainter>
#include <QPainterPath>

namespace ui {

namespace {

constexpr int kHeight = 6;
constexpr int kSteps = 10'000;         // finer than any screen
constexpr int kFrameMilliseconds = 33; // calm movement needs no more
constexpr qreal kPeriodMilliseconds = 3600;
constexpr qreal kLightWidth = 0.32; // of the bar

} // namespace

ProgressBar::ProgressBar(QWidget* parent) : QProgressBar(parent) {
    setTextVisible(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_frames.setInterval(kFrameMilliseconds);
    connect(&m_frames, &QTimer::timeout, this, [this] { update(); });
    setFraction({});
}

void ProgressBar::setRunning(bool running) {
    if (m_running == running)
        return;
    m_running = running;
    updateFrames();
    update();
    emit runningChanged(running);
}

void ProgressBar::setFraction(std::optional<double> fraction) {
    setRange(0, fraction ? kSteps : 0);
    if (fraction)
        setValue(static_cast<int>(std::lround(std::clamp(*fraction, 0.0, 1.0) * kSteps)));
    updateFrames();
    update();
}

QSize ProgressBar::sizeHint() const {
    return {200, kHeight};
}

QSize ProgressBar::minimumSizeHint() const {
    return {40, kHeight};
}

void ProgressBar::showEvent(QShowEvent* event) {
    QProgressBar::showEvent(event);
    updateFrames();
}

void ProgressBar::hideEvent(QHideEvent* event) {
    QProgressBar::hideEvent(event);
    updateFrames();
}

void ProgressBar::updateFrames() {
    const bool glide = m_running && isVisible() && isIndeterminate();
    if (glide == m_frames.isActive())
        return;
    if (glide) {
        m_since.start();
        m_frames.start();
    } else {
        m_frames.stop();
    }
}

qreal ProgressBar::phase() const {
    if (!m_frames.isActive())
        return 0;
    const qreal turn = static_cast<qreal>(m_since.elapsed()) / kPeriodMilliseconds;
    return (1 - std::cos(2 * std::numbers::pi * turn)) / 2;
}

void ProgressBar::paintEvent(QPaintEvent*) {
    const QRectF bar(0, (height() - kHeight) / 2.0, width(), kHeight);
    QPainterPath outline;
    outline.addRoundedRect(bar, kHeight / 2.0, kHeight / 2.0);

    QColor ground = palette().color(QPalette::WindowText);
    ground.setAlphaF(0.13F);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outline, ground);

    QRectF done = bar;
    if (isIndeterminate()) {
        if (!m_running)
            return;
        done.setWidth(bar.width() * kLightWidth);
        done.moveLeft((bar.width() - done.width()) * phase());
    } else {
        done.setWidth(bar.width() * (value() - minimum()) / (maximum() - minimum()));
        if (layoutDirection() == Qt::RightToLeft)
            done.moveRight(bar.right());
        if (done.width() < 0.5)
            return;
        done.setWidth(std::max<qreal>(done.width(), kHeight));
    }
    QPainterPath light;
    light.addRoundedRect(done, kHeight / 2.0, kHeight / 2.0);
    painter.fillPath(light, palette().color(QPalette::Active, QPalette::Link));
}

} // namespace ui
