#include "ui/SessionLoop.h"

#include <algorithm>
#include <optional>

#include <QDialog>
#include <QEventLoop>
#include <QLabel>
#include <QWindow>

#include "ui/HangingSheet.h"
#include "ui/UiFiles.h"
#include "ui/bind/Binding.h"

namespace ui {

class SessionLoop::OpenSession final : private Binding<controls::Window> {
  public:
    using Binding::model;

    explicit OpenSession(controls::Window& window) : Binding(window) {}

    /// Serves what has come, and waits for it where there is nothing.
    int step() {
        if (!m_code)
            m_loop.processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
        return m_code.value_or(kContinues);
    }
    int run() {
        if (!m_code)
            m_loop.exec();
        return m_code.value_or(kAborted);
    }
    void stop(int code) {
        if (!m_code)
            m_code = code;
        m_loop.exit();
        m_loop.wakeUp();
    }

  private:
    void mirror(const controls::Window& window) override {
        if (!window.isVisible())
            stop(kAborted);
    }
    void drawNow() override {}
    void modelDied() override { stop(kAborted); }

    QEventLoop m_loop;
    std::optional<int> m_code;
};

/// A window that hangs on another one.
class SessionLoop::OpenSheet final : private Binding<controls::Window> {
  public:
    using Binding::model;

    OpenSheet(controls::Window& sheet, QDialog& dialog, QDialog& parent)
        : Binding(sheet), m_hanging({.dialog = dialog, .window = parent, .windowGone = [this] {
                                         if (model())
                                             model()->orderOut();
                                     }}) {}
    ~OpenSheet() override { m_hanging.takeOff(); }

  private:
    void mirror(const controls::Window&) override {}
    void drawNow() override {}

    HangingSheet m_hanging;
};

namespace {

/// What a reader of the screen says of a sheet beside its title.
QString wordsOf(const QDialog& dialog) {
    QStringList words;
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        if (label->isVisibleTo(&dialog) && label->textFormat() != Qt::RichText &&
            !label->text().isEmpty())
            words << label->text();
    return words.join('\n');
}

} // namespace

SessionLoop::SessionLoop(const UiFiles& files) : m_files(files) {}

SessionLoop::~SessionLoop() = default;

int SessionLoop::runModalForWindow(controls::Window& window) {
    const Session session = beginModalSession(window);
    const int code = m_sessions[session]->run();
    endModalSession(session);
    window.orderOut();
    return code;
}

void SessionLoop::stopModalWithCode(int code) {
    if (!m_sessions.empty())
        m_sessions.back()->stop(code);
}

ports::ModalLoop::Session SessionLoop::beginModalSession(controls::Window& window) {
    QDialog* dialog = m_files.dialogOf(window);
    QDialog* below = nullptr;
    if (!m_sessions.empty() && m_sessions.back()->model())
        below = m_files.dialogOf(*m_sessions.back()->model());
    if (dialog && below && dialog != below && !dialog->parentWidget()) {
        // so that a desktop keeps it above the window that waits
        dialog->winId();
        below->winId();
        dialog->windowHandle()->setTransientParent(below->windowHandle());
    }
    window.orderFront();
    m_sessions.push_back(std::make_unique<OpenSession>(window));
    if (m_terminated)
        m_sessions.back()->stop(kAborted);
    return m_sessions.size() - 1;
}

int SessionLoop::runModalSession(Session session) {
    return m_sessions[session]->step();
}

void SessionLoop::endModalSession(Session session) {
    m_sessions.resize(session);
}

void SessionLoop::beginSheet(controls::Window& sheet, controls::Window& parent) {
    QDialog* dialog = m_files.dialogOf(sheet);
    QDialog* parentDialog = m_files.dialogOf(parent);
    if (dialog && parentDialog && dialog != parentDialog && parentDialog->isVisible()) {
        dialog->setAccessibleName(dialog->windowTitle());
        dialog->setAccessibleDescription(wordsOf(*dialog));
        m_sheets.push_back(std::make_unique<OpenSheet>(sheet, *dialog, *parentDialog));
        if (sheet.isVisible())
            dialog->show(); // it was in sight as a window of its own
    }
    sheet.orderFront();
}

void SessionLoop::endSheet(controls::Window& sheet) {
    const auto isIt = [&](const auto& open) { return open->model() == &sheet; };
    if (std::ranges::none_of(m_sheets, isIt))
        return;
    sheet.orderOut();
    std::erase_if(m_sheets, [&](const auto& open) { return !open->model() || isIt(open); });
}

void SessionLoop::terminate() {
    m_terminated = true;
    for (const auto& session : m_sessions)
        session->stop(kAborted);
    for (QDialog* dialog : std::vector(m_dialogs))
        dialog->reject();
}

void SessionLoop::runDialog(QDialog& dialog) {
    if (m_terminated)
        return;
    QEventLoop loop;
    QObject::connect(&dialog, &QDialog::finished, &loop, &QEventLoop::quit);
    m_dialogs.push_back(&dialog);
    dialog.show();
    if (dialog.isVisible())
        loop.exec();
    std::erase(m_dialogs, &dialog);
}

} // namespace ui
