// Hangs a dialog on a window as a sheet: at the top of the window, which is shaded and takes no
// input meanwhile. The one look of every sheet, whatever is in it. Announces the sheet to assistive
// tools by its accessible name and description when it comes into sight.
#pragma once

#include <functional>

#include <QDialog>
#include <QPointer>

namespace ui {

class HangingSheet final : public QObject {
  public:
    struct Needs {
        /// Becomes a child of the window, which is then its parent.
        QDialog& dialog;
        QWidget& window;
        /// The window has gone out of sight, and with it the sheet.
        std::function<void()> windowGone;
    };
    /// Before the dialog is shown.
    explicit HangingSheet(Needs needs);
    ~HangingSheet() override;

    /// Makes the dialog, which is out of sight by then, a window of its own again.
    void takeOff();

  private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void place();
    void announce();

    QPointer<QDialog> m_dialog;
    QPointer<QWidget> m_window;
    std::function<void()> m_windowGone;
    QPointer<QWidget> m_shade; // a child of the window, which may die first
};

} // namespace ui
