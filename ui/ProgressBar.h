// A slim bar: filled as far as the work is done, or a light that glides to and fro while it is not
// known how much there is to do. Interface files name it as the class "ui::ProgressBar".
#pragma once

#include <optional>

#include <QElapsedTimer>
#include <QProgressBar>
#include <QTimer>

namespace ui {

class ProgressBar final : public QProgressBar {
    Q_OBJECT

  public:
    explicit ProgressBar(QWidget* parent = nullptr);

    /// Moves, or stands still.
    void setRunning(bool running);
    bool isRunning() const { return m_running; }

    /// How much is done, 0 to 1; none: not known, the light glides while the bar runs.
    void setFraction(std::optional<double> fraction);
    bool isGliding() const { return m_frames.isActive(); }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

  signals:
    void runningChanged(bool running);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

  private:
    void updateFrames();
    bool isIndeterminate() const { return minimum() == maximum(); }
    /// From 0 to 1 and back, slow at both ends.
    qreal phase() const;

    bool m_running = false;
    QTimer m_frames;
    QElapsedTimer m_since;
};

} // namespace ui
