#include "engine/InstallDriver.h"

#include <algorithm>
#include <span>
#include <utility>

namespace ec {

namespace {

constexpr std::string_view kInitialLine = "**  Initial install                                 **";
constexpr int kInitialEmptyLines = 3;

const InstallMethod* methodNamed(std::span<const InstallMethod> table, std::string_view name) {
    const auto found = std::ranges::find(table, name, &InstallMethod::name);
    return found == table.end() ? nullptr : &*found;
}

} // namespace

MethodAnswer InstallDriver::perform(const InstallMethod& method, OpMode mode, std::uint32_t item) {
    const std::string folder = installFolder();
    return (m_needs.operations.*method.operation)(
        mode, item, std::nullopt, method.takesInstallFolder ? OptionalText(folder) : std::nullopt);
}

void InstallDriver::installCheck() {
    const FolderComparison::OneLook look(m_needs.folders);
    for (std::uint32_t item = 0; item < m_needs.rules.count(); ++item) {
        const auto name = m_needs.rules.getItemMethod(item);
        if (!name)
            continue;
        const InstallMethod* method = methodNamed(kCheckMethods, *name);
        m_needs.rules.setInitialItemState(
            item, method ? perform(*method, OpMode::check, item).value() : ItemState::unavailable);
    }
}

bool InstallDriver::isForced(std::string_view method) const {
    return method == method::kWord.name && m_needs.session.m_bPMRK_path_added;
}

/// What is to be done with the item; none when it is left alone.
std::optional<OpMode> InstallDriver::wanted(std::uint32_t item, std::string_view method) const {
    const std::int32_t state = m_needs.rules.getItemState(item);
    const bool isChoice = state == ItemState::off || state == ItemState::on;
    if (m_needs.session.m_bUninstall)
        return OpMode::remove;
    if (!isChoice)
        return std::nullopt;
    return isForced(method) || state == ItemState::on ? OpMode::copy : OpMode::remove;
}

int InstallDriver::makeChange() {
    const bool uninstalls = m_needs.session.m_bUninstall;
    m_needs.log.logMessage("");
    m_needs.log.logMessage("");
    m_needs.log.logMessage(uninstalls ? "Customize un-install" : "Customize install");
    m_needs.log.logMessage("");

    std::vector<ComponentAudit::Request> requests;
    for (std::uint32_t item = 0; item < m_needs.rules.count(); ++item)
        if (const auto method = m_needs.rules.getItemMethod(item))
            requests.push_back({item, std::string(*method), wanted(item, *method), {}});
    m_needs.audit.begin(std::move(requests));

    MethodAnswer result = MethodAnswer::of(0); // lives on from item to item
    for (std::uint32_t item = 0; item < m_needs.rules.count(); ++item) {
        const auto name = m_needs.rules.getItemMethod(item);
        if (!name)
            continue;
        const auto mode = wanted(item, *name);
        if (!mode)
            continue;
        if (!uninstalls && isForced(*name))
            m_needs.log.logMessage("PMRK & Templates has been forced to install because the paths "
                                   "have been updated");
        const std::string line = (*mode == OpMode::copy ? "Installing: " : "Uninstalling: ") +
                                 shown(m_needs.rules.getItemDesc(item));
        if (const InstallMethod* method = methodNamed(kChangeMethods, *name)) {
            if (*name == method::kWord.name && *mode == OpMode::copy)
                (void)perform(*method, OpMode::remove, item); // the old add-in first
            result = perform(*method, *mode, item);
        }
        m_needs.log.logMessage(line +
                               (result.succeeded() ? " Result: Succeeded" : " Result: Failed"));
    }
    m_needs.audit.end();

    m_needs.steps.skipToNextState();
    if (uninstalls)
        m_needs.steps.skipToNextState();
    return 0;
}

int InstallDriver::initialInstall() {
    m_needs.log.logBanner(kInitialLine, kInitialEmptyLines);
    const auto wantedOf = [](const InstallMethod& method, const char* name) {
        return ComponentAudit::Request{std::nullopt, std::string(method.name), OpMode::copy, name};
    };
    m_needs.audit.begin(
        {wantedOf(method::kWord, "Penmark"), wantedOf(method::kTessaron, "Tessaron Extension")});
    for (const InstallMethod& method : {method::kWord, method::kTessaron}) {
        (void)perform(method, OpMode::remove, 0);
        (void)perform(method, OpMode::copy, 0);
    }
    m_needs.audit.end();
    m_needs.steps.nextState();
    return 0;
}

} // namespace ec
