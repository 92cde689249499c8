#include "wizard/ecPanelController.h"

#include <array>
#include <utility>

namespace ec {

namespace {

constexpr std::string_view kIconName = "Customizer.icns";

/// What buttons that decline are called, the surest first.
constexpr std::array<ports::TextKey, 2> kDecliningTitles{"Cancel", "No"};

} // namespace

ecPanelController::ecPanelController(Needs needs)
    : m_needs(std::move(needs)), m_outlets{m_window,
                                           {{"msgText", &msgText},
                                            {"defBtn", &defBtn},
                                            {"altBtn", &altBtn},
                                            {"othBtn", &othBtn},
                                            {"msgIcon", &msgIcon}}} {
    defBtn.setAction([this] { doDefBtn(); });
    altBtn.setAction([this] { doAltBtn(); });
    othBtn.setAction([this] { doOthBtn(); });
    m_window.setShouldClose([this](controls::Window&) {
        answer(decliningAnswer());
        return true;
    });
}

void ecPanelController::awakeFromNib() {
    setDefBtnText(std::nullopt);
    setAltBtnText(std::nullopt);
    setOthBtnText(std::nullopt);
}

void ecPanelController::setButton(controls::Button& button, const ButtonText& text) {
    if (text)
        button.setTitle(*text);
    button.setEnabled(text.has_value());
    button.setHidden(!text);
}

void ecPanelController::setDefBtnText(const ButtonText& text) {
    setButton(defBtn, text ? text : m_needs.texts.lookUp("OK"));
}

void ecPanelController::answer(std::int32_t code) {
    m_resultCode = code;
    done();
}

void ecPanelController::done() {
    m_needs.modalLoop.endSheet(m_window);
    m_window.orderOut();
    m_needs.modalLoop.stopModal();
}

std::vector<ecPanelController::CodedButton> ecPanelController::buttonsInSight() const {
    std::vector<CodedButton> all{
        {kDefaultAnswer, defBtn}, {kAlternateAnswer, altBtn}, {kOtherAnswer, othBtn}};
    std::vector<CodedButton> inSight;
    for (const CodedButton& each : all)
        if (!each.button.isHidden())
            inSight.push_back(each);
    return inSight;
}

std::vector<std::string> ecPanelController::buttonTitles() const {
    std::vector<std::string> titles;
    for (const CodedButton& each : buttonsInSight())
        titles.push_back(each.button.title());
    return titles;
}

std::string ecPanelController::titleOf(std::int32_t code) const {
    for (const CodedButton& each : buttonsInSight())
        if (each.code == code)
            return each.button.title();
    return {};
}

std::int32_t ecPanelController::decliningAnswer() const {
    for (const ports::TextKey key : kDecliningTitles)
        for (const CodedButton& each : buttonsInSight())
            if (each.button.title() == m_needs.texts.lookUp(key))
                return each.code;
    return kDefaultAnswer;
}

std::int32_t
ecPanelController::showSheetOnWindow(controls::Window& parent, const std::string& title,
                                     const std::string& message, const ButtonText& defText,
                                     const ButtonText& altText, const ButtonText& othText) {
    if (!m_needs.interfaceFiles.load("ecPanel", m_outlets)) {
        m_needs.systemLog.write("Load of ecPanal.NIB failed");
        return kDefaultAnswer;
    }
    awakeFromNib();
    msgIcon.setPicture({.name = std::string(kIconName),
                        .path = m_needs.resourceFolder + "/" + std::string(kIconName)});
    setTitle(title);
    setMessage(message);
    setDefBtnText(defText);
    setAltBtnText(altText);
    setOthBtnText(othText);

    m_shown = true;
    m_needs.modalLoop.beginSheet(m_window, parent);
    auto session = m_needs.modalLoop.beginModalSession(m_window);
    while (true) {
        const int response = m_needs.modalLoop.runModalSession(session);
        if (response == ports::ModalLoop::kContinues)
            continue;
        if (!m_window.isVisible())
            break;
        if (response == ports::ModalLoop::kAborted) { // nobody is left to answer
            m_resultCode = decliningAnswer();
            m_needs.modalLoop.endSheet(m_window);
            break;
        }
        // Somebody else's stop has hit this session, and one that is stopped serves nobody.
        m_needs.modalLoop.endModalSession(session);
        session = m_needs.modalLoop.beginModalSession(m_window);
    }
    m_needs.modalLoop.endModalSession(session);
    m_window.orderOut();
    return m_resultCode;
}

} // namespace ec
