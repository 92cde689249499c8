#include "app/unattended/WizardPilot.h"

#include "app/unattended/Descriptions.h"

namespace app {

namespace {

/// More than any mode has rows and any computer copies to update, several times over.
constexpr int kMostPresses = 500;
/// The first cell of `agreeBtns`.
constexpr int kAgreeRow = 0;

/// All that a person would see of the wizard.
std::string sightOf(const ec::ecController& wizard) {
    const Event sight = {wizard.state(), wizard.isFinished(), describedControls(wizard.outlets),
                         describedComponents(wizard)};
    return EventStream::line(sight);
}

} // namespace

std::optional<std::string> WizardPilot::act(ec::ecController& wizard) {
    if (wizard.ecTabView.selected() == ec::page::kLicence && !wizard.agreeBtns.isOn(kAgreeRow)) {
        if (!m_needs.agree)
            return "the licence was not agreed to; --yes agrees";
        wizard.agreeBtns.press(kAgreeRow);
        if (wizard.agreeBtns.isOn(kAgreeRow))
            return std::nullopt;
    }
    return pressNext(wizard);
}

std::optional<std::string> WizardPilot::pressNext(ec::ecController& wizard) {
    const auto stuck = [&] {
        return "the wizard can't go on from the page " +
               std::to_string(wizard.ecTabView.selected()) + " by itself";
    };
    if (!wizard.nextBtn.isEnabled() || wizard.nextBtn.isHidden() || ++m_presses > kMostPresses)
        return stuck();
    const std::string before = sightOf(wizard);
    wizard.nextBtn.press();
    if (wizard.window.isVisible() && sightOf(wizard) == before)
        return stuck();
    return std::nullopt;
}

} // namespace app
