// How fast the wizard's window is there: says how many milliseconds main() took until the first
// page was painted, and how many the slowest change of the page took from the press to the painted
// page. The window, its interface file, the documents and the controller are the real ones; what
// lies below them is pretended, so that no file system's speed is measured.
#include <chrono>
#include <cstdio>
#include <ctime>

#include <QApplication>
#include <QEvent>

#include "tests/fakes/FakeHost.h"
#include "tests/support/TemporaryFolder.h"
#include "tests/ui/Stage.h"
#include "wizard/ecController.h"

namespace {

/// Milliseconds that passed, and how many of them this process had a processor.
struct Time {
    double wall = 0, processor = 0;
};

class Stopwatch {
  public:
    Time elapsed() const {
        return {std::chrono::duration<double, std::milli>(Clock::now() - m_wall).count(),
                1000.0 * static_cast<double>(std::clock() - m_processor) / CLOCKS_PER_SEC};
    }

  private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point m_wall = Clock::now();
    std::clock_t m_processor = std::clock();
};
const Stopwatch s_main;

class PaintWatch final : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override {
        m_painted = m_painted || event->type() == QEvent::UpdateRequest;
        return false;
    }
    /// Serves events until the next painting is over; answers the time since `start`.
    Time await(const Stopwatch& start) {
        m_painted = false;
        while (!m_painted)
            QApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return start.elapsed();
    }

  private:
    bool m_painted = false;
};

} // namespace

int main(int argc, char** argv) {
    const stage::Surroundings surroundings;
    const ui::TranslatedTexts texts = stage::shippedTexts("en");
    stage::PipeQueue queue;
    ui::GuiFrontEnd frontEnd({.argc = argc,
                              .argv = argv,
                              .resourceFolder = SCRIVEL_BUNDLE_RESOURCES,
                              .texts = texts,
                              .mainQueueDescriptor = queue.descriptor(),
                              .runPending = [&] { queue.runPending(); },
                              .dark = false});
    const tests::TemporaryFolder folder;
    fakes::FakeHost fakes;
    fakes.places = {.root = folder.path(), .home = folder.path(), .temporary = folder.path()};
    fakes.bundles.resourceFolder = SCRIVEL_BUNDLE_RESOURCES;
    const ports::Host host{.places = fakes.places,
                           .clock = fakes.clock,
                           .systemLog = fakes.systemLog,
                           .streams = fakes.streams,
                           .tools = fakes.tools,
                           .administrator = fakes.administrator,
                           .applications = fakes.applications,
                           .finderFiles = fakes.finderFiles,
                           .bundles = fakes.bundles,
                           .propertyLists = fakes.propertyLists,
                           .texts = const_cast<ui::TranslatedTexts&>(texts),
                           .mainQueue = fakes.mainQueue,
                           .backgroundQueue = fakes.backgroundQueue,
                           .interfaceFiles = frontEnd.interfaceFiles(),
                           .alertSheets = frontEnd.alertSheets(),
                           .modalLoop = fakes.modalLoop,
                           .appearance = frontEnd.appearance(),
                           .fileChoosers = frontEnd.fileChoosers(),
                           .reader = frontEnd.reader(),
                           .beeper = frontEnd.beeper()};
    ec::ecRules rules(SCRIVEL_BUNDLE_RESOURCES);
    ec::ecItem root(rules, ec::ecItem::kRootItem, nullptr);
    ec::ecController wizard(host, rules, root);
    PaintWatch watch;
    qApp->installEventFilter(&watch);

    // Welcome, Read Me, Licence, components, and then away.
    Time first, slowest;
    fakes.modalLoop.idle = [&] {
        if (first.wall == 0)
            first = watch.await(s_main);
        if (wizard.ecTabView.selected() == 6) {
            wizard.cancelBtn.press();
            return true;
        }
        if (wizard.ecTabView.selected() == ec::page::kLicence)
            wizard.agreeBtns.press(0);
        QApplication::processEvents();
        const Stopwatch pressed;
        wizard.nextBtn.press();
        const Time took = watch.await(pressed);
        if (took.wall > slowest.wall)
            slowest = took;
        return true;
    };
    wizard.showCustomizerFromMenu(ec::launch::kFirstInstall);
    std::printf("%.1f %.1f %.1f %.1f\n", first.wall, first.processor, slowest.wall,
                slowest.processor);
    return 0;
}
