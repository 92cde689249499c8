#include "ui/GuiFrontEnd.h"

#include <utility>

#include <QApplication>
#include <QSocketNotifier>

#include "ui/DesktopAppearance.h"
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

class NoChoosers final : public ports::FileChoosers {
  public:
    std::optional<std::string> choose(const ports::Chooser&) override { return std::nullopt; }
};

class NoReader final : public ports::Reader {
  public:
    void read(const ports::ReadingMatter&, controls::Window&) override {}
};

} // namespace

struct GuiFrontEnd::Parts {
    explicit Parts(const Needs& needs)
        : application({.argc = needs.argc,
                       .argv = needs.argv,
                       .resourceFolder = needs.resourceFolder,
                       .texts = needs.texts,
                       .dark = needs.dark,
                       .onNoDisplay = needs.onNoDisplay}),
          files({.resourceFolder = needs.resourceFolder,
                 .texts = needs.texts,
                 .pictures = application.pictures()}),
          sheets(files), appearance(application.isDark()),
          queue(needs.mainQueueDescriptor, QSocketNotifier::Read) {
        QObject::connect(&queue, &QSocketNotifier::activated, &queue,
                         [runPending = needs.runPending] { runPending(); });
    }

    ThemedApplication application;
    UiFiles files;
    Sheets sheets; // its dialogs hang on those of `files`
    SessionLoop loop;
    DesktopAppearance appearance;
    NoChoosers choosers;
    NoReader reader;
    ToolkitBeeper beeper;
    QSocketNotifier queue;
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

} // namespace ui
