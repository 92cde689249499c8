// Makes pictures of one way through the wizard: the real controller in the real front end over the
// real adapters, worked as a user works it.
//
//   renderWizard WALK SUFFIX FOLDER ROOT HOME
//
// Each page that comes into sight becomes FOLDER/wizard-WALK-PAGE[-WHAT]SUFFIX.png. Appearance,
// density and language are those of SCRIVEL_APPEARANCE, QT_SCALE_FACTOR and LANG. The program finds
// resources and tools beside itself, as the product does: it is to be started from a bundle's
// Contents/MacOS folder. Works on ROOT and HOME only.
#include <algorithm>
#include <array>
#include <cstdio>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include <QAbstractButton>
#include <QApplication>
#include <QFileDialog>
#include <QTimer>

#include "app/Program.h"
#include "app/unattended/StepPerformer.h"
#include "tests/ui/Stage.h"
#include "wizard/ecController.h"

namespace {

constexpr int kNothingFound = 18; // the page of a patcher that has nothing to do
constexpr int kBetweenDeeds = 40; // milliseconds in which the window paints itself

/// The wizard's window, not a sheet that hangs on it.
QWidget* windowInSight() {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (top->isVisible() && top->objectName() == "window" && !top->parentWidget())
            return top;
    return nullptr;
}

/// The walker: the wizard, and what is still to be done with it.
class Walk final : private controls::Control::Observer {
  public:
    using Deed = std::function<void(Walk&)>;

    Walk(ec::ecController& itsWizard, const ports::Host& itsHost, QString pictures, QString suffix)
        : wizard(itsWizard), host(itsHost), m_pictures(std::move(pictures)),
          m_suffix(std::move(suffix)) {
        wizard.window.addObserver(*this);
        wizard.processingText.addObserver(*this);
    }
    ~Walk() {
        wizard.processingText.removeObserver(*this);
        wizard.window.removeObserver(*this);
    }

    ec::ecController& wizard;
    const ports::Host& host;

    /// One deed at a time, whenever the event loop has nothing to do, also while a sheet is open.
    void begin(std::deque<Deed> deeds) {
        m_deeds = std::move(deeds);
        later();
    }
    /// The window as it is now, with what hangs on it; the last one of a name stays.
    void take(const char* what = "") {
        const QWidget* window = windowInSight();
        save(window ? stage::pictureOf(*window) : QImage(), what);
    }
    void save(const QImage& picture, const char* what) {
        const QString page = QString("%1").arg(wizard.ecTabView.selected(), 2, 10, QChar('0'));
        const QString file = m_pictures + page + (*what ? "-" : "") + what + m_suffix + ".png";
        if (picture.save(file))
            ++m_taken;
        else
            fail("can't write " + file.toStdString());
    }
    /// A component of that name (English, as the rules have it); null with a message for none.
    ec::ecItem* component(const std::string& name) {
        ec::ecItem* item = nullptr;
        if (const auto refusal = app::lookUpComponent(wizard, name, item))
            fail(*refusal);
        return item;
    }
    /// The button of that name in the sheet.
    void clickInSheet(const char* name) {
        for (QWidget* top : QApplication::topLevelWidgets())
            if (auto* button = top->findChild<QAbstractButton*>(name);
                button && top->parentWidget() && top->isVisible())
                return button->click();
        fail(std::string("no sheet has a button ") + name);
    }
    /// The page of work is in sight without any.
    void pretendToWork(bool pretends) { m_pretendsToWork = pretends; }
    bool succeeded() const { return !m_failed && m_deeds.empty() && m_taken > 0; }

  private:
    void fail(const std::string& why) {
        std::fprintf(stderr, "renderWizard: %s\n", why.c_str());
        m_failed = true;
    }
    /// Nobody can do anything while the wizard works, but the window lives on.
    bool isAtWork() const {
        const bool turns = wizard.progress.isRunning() || wizard.custProgress.isRunning();
        return !m_pretendsToWork && turns && !wizard.nextBtn.isEnabled();
    }
    void later() {
        QTimer::singleShot(kBetweenDeeds, qApp, [this] {
            if (isAtWork())
                return later();
            if (m_deeds.empty())
                return wizard.window.orderOut();
            const Deed deed = std::move(m_deeds.front());
            m_deeds.pop_front();
            later(); // before the deed, which may open a sheet and wait for its answer
            deed(*this);
        });
    }
    /// A page of work is in sight only until the work is done.
    void takeWork() {
        if (wizard.custProgress.isRunning() && wizard.ecTabView.selected() == 0)
            take();
        if (wizard.progress.isRunning() && wizard.ecTabView.selected() == 10)
            take();
    }
    void controlChanged(controls::Control&) override { takeWork(); }
    void displayNow(controls::Control&) override { takeWork(); }

