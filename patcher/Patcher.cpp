#include "patcher/Patcher.h"

namespace ec {

void Patcher::beginWork(controls::Progress& indicator) {
    indicator.startAnimation();
    m_needs.outlets.window.display();
    m_needs.steps.doNextState();
}

void Patcher::disableButtonsInPatch() {
    m_needs.outlets.backBtn.setEnabled(false);
    m_needs.outlets.nextBtn.setEnabled(false);
    m_needs.outlets.window.display();
}

void Patcher::findTheScrivels() {
    disableButtonsInPatch();
    m_needs.outlets.custProgress.startAnimation();
    m_needs.outlets.window.display();
    m_needs.log.logMessage("findAllScrivels: nothing to do");
    m_needs.steps.skipToState("Nothing");
}

void Patcher::doPatchYes() {
    disableButtonsInPatch();
    m_needs.log.logMessage("doPatchYes: nothing to do");
    m_needs.steps.skipToState("Done");
}

} // namespace ec
