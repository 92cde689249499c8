#include "wizard/ActionTable.h"

#include <algorithm>
#include <array>
#include <type_traits>

#include "wizard/StepTables.h"
#include "wizard/ecController.h"

namespace ec {

namespace {

/// A method as an action. One that answers nothing or the integer 0 yields nothing.
template <auto method>
ActionResult call(ecController& controller) {
    using Answer = decltype((controller.*method)());
    if constexpr (std::is_same_v<Answer, ActionResult>) {
        return (controller.*method)();
    } else {
        static_assert(std::is_void_v<Answer> || std::is_same_v<Answer, int>);
        (void)(controller.*method)();
        return ActionResult::nothing;
    }
}

struct NamedAction {
    std::string_view name;
    Action action;
};

using C = ecController;

constexpr std::array kActions{
    NamedAction{"adjustServSpot", &call<&C::adjustServSpot>},
    NamedAction{"agreeChangeAgree", &call<&C::agreeChangeAgree>},
    NamedAction{"agreeChangeDisagree", &call<&C::agreeChangeDisagree>},
    NamedAction{"askUserForWord", &call<&C::askUserForWord>},
    NamedAction{"back", &call<&C::back>},
    NamedAction{"cancel", &call<&C::cancel>},
    NamedAction{"cleanupPmrkFolder", &call<&C::cleanupPmrkFolder>},
    NamedAction{"constructWordAndStartupPaths", &call<&C::constructWordAndStartupPaths>},
    NamedAction{"dethenticate", &call<&C::dethenticate>},
    NamedAction{"disableBack", &call<&C::disableBack>},
    NamedAction{"disableBackOnly", &call<&C::disableBackOnly>},
    NamedAction{"disableButtons", &call<&C::disableButtons>},
    NamedAction{"disableButtonsInPatch", &call<&C::disableButtonsInPatch>},
    NamedAction{"doACReset", &call<&C::doACReset>},
    NamedAction{"doACchange", &call<&C::doACchange>},
    NamedAction{"doACminus", &call<&C::doACminus>},
    NamedAction{"doACplus", &call<&C::doACplus>},
    NamedAction{"doAgreeChange", &call<&C::doAgreeChange>},
    NamedAction{"doAltPMRK", &call<&C::doAltPMRK>},
    NamedAction{"doCheckForWord", &call<&C::doCheckForWord>},
    NamedAction{"doChoose", &call<&C::doChoose>},
    NamedAction{"doCustExit", &call<&C::doCustExit>},
    NamedAction{"doExit", &call<&C::doExit>},
    NamedAction{"doFoundMSWord", &call<&C::doFoundMSWord>},
    NamedAction{"doGoCustom", &call<&C::doGoCustom>},
    NamedAction{"doNextState", &call<&C::doNextState>},
    NamedAction{"doPatchNo", &call<&C::doPatchNo>},
    NamedAction{"doPatchYes", &call<&C::doPatchYes>},
    NamedAction{"doSVWUninstall", &call<&C::doSVWUninstall>},
    NamedAction{"doSVWebNext", &call<&C::doSVWebNext>},
    NamedAction{"doStartSVWeb", &call<&C::doStartSVWeb>},
    NamedAction{"doUninstall", &call<&C::doUninstall>},
    NamedAction{"doUninstallExit", &call<&C::doUninstallExit>},
    NamedAction{"enableButtons", &call<&C::enableButtons>},
    NamedAction{"findTheScrivels", &call<&C::findTheScrivels>},
    NamedAction{"hideWordLocations", &call<&C::hideWordLocations>},
    NamedAction{"initialInstall", &call<&C::initialInstall>},
    NamedAction{"installAppLogo", &call<&C::installAppLogo>},
    NamedAction{"installCheck", &call<&C::installCheck>},
    NamedAction{"makeChange", &call<&C::makeChange>},
    NamedAction{"next", &call<&C::next>},
    NamedAction{"nextState", &call<&C::nextState>},
    NamedAction{"patchFindUI", &call<&C::patchFindUI>},
    NamedAction{"patchProgressUI", &call<&C::patchProgressUI>},
    NamedAction{"preparePmrkFolder", &call<&C::preparePmrkFolder>},
    NamedAction{"prev", &call<&C::back>},
    NamedAction{"prevState", &call<&C::prevState>},
    NamedAction{"saveBreadcrumbs", &call<&C::saveBreadcrumbs>},
    NamedAction{"setCont", &call<&C::setCont>},
    NamedAction{"setDone", &call<&C::setDone>},
    NamedAction{"setExit", &call<&C::setExit>},
    NamedAction{"setNext", &call<&C::setNext>},
    NamedAction{"showHelp", &call<&C::showHelp>},
    NamedAction{"showLog", &call<&C::showLog>},
    NamedAction{"showWordLocations", &call<&C::showWordLocations>},
    NamedAction{"skipToAltPMRK", &call<&C::skipToAltPMRK>},
    NamedAction{"skipToNextState", &call<&C::skipToNextState>},
    NamedAction{"skipToPrevState", &call<&C::skipToPrevState>},
    NamedAction{"startCustomState", &call<&C::startCustomState>},
    NamedAction{"startPatchState", &call<&C::startPatchState>},
    NamedAction{"startSVWebInstallState", &call<&C::startSVWebInstallState>},
    NamedAction{"startToFind", &call<&C::startToFind>},
    NamedAction{"startToInitialInstall", &call<&C::startToInitialInstall>},
    NamedAction{"startToMakeChange", &call<&C::startToMakeChange>},
    NamedAction{"updateAltPMRKControls", &call<&C::updateAltPMRKControls>},
    NamedAction{"updateOutlineText", &call<&C::updateOutlineText>},
    NamedAction{"updateTitleText", &call<&C::updateTitleText>},
    NamedAction{"wordQuitHandler", &call<&C::wordQuitHandler>},
};

constexpr bool isKnown(std::string_view name) {
    return name.empty() || std::ranges::binary_search(kActions, name, {}, &NamedAction::name);
}
constexpr bool actionsAreKnown(std::span<const StepRow> rows) {
    return std::ranges::all_of(rows, [](const StepRow& row) {
        return isKnown(row.pictureAction) && isKnown(row.enterAction) && isKnown(row.leaveAction) &&
               isKnown(row.secondLeaveAction);
    });
}
// Sorted, and no name stands twice.
static_assert(std::ranges::adjacent_find(kActions, std::ranges::greater_equal{},
                                         &NamedAction::name) == kActions.end());
static_assert(std::ranges::all_of(tables::kAllSteps, actionsAreKnown));

} // namespace

Action actionNamed(std::string_view name) {
    const auto* found = std::ranges::lower_bound(kActions, name, {}, &NamedAction::name);
    return found != kActions.end() && found->name == name ? found->action : nullptr;
}

} // namespace ec
