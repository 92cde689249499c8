// Modal sessions of windows, one inside the other, and the sheets among the windows of UiFiles. The
// window that came into sight last takes the input. Main thread only; the main queue is drained by
// the front end's notifier, which every loop serves.
#pragma once

#include <memory>
#include <vector>

#include "platform/ports/FrontEnd.h"

class QDialog;

namespace ui {

class UiFiles;

class SessionLoop final : public ports::ModalLoop {
  public:
    explicit SessionLoop(const UiFiles& files);
    ~SessionLoop() override;

    int runModalForWindow(controls::Window& window) override;
    /// A session that is ending already keeps its code.
    void stopModalWithCode(int code) override;
    Session beginModalSession(controls::Window& window) override;
    int runModalSession(Session session) override;
    void endModalSession(Session session) override;
    /// A window that no interface file has given a dialog, or whose parent has none, is only shown.
    void beginSheet(controls::Window& sheet, controls::Window& parent) override;
    void endSheet(controls::Window& sheet) override;
    void terminate() override;

    /// Shows a dialog of the front end's own and returns when it is finished; when the program ends
    /// it is rejected.
    void runDialog(QDialog& dialog);

  private:
    class OpenSession;
    class OpenSheet;

    const UiFiles& m_files;
    std::vector<std::unique_ptr<OpenSession>> m_sessions;
    std::vector<std::unique_ptr<OpenSheet>> m_sheets;
    std::vector<QDialog*> m_dialogs;
    bool m_terminated = false;
};

} // namespace ui
