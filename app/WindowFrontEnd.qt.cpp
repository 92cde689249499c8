#include "app/WindowFrontEnd.h"

#include <cstdlib>
#include <iostream>
#include <optional>
#include <string_view>
#include <utility>

#include "app/ExitCode.h"
#include "app/OptionTable.h"
#include "ui/AskPassDialog.h"
#include "ui/TranslatedTexts.h"

namespace app {

namespace {

/// SCRIVEL_APPEARANCE=dark or light; none: as the desktop has it.
std::optional<bool> wantedAppearance() {
    const char* value = std::getenv("SCRIVEL_APPEARANCE"); // NOLINT(concurrency-mt-unsafe)
    const std::string_view wanted = value ? value : "";
    if (wanted == "dark" || wanted == "light")
        return wanted == "dark";
    return std::nullopt;
}

class GuiWindow final : public WindowFrontEnd {
  public:
    explicit GuiWindow(Needs needs) : m_gui(std::move(needs)) {}

    FrontEndPorts ports() override {
        return {m_gui.interfaceFiles(), m_gui.alertSheets(), m_gui.modalLoop(), m_gui.appearance(),
                m_gui.fileChoosers(),   m_gui.reader(),      m_gui.beeper()};
    }
    std::function<void()> keepAlive() override { return m_gui.keepAlive(); }

  private:
    ui::GuiFrontEnd m_gui;
};

} // namespace

bool hasWindowFrontEnd() {
    return true;
}

std::unique_ptr<ports::LocalizedTexts> makeTexts(const std::string& resourceFolder,
                                                 std::vector<std::string> languages) {
    return std::make_unique<ui::TranslatedTexts>(ui::TranslatedTexts::Needs{
        .resourceFolder = resourceFolder, .languages = std::move(languages)});
}

std::unique_ptr<WindowFrontEnd> makeWindowFrontEnd(WindowFrontEnd::Needs needs) {
    needs.dark = wantedAppearance();
    needs.onNoDisplay = [] {
        std::cerr << kProgramName << ": " << kNoDisplay << std::endl;
        std::_Exit(static_cast<int>(ExitCode::usage));
    };
    return std::make_unique<GuiWindow>(std::move(needs));
}

int runPasswordDialog(int& argc, char** argv, const std::string& resourceFolder,
                      const ports::LocalizedTexts& texts) {
    return ui::runAskPass({.argc = argc,
                           .argv = argv,
                           .resourceFolder = resourceFolder,
                           .texts = texts,
                           .dark = wantedAppearance()});
}

} // namespace app
