#include "ui/GuiFrontEnd.h"

#include <utility>

#include <QApplication>
#include <QSocketNotifier>

#include "ui/BusyPump.h"
#include "ui/DesktopAppearance.h"
#include "ui/OpenPanels.h"
#include "ui/ReaderSheet.h"
#include "ui/SessionLoop.h"
#include "ui/Sheets.h"
#include "ui/ThemedApplication.h"
#include "ui/UiFiles.h"

namespace ui {

namespace {

class ToolkitBeeper final : public ports::Beeper {
  public:
    void beep() override { QApplication::beep(); }
};

} // namespace

struct GuiFrontEnd::Parts {
    explicit Parts(const Needs& needs)
        : application({.argc = needs.argc,
                       .argv = needs.argv,
                       .resourceFolder = needs.resourceFolder,
                       .texts = needs.texts,
                       .dark = needs.dark,
                       .desktopIsDark = needs.desktopIsDark,
                       .onNoDisplay = needs.onNoDisplay}),
          files({.resourceFolder = needs.resourceFolder,
                 .texts = needs.texts,
                 .pictures = application.pictures()}),
          sheets(files), loop(files),
          choosers({.loop = loop, .texts = needs.texts, .typeOf = needs.typeOfFile}),
          reader({.files = files, .loop = loop, .texts = needs.texts}),
          appearance(application.isDark(), needs.toolkitVersion),
          queue(needs.mainQueueDescriptor, QSocketNotifier::Read), busyPump(queue) {
        QObject::connect(&queue, &QSocketNotifier::activated, &queue,
                         [runPending = needs.runPending] { runPending(); });
    }

    ThemedApplication application;
    UiFiles files;
    Sheets sheets; // its dialogs hang on those of `files`
    SessionLoop loop;
    OpenPanels choosers;
    ReaderSheet reader;
    DesktopAppearance appearance;
    ToolkitBeeper beeper;
    QSocketNotifier queue;
    BusyPump busyPump;
};

GuiFrontEnd::GuiFrontEnd(const Needs& needs) : m_parts(std::make_unique<Parts>(needs)) {}

GuiFrontEnd::~GuiFrontEnd() = default;

ports::InterfaceFiles& GuiFrontEnd::interfaceFiles() {
    return m_parts->files;
}

ports::AlertSheets& GuiFrontEnd::alertSheets() {
    return m_parts->sheets;
}

ports::ModalLoop& GuiFrontEnd::modalLoop() {
    return m_parts->loop;
}

ports::Appearance& GuiFrontEnd::appearance() {
    return m_parts->appearance;
}

ports::FileChoosers& GuiFrontEnd::fileChoosers() {
    return m_parts->choosers;
}

ports::Reader& GuiFrontEnd::reader() {
    return m_parts->reader;
}

ports::Beeper& GuiFrontEnd::beeper() {
    return m_parts->beeper;
}

std::function<void()> GuiFrontEnd::keepAlive() {
    return [&pump = m_parts->busyPump] { pump.pump(); };
}

} // namespace ui
