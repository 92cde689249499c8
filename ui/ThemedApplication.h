// The toolkit's application object with our look: what every program of ours that shows a window
// begins with. One in a process.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include <QApplication>

#include "platform/ports/LocalizedTexts.h"
#include "ui/Pictures.h"
#include "ui/SpokenLanguage.h"
#include "ui/Texts.h"

namespace ui {

class ThemedApplication {
  public:
    struct Needs {
        int& argc;
        char** argv;
        std::string resourceFolder;
        const ports::LocalizedTexts& texts;
        /// None: as the desktop has it.
        std::optional<bool> dark;
        /// See GuiFrontEnd.
        std::function<std::optional<bool>()> desktopIsDark = nullptr;
        /// Called instead of a crash when no display can be opened; does not return.
        std::function<void()> onNoDisplay;
    };
    explicit ThemedApplication(const Needs& needs);
    ~ThemedApplication();

    bool isDark() const { return m_dark; }
    Pictures& pictures() { return m_pictures; }

  private:
    QApplication m_application;
    SpokenLanguage m_language;
    TextsTranslator m_translator; // asked before the toolkit's own
    Pictures m_pictures;
    bool m_dark;
};

} // namespace ui
