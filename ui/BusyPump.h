// Keeps the window alive while the main thread waits for a tool: it is painted and its bars move,
// but it takes no input. What the user presses meanwhile is dropped, not kept for later: it was
// meant for what was in sight then. Work of the main queue waits as well, since the work under way
// must not be interrupted by other work.
#pragma once

#include <QObject>

namespace ui {

class BusyPump final : public QObject {
  public:
    /// Serves what has come and returns. For whoever waits to call every 15 ms or so, and once more
    /// when the wait is over. Does nothing on another thread than the toolkit's.
    void pump();

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    bool m_pumps = false;
};

} // namespace ui
