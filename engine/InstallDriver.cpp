#include "engine/InstallDriver.h"

namespace ec {

void InstallDriver::installCheck() {
    m_needs.log.logMessage("installCheck: nothing to do");
}

int InstallDriver::makeChange() {
    m_needs.log.logMessage("makeChange: nothing to do");
    m_needs.steps.skipToNextState();
    if (m_needs.session.m_bUninstall)
        m_needs.steps.skipToNextState();
    return 0;
}

int InstallDriver::initialInstall() {
    m_needs.log.logMessage("initialInstall: nothing to do");
    m_needs.steps.nextState();
    return 0;
}

} // namespace ec
