#include "app/WindowFrontEnd.h"

#include <cstdlib>
#include <iostream>

#include "app/ExitCode.h"
#include "app/OptionTable.h"
#include "ui/AskPassDialog.h"
#include "ui/GuiFrontEnd.h"

namespace app {

namespace {

class GuiWindow final : public WindowFrontEnd {
  public:
    explicit GuiWindow(const Needs& needs)
        : m_gui({.argc = needs.argc,
                 .argv = needs.argv,
                 .resourceFolder = needs.resourceFolder,
                 .texts = needs.texts,
                 .mainQueueDescriptor = needs.mainQueueDescriptor,
                 .runPending = needs.runPending,
                 .dark = std::nullopt,
                 .onNoDisplay = [] {
                     std::cerr << kProgramName << ": " << kNoDisplay << std::endl;
                     std::_Exit(static_cast<int>(ExitCode::usage));
                 }}) {}

    FrontEndPorts ports() override {
        return {m_gui.interfaceFiles(), m_gui.alertSheets(), m_gui.modalLoop(), m_gui.appearance()};
    }

  private:
    ui::GuiFrontEnd m_gui;
};

} // namespace

bool hasWindowFrontEnd() {
    return true;
}

std::unique_ptr<WindowFrontEnd> makeWindowFrontEnd(const WindowFrontEnd::Needs& needs) {
    return std::make_unique<GuiWindow>(needs);
}

int runPasswordDialog(int& argc, char** argv, const std::string& resourceFolder,
                      const ports::LocalizedTexts& texts) {
    return ui::runAskPass(
        {.argc = argc, .argv = argv, .resourceFolder = resourceFolder, .texts = texts});
}

} // namespace app
