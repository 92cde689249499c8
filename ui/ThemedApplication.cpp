#include "ui/ThemedApplication.h"

#include <QIcon>
#include <QPalette>

#include "ui/Theme.h"

namespace ui {

namespace {

constexpr int kIconSize = 128;

// The toolkit ends the process when it can't open the display; its only hook is the handler of
// messages, a plain function without a context.
const std::function<void()>* s_onNoDisplay = nullptr;

void onMessageWhileStarting(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type == QtFatalMsg && s_onNoDisplay && *s_onNoDisplay)
        (*s_onNoDisplay)();
}

/// Holds the handler while the application object is made.
class StartUp {
  public:
    explicit StartUp(const std::function<void()>& onNoDisplay) {
        s_onNoDisplay = &onNoDisplay;
        if (onNoDisplay)
            m_previous = qInstallMessageHandler(onMessageWhileStarting);
    }
    ~StartUp() {
        if (s_onNoDisplay && *s_onNoDisplay)
            qInstallMessageHandler(m_previous);
        s_onNoDisplay = nullptr;
    }
    StartUp(const StartUp&) = delete;
    StartUp& operator=(const StartUp&) = delete;

    int& argumentCount(int& argc) const { return argc; }

  private:
    QtMessageHandler m_previous = nullptr;
};

bool wantsDark(const ThemedApplication::Needs& needs) {
    std::optional<bool> dark = needs.dark;
    if (!dark && needs.desktopIsDark)
        dark = needs.desktopIsDark();
    return dark.value_or(QApplication::palette().color(QPalette::Window).lightness() < 128);
}

} // namespace

ThemedApplication::ThemedApplication(const Needs& needs)
    : m_application(StartUp(needs.onNoDisplay).argumentCount(needs.argc), needs.argv),
      m_language(needs.texts.languageTag()), m_translator(needs.texts),
      m_pictures(QString::fromStdString(needs.resourceFolder)), m_dark(wantsDark(needs)) {
    Theme::install(m_application, m_dark);
    QApplication::installTranslator(&m_translator);
    // A session ends by its code, not because no window is in sight.
    QApplication::setQuitOnLastWindowClosed(false);
    const QPixmap icon = m_pictures.square("Scrivel.icns", kIconSize, 1);
    if (!icon.isNull())
        QApplication::setWindowIcon(QIcon(icon));
}

ThemedApplication::~ThemedApplication() {
    QApplication::removeTranslator(&m_translator);
}

} // namespace ui
