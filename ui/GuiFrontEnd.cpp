#include "ui/GuiFrontEnd.h"

#include <utility>

#include <QSocketNotifier>

#include "ui/DesktopAppearance.h"
#include "ui/SessionLoop.h"
#include "ui/Sheets.h"
#include "ui/ThemedApplication.h"
#include "ui/UiFiles.h"

namespace ui {

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

} // namespace ui
