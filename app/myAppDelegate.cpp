#include "app/myAppDelegate.h"

namespace app {

std::optional<int> myAppDelegate::applicationDidFinishLaunching() {
    m_installer.emplace(m_needs.host, m_needs.rules, m_needs.root);
    if (!m_installer->isWindowLoaded())
        return std::nullopt;
    m_needs.willRun(*m_installer);
    const int result = m_needs.host.modalLoop.runModalForWindow(m_installer->window());
    if (m_needs.host.backgroundQueue.isBusy()) {
        m_installer->setCancelled(m_installer->cancelled() ||
                                  m_installer->ending() != ScrivelInstaller::Ending::finished);
        m_needs.finishBackgroundWork();
    }
    return result;
}

} // namespace app