    std::deque<Deed> m_deeds;
    int m_taken = 0;
    QString m_pictures;
    QString m_suffix;
    bool m_failed = false;
    bool m_pretendsToWork = false;
};

void take(Walk& walk) {
    walk.take();
}
void next(Walk& walk) {
    walk.wizard.nextBtn.press();
}
void agree(Walk& walk) {
    walk.wizard.agreeBtns.press(0);
    walk.take("agreed");
}
void chooseComponents(Walk& walk) {
    for (const char* name : {"Penmark add-in", "History", "Medicine", "Spotlight importer"})
        walk.wizard.ecOutlineView.press(walk.component(name));
    walk.wizard.ecOutlineView.select(walk.component("Penmark add-in"));
}
void askForUninstall(Walk& walk) {
    walk.wizard.uninstallBtn.press();
}
void choosePenmarkUninstall(Walk& walk) {
    walk.wizard.matSVWInstall.press(1);
}
void answerNo(Walk& walk) {
    walk.take("question");
    walk.clickInSheet("defBtn");
}
void answerYes(Walk& walk) {
    walk.take("question");
    walk.clickInSheet("altBtn");
}
void readHelp(Walk& walk) {
    walk.wizard.helpBtn.press();
}
void readLog(Walk& walk) {
    walk.wizard.logBtn.press();
}
Walk::Deed closeReader(const char* what) {
    return [what](Walk& walk) {
        walk.take(what);
        walk.clickInSheet("closeReader");
    };
}

/// A page without its way there, with the title that the tables give it and the buttons that its
/// entry leaves.
Walk::Deed show(int page) {
    return [page](Walk& walk) {
        ec::ecController& wizard = walk.wizard;
        wizard.ecTabView.select(page);
        std::string title;
        for (const ec::PageTitle& its : ec::gInstallStateLabels)
            if (its.page == page)
                title = walk.host.texts.lookUp(its.title);
        wizard.titleText.setText(title);
        const bool isLast = !wizard.logBtn.isHidden() || page == kNothingFound;
        wizard.runSelector(isLast ? "setDone" : "enableButtons");
        if (!isLast)
            wizard.runSelector("setNext");
        if (page != ec::page::kQuitWord)
            return;
        wizard.backBtn.setEnabled(false);
        wizard.nextBtn.setTitle(walk.host.texts.lookUp("Retry"));
    };
}
void openPanel(Walk& walk) {
    ports::Chooser chooser;
    chooser.title = walk.wizard.window.title();
    chooser.folder = walk.host.places.system("/Applications");
    chooser.types = {"app"};
    (void)walk.host.fileChoosers.choose(chooser); // nobody chooses
}
/// A panel is a window of its own: it has its own picture.
void closePanel(Walk& walk) {
    for (QWidget* top : QApplication::topLevelWidgets())
        if (auto* panel = qobject_cast<QFileDialog*>(top); panel && panel->isVisible()) {
            walk.save(panel->grab().toImage(), "panel");
            panel->reject();
        }
}

void showLocations(Walk& walk) {
    walk.wizard.locationsBtn.press();
    walk.wizard.acTbl.selectRow(0);
}
void hideLocations(Walk& walk) {
    walk.wizard.acDoneBtn.press();
}

/// A folder whose path needs several lines.
constexpr const char* kFarFolder =
    "/Applications/Departments/Comparative Literature and Linguistics/Shared Software for the "
    "Reading Room/Reference Management/Versions kept for older manuscripts/Scrivel 21";

/// What a run on a machine with all of it would say.
void fillPages(Walk& walk) {
    walk.wizard.processingText.setText("Processing: Penmark add-in");
    using Result = ec::ComponentOutcome::Result;
    walk.wizard.outcomes = {
        {.name = "Penmark add-in", .mode = ec::OpMode::copy, .result = Result::installed},
        {.name = "History", .mode = ec::OpMode::remove, .result = Result::removed},
        {.name = "Physics", .mode = ec::OpMode::copy, .present = true},
        {.name = "Spotlight importer",
         .mode = ec::OpMode::copy,
         .result = Result::refused,
         .reason = ec::OutcomeReason{"Administrator rights were refused."}}};
}
/// What an updater would tell of several copies.
void fillUpdate(Walk& walk) {
    using State = ec::CopyOutcome::State;
    walk.wizard.outcomes.clear();
    walk.wizard.copies = {
        {.folder = "/Applications/Scrivel 21", .application = {}, .state = State::updated},
        {.folder = kFarFolder, .application = {}, .state = State::failed},
        {.folder = "/Applications/Archive/Scrivel 21", .application = {}, .state = State::refused},
        {.folder = "/Applications/Teaching/Scrivel 21",
         .application = {},
         .state = State::declined},
        {.folder = "/Applications/Scrivel Beta", .application = {}, .state = State::unfit},
        {.folder = "/Applications/New/Scrivel 21", .application = {}, .state = State::current}};
}
void takeFar(Walk& walk) {
    walk.take("far");
}
void passOver(Walk& walk) {
    walk.wizard.backBtn.press();
}

void work(Walk& walk) {
    walk.pretendToWork(true);
    walk.wizard.runSelector("disableButtons");
    walk.wizard.nextBtn.setEnabled(false);
    walk.wizard.progress.startAnimation();
}

void rest(Walk& walk) {
    walk.pretendToWork(false);
    walk.wizard.nextBtn.setEnabled(true);
}

struct Way {
    std::string_view name;
    std::int32_t (*open)(ec::ecController&);
    std::deque<Walk::Deed> (*deeds)();
};

std::int32_t openCustomizer(ec::ecController& wizard) {
    return wizard.showCustomizerFromMenu(ec::launch::kCustomize);
}
std::int32_t openPenmark(ec::ecController& wizard) {
    return wizard.showCustomizerFromMenu(ec::launch::kPenmark);
}

using Deeds = std::deque<Walk::Deed>;

const std::array kWays{
    Way{"customize", openCustomizer,
        [] {
            return Deeds{chooseComponents,
                         take,
                         showLocations,
                         take,
                         hideLocations,
                         askForUninstall,
                         answerNo,
                         readHelp,
                         closeReader("help"),
                         next,
                         take,
                         next,
                         take,
                         readLog,
                         closeReader("log"),
                         next};
        }},
    Way{"penmark", openPenmark, [] { return Deeds{take, next, take, next, take, next}; }},
    Way{"penmark-uninstall", openPenmark,
        [] { return Deeds{choosePenmarkUninstall, next, answerYes, take, next}; }},
    Way{"first-install",
        [](ec::ecController& wizard) {
            return wizard.showCustomizerFromMenu(ec::launch::kFirstInstall);
        },
        [] {
            return Deeds{take, next, take, next, take, agree, next, take, chooseComponents,
                         next, take, next};
        }},
    Way{"short-install",
        [](ec::ecController& wizard) {
            return wizard.showCustomizerFromMenu(ec::launch::kShortInstall);
        },
        [] { return Deeds{take, next, take, next, take, next}; }},
    Way{"update", [](ec::ecController& wizard) { return wizard.showPatcherFromMenu(); },
        [] {
            return Deeds{take, next, take, next, takeFar, passOver, take, passOver, take, next};
        }},
    // what the other ways do not reach on every machine, or not at all
    Way{"pages", openCustomizer,
        [] {
            Deeds deeds{fillPages};
            deeds.insert(deeds.end(), {show(10), work, take, rest});
            for (const int page : {7, 9, 11, 12, 18, 23, 27, 28})
                deeds.insert(deeds.end(), {show(page), take});
            deeds.insert(deeds.end(), {fillUpdate, show(17), take});
            deeds.insert(deeds.end(), {show(23), openPanel, closePanel});
            return deeds;
        }},
};

} // namespace

int main(int argc, char** argv) {
    const auto* way = argc < 6 ? kWays.end() : std::ranges::find(kWays, argv[1], &Way::name);
    if (way == kWays.end()) {
        std::fprintf(stderr, "usage: renderWizard WALK SUFFIX FOLDER ROOT HOME\nwalks:");
        for (const Way& each : kWays)
            std::fprintf(stderr, " %s", each.name.data());
        std::fprintf(stderr, "\n");
        return 2;
    }
    app::CommandLine options;
    options.root = argv[4];
    options.home = argv[5];
    options.noLaunch = true;
    app::Program program(options, {}, argc, argv);
    ec::ecController wizard(program.host(), program.rules(), program.root());
    Walk walk(wizard, program.host(), QString("%1/wizard-%2-").arg(argv[3], argv[1]), argv[2]);
    walk.begin(way->deeds());
    way->open(wizard);
    program.finishBackgroundWork();
    return walk.succeeded() ? 0 : 1;
}
