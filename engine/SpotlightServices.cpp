#include "engine/SpotlightServices.h"

#include <array>
#include <string_view>

namespace ec {

namespace {

/// What the page offers for the components of one install method.
struct LevelChoice {
    std::string_view method;
    controls::TextField WizardOutlets::* text;
    controls::RadioMatrix WizardOutlets::* buttons;
};
constexpr std::array kChoices{
    LevelChoice{"inst_Spotlight", &WizardOutlets::spotText, &WizardOutlets::spotBtns},
    LevelChoice{"inst_Services", &WizardOutlets::servText, &WizardOutlets::servBtns},
};

} // namespace

int SpotlightServices::adjustServSpot() {
    WizardOutlets& outlets = m_needs.outlets;
    const auto enable = [&](const LevelChoice& choice, bool enabled) {
        (outlets.*choice.text).setEnabled(enabled);
        (outlets.*choice.buttons).setEnabled(enabled);
    };
    for (const LevelChoice& choice : kChoices)
        enable(choice, false);
    bool needed = false;
    for (std::uint32_t item = 0; item < m_needs.rules.count(); ++item)
        for (const LevelChoice& choice : kChoices)
            if (m_needs.rules.getItemMethod(item) == choice.method &&
                m_needs.rules.getItemState(item) == ItemState::on &&
                m_needs.rules.getItemInitialState(item) != ItemState::on) {
                enable(choice, true);
                needed = true;
            }
    if (!needed) {
        outlets.backBtn.setEnabled(false);
        m_needs.steps.nextState();
    }
    return 0;
}

} // namespace ec
