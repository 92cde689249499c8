#include "tests/wizardwindow/WizardWindow.h"

#include <filesystem>
#include <utility>

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QPointer>
#include <QRadioButton>
#include <QTest>
#include <QWindow>

#include "app/unattended/AnswersDriver.h"
#include "app/unattended/UnattendedFrontEnd.h"
#include "cp/private/SystemFolders.h"
#include "platform/posix/EnglishTexts.h"
#include "tests/wizardwindow/AccessibleWindow.h"
#include "ui/SpokenLanguage.h"

namespace tests {

namespace {

using namespace std::chrono_literals;

constexpr int kMostTabs = 40;
constexpr int kInIndicator = 8; ///< of a radio button, from its edge

template <std::uint32_t launchMode>
std::int32_t openIn(ec::ecController& wizard) {
    return wizard.showCustomizerFromMenu(launchMode);
}

int s_argc = 1;
char s_name[] = "wizard_window_tests";
char* s_argv[] = {s_name, nullptr};

} // namespace

const WizardMode modes::kFull{"full", openIn<ec::launch::kFirstInstall>};
const WizardMode modes::kShort{"short", openIn<ec::launch::kShortInstall>};
const WizardMode modes::kCustomize{"customize", openIn<ec::launch::kCustomize>};
const WizardMode modes::kPenmark{"penmark", openIn<ec::launch::kPenmark>};
const WizardMode modes::kUpdate{
    "update", [](ec::ecController& wizard) { return wizard.showPatcherFromMenu(); }};

std::string described(const ports::RowShown& row) {
    std::string text = std::to_string(row.state) + ": page " + std::to_string(row.page) + " \"" +
                       row.title + "\" " + row.identity + " " + std::to_string(row.current) + " of";
    for (const std::string& name : row.outline)
        text += " " + name + ",";
    return text;
}

WizardSystem::WizardSystem() {
    namespace fs = std::filesystem;
    const fs::path top = folder.path();
    fakes.places = {.root = (top / "root").string(),
                    .home = (top / "home").string(),
                    .temporary = (top / "temporary").string()};
    for (const char* made : {"root/Applications", "home/Library/Logs", "temporary"})
        fs::create_directories(top / made);
    Corvaldine::CP::Private::set_system_folder_bases({.root = fakes.places.root,
                                                      .home = fakes.places.home,
                                                      .temporary = fakes.places.temporary});
    fakes.bundles.resourceFolder = SCRIVEL_BUNDLE_RESOURCES;
    fakes.watchers.rowShown = [this](const auto& row) { rows.push_back(described(row)); };
    fakes.watchers.answered = [this](const auto& question) { questions.push_back(question); };
}

WizardSystem::~WizardSystem() {
    Corvaldine::CP::Private::set_system_folder_bases({});
}

ports::Host WizardSystem::host(const FrontEnd& frontEnd) {
    return {.places = fakes.places,
            .clock = fakes.clock,
            .systemLog = fakes.systemLog,
            .streams = fakes.streams,
            .tools = fakes.tools,
            .administrator = fakes.administrator,
            .applications = fakes.applications,
            .finderFiles = fakes.finderFiles,
            .bundles = fakes.bundles,
            .propertyLists = fakes.propertyLists,
            .texts = frontEnd.texts,
            .mainQueue = frontEnd.mainQueue,
            .backgroundQueue = fakes.backgroundQueue,
            .interfaceFiles = frontEnd.interfaceFiles,
            .alertSheets = frontEnd.alertSheets,
            .modalLoop = frontEnd.modalLoop,
            .appearance = frontEnd.appearance,
            .fileChoosers = fakes.fileChoosers,
            .reader = frontEnd.reader,
            .beeper = frontEnd.beeper,
            .watchers = fakes.watchers};
}

std::vector<std::string> rowsUnattended(const WizardMode& mode, const std::string& answers) {
    WizardSystem system;
    fakes::FakeMainQueue& queue = system.fakes.mainQueue;
    posix::EnglishTexts texts(SCRIVEL_BUNDLE_RESOURCES);
    app::EventStream events(system.fakes.clock, queue);
    ec::ecController* controller = nullptr;
    app::AnswersDriver driver({.events = events,
                               .answers = app::AnswersFile::parse(answers, "answers"),
                               .agree = true,
                               .appsAreRunning = [] { return false; },
                               .pause = [](auto) { return true; },
                               .firstButton = "m_button",
                               .controller = [&] { return controller; }});
    app::UnattendedFrontEnd noWindow({.driver = driver,
                                      .background = system.fakes.backgroundQueue,
                                      .resourceFolder = SCRIVEL_BUNDLE_RESOURCES,
                                      .runPending = [&] { queue.runPending(); },
                                      .waitForWork = [](auto) {}});
    ec::ecController wizard(
        system.host({texts, queue, noWindow, noWindow, noWindow, noWindow, noWindow, noWindow}),
        system.rules, system.root);
    controller = &wizard;
    mode.open(wizard);
    EXPECT_EQ(driver.failure().value_or(""), "") << mode.name;
    EXPECT_EQ(driver.cancelled().value_or(""), "") << mode.name;
    return system.rows;
}

WizardWindow::WizardWindow(const std::string& language, const std::string& translations)
    : texts({.resourceFolder = translations, .languages = {language}}),
      frontEnd({.argc = s_argc,
                .argv = s_argv,
                .resourceFolder = SCRIVEL_BUNDLE_RESOURCES,
                .texts = texts,
                .mainQueueDescriptor = queue.descriptor(),
                .runPending = [this] { queue.runPending(); },
                .dark = false}),
      wizard(system.host({texts, queue, frontEnd.interfaceFiles(), frontEnd.alertSheets(),
                          frontEnd.modalLoop(), frontEnd.appearance(), frontEnd.reader(),
                          frontEnd.beeper()}),
             system.rules, system.root) {
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &m_context, [this] { loopWaits(); });
}

