#include "engine/SpotlightServices.h"

#include <array>
#include <filesystem>

#include "engine/FolderListing.h"
#include "engine/Guarded.h"
#include "engine/InstallMethods.h"
#include "wizard/LaunchModes.h"

namespace ec {

namespace {

/// The cells of a choice of level.
constexpr int kUserLevel = 0;
constexpr int kSystemLevel = 1;

constexpr std::string_view kPutAway = ".disabled";

/// What the page offers for the components of one install method.
struct LevelChoice {
    std::string_view method;
    controls::TextField WizardOutlets::* text;
    controls::RadioMatrix WizardOutlets::* buttons;
};
constexpr std::array kChoices{
    LevelChoice{method::kSpotlight.name, &WizardOutlets::spotText, &WizardOutlets::spotBtns},
    LevelChoice{method::kServices.name, &WizardOutlets::servText, &WizardOutlets::servBtns},
};

/// What is copied to the levels that are on, and removed from both.
ComponentParts partsAt(const std::string& shipped, const std::string& user,
                       const std::string& system, const controls::RadioMatrix& levels) {
    ComponentParts parts{.traces = {user, system}};
    if (levels.isOn(kUserLevel))
        parts.copies.push_back({shipped, user});
    if (levels.isOn(kSystemLevel))
        parts.copies.push_back({shipped, system});
    if (parts.copies.empty())
        parts.obstacle = OutcomeReason{"It was not chosen who can use it."};
    return parts;
}

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

SpotlightServices::Places SpotlightServices::spotlightPlaces() const {
    constexpr std::string_view kImporter = "/Library/Spotlight/Scrivel.mdimporter";
    const ports::SystemPlaces& places = m_needs.session.places;
    return {.shipped = m_needs.bundles.mainBundle() + "/Contents" + std::string(kImporter),
            .user = places.expandTilde("~" + std::string(kImporter)),
            .system = places.system(kImporter)};
}

SpotlightServices::Places SpotlightServices::servicesPlaces() const {
    constexpr std::string_view kApplication = "/Services/SVService.app";
    const std::string inLibrary = "/Library" + std::string(kApplication);
    const std::filesystem::path bundle(m_needs.bundles.mainBundle());
    return {.shipped = bundle.parent_path().native() + std::string(kApplication),
            .user = m_needs.session.places.expandTilde("~" + inLibrary),
            .system = m_needs.session.places.system(inLibrary)};
}

/// 1 when either level has a copy, with a line for each, else 0 with a line.
int SpotlightServices::found(const Places& places, std::string_view what) {
    const bool atUser = leadsSomewhere(places.user);
    const bool atSystem = leadsSomewhere(places.system);
    if (atUser)
        m_needs.log.logMessage(formatted("Found User-level %@", {what}));
    if (atSystem)
        m_needs.log.logMessage(formatted("Found System-level %@", {what}));
    if (!atUser && !atSystem)
        m_needs.log.logMessage(formatted("CHECK: Did not find installed %@", {what}));
    return atUser || atSystem ? 1 : 0;
}

void SpotlightServices::copy(const Places& places, const controls::RadioMatrix& levels) {
    if (levels.isOn(kUserLevel))
        (void)m_needs.files.copyPath(places.shipped, places.user);
    if (levels.isOn(kSystemLevel))
        (void)m_needs.files.copyPath(places.shipped, places.system);
}

void SpotlightServices::remove(const Places& places) {
    for (const std::string& installed : {places.user, places.system})
        if (leadsSomewhere(installed))
            (void)m_needs.files.removeFile(installed);
}

void SpotlightServices::stopService() {
    (void)m_needs.runner.runResourceScript("KillSVService.sh", Params{std::vector<std::string>()},
                                           false);
}

MethodAnswer SpotlightServices::installSpotlightMode(OpMode mode, std::uint32_t, OptionalText,
                                                     OptionalText) {
    return guarded(m_needs.log, -1, [&] {
        m_needs.log.logInstall("Spotlight Support", mode);
        const Places places = spotlightPlaces();
        int answer = 0;
        if (mode == OpMode::remove)
            remove(places);
        else if (mode == OpMode::copy)
            copy(places, m_needs.outlets.spotBtns);
        else if (mode == OpMode::check && m_needs.session.m_mode == launch::kAssumedInstalled)
            answer = 1;
        else if (mode == OpMode::check && m_needs.session.m_mode == launch::kCustomize)
            answer = found(places, "Spotlight");
        return MethodAnswer::of(answer);
    });
}

MethodAnswer SpotlightServices::installServicesMode(OpMode mode, std::uint32_t, OptionalText,
                                                    OptionalText) {
    return guarded(m_needs.log, -1, [&] {
        m_needs.log.logInstall("Scrivel Services", mode);
        const Places places = servicesPlaces();
        if (const std::string putAway = places.shipped + std::string(kPutAway);
            leadsSomewhere(putAway))
            (void)m_needs.files.renameFile(putAway, places.shipped);
        int answer = 1;
        if (mode == OpMode::remove) {
            stopService();
            remove(places);
        } else if (mode == OpMode::copy) {
            stopService();
            copy(places, m_needs.outlets.servBtns);
        } else if (mode == OpMode::check && m_needs.session.m_mode == launch::kCustomize) {
            answer = found(places, "Services");
        }
        return MethodAnswer::of(answer);
    });
}

ComponentParts SpotlightServices::spotlightParts() const {
    const Places places = spotlightPlaces();
    return partsAt(places.shipped, places.user, places.system, m_needs.outlets.spotBtns);
}

ComponentParts SpotlightServices::servicesParts() const {
    const Places places = servicesPlaces();
    const std::string putAway = places.shipped + std::string(kPutAway);
    return partsAt(leadsSomewhere(putAway) ? putAway : places.shipped, places.user, places.system,
                   m_needs.outlets.servBtns);
}

} // namespace ec
