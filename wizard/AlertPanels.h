// Every question that the wizard puts to the user: a sheet with up to three buttons, a chooser for
// an application, a chooser for a folder. Each blocks its caller, which can use the answer in one
// straight sequence. Texts come localised. Main thread only.
#pragma once

#include <functional>

#include "platform/ports/Watchers.h"
#include "wizard/WizardSession.h"
#include "wizard/ecPanelController.h"

namespace ec {

/// What the wizard's own questions are titled.
inline constexpr ports::TextKey kInstallerTitle = "Scrivel 21 Installer";

class AlertPanels {
  public:
    struct Needs {
        const WizardSession& session;
        controls::Window& window; ///< the one that the sheets hang on
        ports::InterfaceFiles& interfaceFiles;
        ports::ModalLoop& modalLoop;
        ports::FileChoosers& fileChoosers;
        ports::SystemLog& systemLog;
        const ports::LocalizedTexts& texts;
        /// Told each question with its answer. May be empty.
        std::function<void(const ports::QuestionAnswered&)> answered;
    };
    explicit AlertPanels(Needs needs) : m_needs(std::move(needs)) {}
    AlertPanels(const AlertPanels&) = delete;
    AlertPanels& operator=(const AlertPanels&) = delete;

    /// `askUserTitle:msg:defBtn:altBtn:othBtn:` answers 1 for the default button, 0 for the
    /// alternate one, -1 for the other one.
    std::int32_t askUserTitle(const std::string& title, const std::string& message,
                              const ButtonText& defText, const ButtonText& altText,
                              const ButtonText& othText);

    /// `askUserForApp:withMessage:` answers the path of the application that was chosen; none when
    /// the user cancelled. On every system a bundle folder counts as an application. The first
    /// argument is not read.
    std::optional<std::string> askUserForApp(const std::optional<std::string>& ignored,
                                             const std::string& message);

    /// `askUserForDir:withMessage:` answers the folder that was chosen, starting in `folder`; none
    /// when the user cancelled.
    std::optional<std::string> askUserForDir(const std::string& folder, const std::string& message);

  private:
    Needs m_needs;
};

} // namespace ec