WizardWindow::~WizardWindow() = default;

std::int32_t WizardWindow::walk(const WizardMode& mode, std::deque<Deed> deeds) {
    m_deeds = std::move(deeds);
    const std::int32_t result = mode.open(wizard);
    EXPECT_TRUE(m_deeds.empty()) << m_deeds.size() << " deeds are left";
    EXPECT_FALSE(wizard.window.isVisible());
    EXPECT_EQ(front(), nullptr);
    return result;
}

/// A person acts when nothing happens any more.
void WizardWindow::loopWaits() {
    if (std::exchange(m_isDue, true))
        return;
    QMetaObject::invokeMethod(&m_context, [this] { actNext(); }, Qt::QueuedConnection);
}

void WizardWindow::actNext() {
    if (m_deeds.empty()) {
        ADD_FAILURE() << "page " << wizard.ecTabView.selected() << " waits with nothing left to do";
        frontEnd.modalLoop().terminate();
        wizard.window.orderOut();
        m_isDue = false;
        return;
    }
    if (front() && qApp->focusWindow() != front()->windowHandle() && !m_wasActivated) {
        // as a window manager does when a window has gone; the platform tells it by an event
        front()->activateWindow();
        m_wasActivated = true;
        m_isDue = false;
        return;
    }
    m_wasActivated = false;
    const Deed deed = std::move(m_deeds.front());
    m_deeds.pop_front();
    m_isDue = false; // the deed may run a loop of its own, where the next one is done
    deed();
}

QDialog* WizardWindow::dialog() {
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->isVisible() && widget->findChild<QWidget*>("ecTabView"))
            return qobject_cast<QDialog*>(widget);
    return nullptr;
}

QWidget* WizardWindow::front() {
    return QApplication::activeModalWidget();
}

QWidget* WizardWindow::focus() {
    return QApplication::focusWidget();
}

std::string WizardWindow::focusName() {
    const QWidget* widget = focus();
    while (widget && widget->objectName().isEmpty())
        widget = widget->parentWidget();
    return widget ? widget->objectName().toStdString() : "nothing";
}

void WizardWindow::press(int key, Qt::KeyboardModifiers modifiers) {
    const QPointer<QWindow> window = qApp->focusWindow();
    ASSERT_NE(window, nullptr) << "no window has the keyboard";
    QTest::keyPress(window, static_cast<Qt::Key>(key), modifiers);
    if (window && window->isVisible())
        QTest::keyRelease(window, static_cast<Qt::Key>(key), modifiers);
}

void WizardWindow::press(const QKeySequence& keys) {
    ASSERT_EQ(keys.count(), 1);
    press(keys[0].key(), keys[0].keyboardModifiers());
}

void WizardWindow::type(const char* text) {
    for (; *text; ++text)
        QTest::keyClick(qApp->focusWindow(), *text);
}

void WizardWindow::tabTo(const std::string& name) {
    for (int i = 0; i < kMostTabs && focusName() != name; ++i)
        press(Qt::Key_Tab);
    EXPECT_EQ(focusName(), name) << "the Tab key does not lead there";
}

void WizardWindow::click(const char* name) {
    auto* widget = find(name);
    ASSERT_NE(widget, nullptr);
    ASSERT_TRUE(widget->isVisible()) << name;
    clickAt(*widget);
}

void WizardWindow::clickAt(QWidget& widget) {
    QPoint at = widget.rect().center();
    if (qobject_cast<QRadioButton*>(&widget)) // reaches farther than its words
        at.setX(widget.isRightToLeft() ? widget.width() - kInIndicator : kInIndicator);
    QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                      widget.mapTo(widget.window(), at));
}

WizardWindow::Deed WizardWindow::page(int number) {
    return [this, number] {
        SCOPED_TRACE("page " + std::to_string(number));
        EXPECT_EQ(wizard.ecTabView.selected(), number);
        ASSERT_TRUE(front() == dialog());
        expectAccessible(*dialog());
        expectTabGoesRound(*dialog());
    };
}

} // namespace tests
