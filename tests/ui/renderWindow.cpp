// Renders every state of the installer window into a folder, for the eye and for the manual:
//
//   renderWindow FOLDER [LANGUAGE]
//
// one picture a state and appearance, at the density of QT_SCALE_FACTOR. With --first-paint instead
// it shows the window, says how many milliseconds main() took until it was painted, and ends.
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string>
#include <string_view>

#include <QApplication>
#include <QDialog>
#include <QDir>

#include "tests/ui/Stage.h"
#include "ui/GuiFrontEnd.h"

namespace {

using Clock = std::chrono::steady_clock;
const auto s_start = Clock::now();

struct Scene {
    const char* name;
    std::function<void(stage::InstallerModels&, ports::AlertSheets&)> play;
};

void letPaint(int milliseconds) {
    const auto end = Clock::now() + std::chrono::milliseconds(milliseconds);
    while (Clock::now() < end)
        QApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 10);
}

class PaintWatch final : public QObject {
  public:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::UpdateRequest)
            painted = true;
        return false;
    }
    bool painted = false;
};

} // namespace

int main(int argc, char** argv) {
    const bool firstPaint = argc > 1 && std::string_view(argv[1]) == "--first-paint";
    const std::string language = argc > 2 ? argv[2] : "en";
    const stage::Surroundings surroundings;
    const ui::TranslatedTexts texts = stage::shippedTexts(language);
    const stage::Resources resources;
    stage::PipeQueue queue;
    const std::string suffix = language == "en" ? std::string() : '-' + language;

    const std::vector<Scene> scenes = {
        {"idle", [](auto&, auto&) {}},
        {"running-sheet",
         [&](auto& models, auto& sheets) {
             sheets.beginSheet(stage::runningAlert(texts), models.window, {});
         }},
        {"overwrite-sheet",
         [&](auto& models, auto& sheets) {
             sheets.beginSheet(stage::overwriteAlert(texts), models.window, {});
         }},
        {"unable-sheet",
         [&](auto& models, auto& sheets) {
             sheets.beginSheet(stage::unableAlert(texts), models.window, {});
         }},
        {"installing", [&](auto& models, auto&) { models.beginInstalling(texts); }},
        {"installing-amount",
         [&](auto& models, auto&) {
             models.beginInstalling(texts);
             models.m_progressIndicator.setAmount({123'400'000, 400'200'000, 812});
         }},
        {"canceling",
         [&](auto& models, auto&) {
             models.beginInstalling(texts);
             models.m_progressIndicator.setAmount({123'400'000, 400'200'000, 812});
             models.m_statusTextField.setText(texts.lookUp("Canceling…"));
             models.m_button.setEnabled(false);
         }},
    };

    const char* appearance = std::getenv("SCRIVEL_APPEARANCE");
    const bool dark = appearance && std::string_view(appearance) == "dark";
    ui::GuiFrontEnd frontEnd({.argc = argc,
                              .argv = argv,
                              .resourceFolder = resources.folder(),
                              .texts = texts,
                              .mainQueueDescriptor = queue.descriptor(),
                              .runPending = [&] { queue.runPending(); },
                              .dark = dark});
    for (const Scene& scene : scenes) {
        stage::InstallerModels models;
        if (!frontEnd.interfaceFiles().load("ScrivelInstaller", models.outlets))
            return 1;
        models.setBlackTitle(models.m_button.title());
        PaintWatch watch;
        if (firstPaint)
            qApp->installEventFilter(&watch);
        models.window.orderFront();
        if (firstPaint) {
            while (!watch.painted)
                QApplication::processEvents(QEventLoop::WaitForMoreEvents);
            const std::chrono::duration<double, std::milli> took = Clock::now() - s_start;
            std::printf("%.1f\n", took.count());
            return 0;
        }
        scene.play(models, frontEnd.alertSheets());
        letPaint(700);
        const QString file = QString::fromLocal8Bit(argv[1]) + '/' + scene.name +
                             QString::fromStdString(suffix) + (dark ? "-dark" : "-light") +
                             (qApp->devicePixelRatio() > 1 ? "-2x.png" : ".png");
        if (!stage::pictureOf(*stage::dialogOnScreen()).save(file))
            return 1;
    }
    return 0;
}
