#include "tests/ui/Stage.h"

#include <fcntl.h>
#include <unistd.h>

#include <cstdio>
#include <exception>
#include <stdexcept>

#include <gmock/gmock.h>

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QPainter>
#include <QTest>
#include <QWidget>

#include "ui/SheetDialog.h"

namespace stage {

ui::TranslatedTexts shippedTexts(const std::string& language) {
    return ui::TranslatedTexts(
        {.resourceFolder = SCRIVEL_BUNDLE_RESOURCES, .languages = {language}});
}

std::string formatted(const ports::LocalizedTexts& texts, ports::TextKey key,
                      std::initializer_list<std::string_view> values) {
    std::string text = texts.lookUp(key);
    std::size_t at = 0;
    for (const std::string_view value : values) {
        at = text.find("%@", at);
        if (at == std::string::npos)
            break;
        text.replace(at, 2, value);
        at += value.size();
    }
    return text;
}

Resources::Resources() {
    QFile::copy(SCRIVEL_RESOURCES "/ScrivelInstaller.ui", m_folder.filePath("ScrivelInstaller.ui"));
    const QDir pictures(SCRIVEL_PICTURES);
    for (const QString& name : pictures.entryList({"*.icns"}))
        QFile::copy(pictures.filePath(name), m_folder.filePath(name));
}

void Resources::write(const QString& name, const QByteArray& content) const {
    QFile::remove(m_folder.filePath(name));
    QFile file(m_folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        throw std::runtime_error("cannot write " + name.toStdString());
}

PipeQueue::PipeQueue() {
    if (pipe2(m_ends, O_CLOEXEC | O_NONBLOCK) != 0)
        throw std::runtime_error("no pipe");
}

PipeQueue::~PipeQueue() {
    close(m_ends[0]);
    close(m_ends[1]);
}

void PipeQueue::post(std::function<void()> work) {
    {
        const std::lock_guard lock(m_mutex);
        m_work.push_back(std::move(work));
    }
    std::ignore = write(m_ends[1], "!", 1); // a full pipe is readable as well
}

void PipeQueue::sync(const std::function<void()>& work) {
    bool done = false;
    std::exception_ptr thrown;
    post([&] {
        try {
            work();
        } catch (...) {
            thrown = std::current_exception();
        }
        const std::lock_guard lock(m_mutex);
        done = true;
        m_finished.notify_all(); // under the lock: what it guards lives on the waiting stack
    });
    {
        std::unique_lock lock(m_mutex);
        m_finished.wait(lock, [&] { return done; });
    }
    if (thrown)
        std::rethrow_exception(thrown);
}

void PipeQueue::runPending() {
    char bytes[64];
    while (read(m_ends[0], bytes, sizeof bytes) > 0) {
    }
    for (;;) {
        std::function<void()> work;
        {
            const std::lock_guard lock(m_mutex);
            if (m_work.empty())
                return;
            work = std::move(m_work.front());
            m_work.pop_front();
        }
        work();
    }
}

void InstallerModels::setBlackTitle(const std::string& title) {
    m_button.setAttributedTitle(controls::StyledText::coloured(title, controls::Colour::black()));
}

void InstallerModels::beginInstalling(const ports::LocalizedTexts& texts) {
    setBlackTitle(texts.lookUp("Cancel"));
    m_progressIndicator.setHidden(false);
    m_progressIndicator.startAnimation();
    m_statusTextField.setText(formatted(texts, "Extracting %@…", {"Scrivel 21"}));
}

ports::Alert runningAlert(const ports::LocalizedTexts& texts) {
    return {.style = ports::AlertStyle::critical,
            .message = formatted(
                texts, "Scrivel and Microsoft Word cannot be open during %@ installation.",
                {"Scrivel 21"}),
            .informative = texts.lookUp("Please quit Scrivel and Microsoft Word and click the OK "
                                        "button to continue, or click the Quit Installer button to "
                                        "quit this installer."),
            .buttons = {texts.lookUp("OK"), texts.lookUp("Quit Installer")}};
}

ports::Alert overwriteAlert(const ports::LocalizedTexts& texts) {
    return {.style = ports::AlertStyle::warning,
            .message = formatted(texts, "Would you like to overwrite the %@ at /Applications/%@?",
                                 {"Scrivel 21", "Scrivel 21"}),
            .informative = formatted(texts,
                                     "You are about to install %@ version %@, but version %@ is "
                                     "already installed.  This cannot be undone.",
                                     {"Scrivel 21", "21.0.0.19023", "21.0.0.18440"}),
            .buttons = {texts.lookUp("No"), texts.lookUp("Yes")},
            .escapeButton = 0};
}

ports::Alert unableAlert(const ports::LocalizedTexts& texts) {
    return {.style = ports::AlertStyle::critical,
            .message = formatted(texts, "Unable to retreived required files for %@ installation.",
                                 {"Scrivel 21"}),
            .informative = texts.lookUp("Please try again later."),
            .buttons = {texts.lookUp("OK")}};
}

QImage pictureOf(const QWidget& window) {
    QPixmap screen = const_cast<QWidget&>(window).grab();
    QPainter painter(&screen);
    for (QWidget* other : QApplication::topLevelWidgets())
        if (other->isVisible() && other->parentWidget() == &window)
            painter.drawPixmap(other->geometry().topLeft() - window.geometry().topLeft(),
                               other->grab());
    painter.end();
    return screen.toImage();
}

namespace {

class FrontEnvironment final : public testing::Environment {
  public:
    FrontEnvironment(int& argc, char** argv) : m_argc(argc), m_argv(argv) {}
    void SetUp() override { s_front = std::make_unique<Front>(m_argc, m_argv); }
    void TearDown() override { s_front.reset(); }

    static std::unique_ptr<Front> s_front;

  private:
    int& m_argc;
    char** m_argv;
};

std::unique_ptr<Front> FrontEnvironment::s_front;

void dropOffscreenComplaints(QtMsgType type, const QMessageLogContext& context,
                             const QString& message) {
    if (!message.startsWith("This plugin does not support"))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

} // namespace

Surroundings::Surroundings() {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("XDG_RUNTIME_DIR", m_runtime.path().toLocal8Bit());
    qputenv("LC_ALL", "C.UTF-8");
    qInstallMessageHandler(dropOffscreenComplaints);
}

Front::Front(int& argc, char** argv)
    : frontEnd({.argc = argc,
                .argv = argv,
                .resourceFolder = resources.folder(),
                .texts = texts,
                .mainQueueDescriptor = queue.descriptor(),
                .runPending = [this] { queue.runPending(); },
                .dark = false}) {}

Front& front() {
    return *FrontEnvironment::s_front;
}

int runTests(int argc, char** argv) {
    const Surroundings surroundings;
    testing::InitGoogleMock(&argc, argv);
    testing::AddGlobalTestEnvironment(new FrontEnvironment(argc, argv));
    return RUN_ALL_TESTS();
}

QDialog* dialogOnScreen() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->objectName() == "window" && widget->isVisible())
            return qobject_cast<QDialog*>(widget);
    return nullptr;
}

ui::SheetDialog* sheetOnScreen() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* sheet = dynamic_cast<ui::SheetDialog*>(widget); sheet && sheet->isVisible())
            return sheet;
    return nullptr;
}

bool waitUntil(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, 10'000);
}

} // namespace stage
