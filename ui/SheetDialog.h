// One alert as a sheet: sign, message, further words, buttons. It hangs at the top of its window,
// which is shaded and takes no input meanwhile. Made by Sheets.
#pragma once

#include <functional>
#include <memory>

#include <QDialog>

#include "platform/ports/FrontEnd.h"

class QBoxLayout;

namespace ui {

class HangingSheet;

class SheetDialog final : public QDialog {
  public:
    /// `answered` gets the index of the button, once, from inside the event that chose it; the
    /// sheet is out of sight by then. A sheet whose window is ordered out goes with it, unanswered,
    /// and deletes itself. `parent` may be null; the sheet is then in the middle of the
    /// screen.
    SheetDialog(const ports::Alert& alert, QWidget* parent, std::function<void(int)> answered);
    ~SheetDialog() override;

    /// Escape, Return and the close button of a title bar come here as well.
    void answer(int index);
    bool isAnswered() const { return !m_answered; }
    void reject() override { answer(m_escapeButton); }

  protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void addButtons(const ports::Alert& alert, QBoxLayout& row);
    void goUnanswered();

    std::function<void(int)> m_answered;
    int m_escapeButton;
    std::unique_ptr<HangingSheet> m_hanging; // none without a window
};

} // namespace ui
