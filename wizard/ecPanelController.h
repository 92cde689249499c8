// One question of the wizard: a small window with an icon, a message and up to three buttons, hung
// on another window as a sheet and answered before it returns. AlertPanels makes one for each
// question. Main thread only.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls/Interface.h"
#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"
#include "platform/ports/SystemLog.h"

namespace ec {

/// The answers' codes.
inline constexpr std::int32_t kDefaultAnswer = 1;
inline constexpr std::int32_t kAlternateAnswer = 0;
inline constexpr std::int32_t kOtherAnswer = -1;

/// A button's title, or none for no button.
using ButtonText = std::optional<std::string>;

class ecPanelController {
  public:
    struct Needs {
        ports::InterfaceFiles& interfaceFiles;
        ports::ModalLoop& modalLoop;
        ports::SystemLog& systemLog;
        const ports::LocalizedTexts& texts;
        std::string resourceFolder;
    };
    /// `init`.
    explicit ecPanelController(Needs needs);
    ecPanelController(const ecPanelController&) = delete;
    ecPanelController& operator=(const ecPanelController&) = delete;

    /// `awakeFromNib` resets the three buttons.
    void awakeFromNib();

    void setTitle(const std::string& title) { m_window.setTitle(title); }
    void setMessage(const std::string& message) { msgText.setText(message); }
    /// There is always a default button; without a text it reads "OK".
    void setDefBtnText(const ButtonText& text);
    /// Without a text the button is disabled and hidden.
    void setAltBtnText(const ButtonText& text) { setButton(altBtn, text); }
    void setOthBtnText(const ButtonText& text) { setButton(othBtn, text); }

    void setResultCode(std::int32_t code) { m_resultCode = code; }
    std::int32_t resultCode() const { return m_resultCode; }

    /// The buttons' actions: they store their code and call `done`.
    void doDefBtn() { answer(kDefaultAnswer); }
    void doAltBtn() { answer(kAlternateAnswer); }
    void doOthBtn() { answer(kOtherAnswer); }
    /// `done` takes the sheet away and ends its session.
    void done();

    /// `showSheetOnWindow:title:msg:defBtn:altBtn:othBtn:` asks and answers the code of the button;
    /// 1, as if the default button had been pressed, and a line in the system log, when the
    /// interface file "ecPanel" can't be loaded.
    ///
    /// Escape and closing the sheet answer with the button that declines ("Cancel", then "No"),
    /// and with the default button where there is none.
    std::int32_t showSheetOnWindow(controls::Window& parent, const std::string& title,
                                   const std::string& message, const ButtonText& defText,
                                   const ButtonText& altText, const ButtonText& othText);

    /// Was the question ever in sight?
    bool wasShown() const { return m_shown; }
    /// The titles of the buttons in sight: default, alternate, other.
    std::vector<std::string> buttonTitles() const;
    /// The title of the button with that code.
    std::string titleOf(std::int32_t code) const;

    /// The outlets of the interface file.
    controls::TextField msgText;
    controls::Button defBtn;
    controls::Button altBtn;
    controls::Button othBtn;
    controls::ImageView msgIcon;

  private:
    struct CodedButton {
        std::int32_t code;
        const controls::Button& button;
    };
    std::vector<CodedButton> buttonsInSight() const;
    static void setButton(controls::Button& button, const ButtonText& text);
    void answer(std::int32_t code);
    std::int32_t decliningAnswer() const;

    Needs m_needs;
    controls::Window m_window;
    controls::Interface m_outlets;
    std::int32_t m_resultCode = kDefaultAnswer;
    bool m_shown = false;
};

} // namespace ec
