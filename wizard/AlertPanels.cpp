#include "wizard/AlertPanels.h"

namespace ec {

std::int32_t AlertPanels::askUserTitle(const std::string& title, const std::string& message,
                                       const ButtonText& defText, const ButtonText& altText,
                                       const ButtonText& othText) {
    ecPanelController panel({.interfaceFiles = m_needs.interfaceFiles,
                             .modalLoop = m_needs.modalLoop,
                             .systemLog = m_needs.systemLog,
                             .texts = m_needs.texts,
                             .resourceFolder = m_needs.session.m_custResourceDir});
    const std::int32_t code =
        panel.showSheetOnWindow(m_needs.window, title, message, defText, altText, othText);
    if (m_needs.answered && panel.wasShown())
        m_needs.answered({.title = title,
                          .message = message,
                          .buttons = panel.buttonTitles(),
                          .answer = panel.titleOf(code),
                          .code = code});
    return code;
}

std::optional<std::string> AlertPanels::askUserForApp(const std::optional<std::string>&,
                                                      const std::string& message) {
    return m_needs.fileChoosers.choose({.kind = ports::Chooser::Kind::application,
                                        .title = message,
                                        .folder = {},
                                        .types = {"app", "APPL"}});
}

std::optional<std::string> AlertPanels::askUserForDir(const std::string& folder,
                                                      const std::string& message) {
    return m_needs.fileChoosers.choose(
        {.kind = ports::Chooser::Kind::folder, .title = message, .folder = folder, .types = {}});
}

} // namespace ec
