#include "wizard/ecController.h"

#include "wizard/ActionTable.h"

namespace ec {

ecController::ecController(const ports::Host& host, ecRules& rules, ecItem& root)
    : WizardSession(host.bundles, host.places), InstallLog({.places = host.places,
                                                            .clock = host.clock,
                                                            .streams = host.streams,
                                                            .texts = host.texts,
                                                            .processingText = processingText,
                                                            .written = host.watchers.logged}),
      AlertPanels({.session = *this,
                   .window = WizardOutlets::window,
                   .interfaceFiles = host.interfaceFiles,
                   .modalLoop = host.modalLoop,
                   .fileChoosers = host.fileChoosers,
                   .systemLog = host.systemLog,
                   .texts = host.texts,
                   .answered = host.watchers.answered}),
      WizardSteps({.actions = *this,
                   .outlets = *this,
                   .session = *this,
                   .texts = host.texts,
                   .appearance = host.appearance,
                   .beeper = host.beeper,
                   .rowShown = host.watchers.rowShown}),
      CommandRunner({.log = *this,
                     .session = *this,
                     .tools = host.tools,
                     .administrator = host.administrator,
                     .streams = host.streams}),
      FileOperations({.log = *this, .runner = *this, .finderFiles = host.finderFiles}),
      FolderComparison({.files = *this}),
      Breadcrumbs({.log = *this, .session = *this, .lists = host.propertyLists}),
      AppDiscovery({.log = *this,
                    .session = *this,
                    .breadcrumbs = *this,
                    .applications = host.applications,
                    .bundles = host.bundles,
                    .finderFiles = host.finderFiles}),
      WordStartupFolders({.log = *this,
                          .session = *this,
                          .breadcrumbs = *this,
                          .discovery = *this,
                          .bundles = host.bundles}),
      WordAddIn({.log = *this,
                 .session = *this,
                 .runner = *this,
                 .files = *this,
                 .discovery = *this,
                 .startupFolders = *this,
                 .bundles = host.bundles,
                 .finderFiles = host.finderFiles}),
      FileModes({.log = *this, .rules = rules}), CategoryModes({.log = *this,
                                                                .files = *this,
                                                                .folders = *this,
                                                                .bundles = host.bundles,
                                                                .rules = rules}),
      SpotlightServices({.log = *this,
                         .session = *this,
                         .rules = rules,
                         .outlets = *this,
                         .steps = *this,
                         .runner = *this,
                         .files = *this,
                         .bundles = host.bundles}),
      BrowserExtension({.log = *this, .session = *this, .runner = *this}),
      ComponentAudit(
          {.rules = rules, .session = *this, .runner = *this, .parts = componentParts()}),
      InstallDriver({.log = *this,
                     .session = *this,
                     .steps = *this,
                     .rules = rules,
                     .bundles = host.bundles,
                     .folders = *this,
                     .audit = *this,
                     .operations = installOperations()}),
      ComponentOutline({.root = root, .ecOutlineView = WizardOutlets::ecOutlineView}),
      AlternateLocations({.outlets = *this,
                          .panels = *this,
                          .files = *this,
                          .breadcrumbs = *this,
                          .discovery = *this,
                          .startupFolders = *this,
                          .texts = host.texts}),
      Patcher({.actions = *this,
               .log = *this,
               .session = *this,
               .outlets = *this,
               .steps = *this,
               .runner = *this,
               .folders = *this,
               .addIn = *this,
               .applications = host.applications,
               .bundles = host.bundles,
               .texts = host.texts,
               .systemLog = host.systemLog}),
      WizardTexts({.session = *this,
                   .outlets = *this,
                   .components = *this,
                   .texts = host.texts,
                   .reader = host.reader}),
      WizardPages({.log = *this,
                   .session = *this,
                   .outlets = *this,
                   .steps = *this,
                   .panels = *this,
                   .runner = *this,
                   .discovery = *this,
                   .startupFolders = *this,
                   .driver = *this,
                   .alternateLocations = *this,
                   .components = *this,
                   .texts = host.texts,
                   .modalLoop = host.modalLoop}),
      WizardStartUp({.session = *this,
                     .outlets = *this,
                     .log = *this,
                     .steps = *this,
                     .breadcrumbs = *this,
                     .startupFolders = *this,
                     .components = *this,
                     .patcher = *this,
                     .texts = *this,
                     .interfaceFiles = host.interfaceFiles,
                     .modalLoop = host.modalLoop,
                     .systemLog = host.systemLog,
                     .localizedTexts = host.texts}),
      m_systemLog(host.systemLog) {}

template <auto method>
InstallOperation ecController::operation() {
    return [this](OpMode mode, std::uint32_t item, OptionalText source, OptionalText dest) {
        return (this->*method)(mode, item, source, dest);
    };
}

InstallOperations ecController::installOperations() {
    using C = ecController;
    return {.word = operation<&C::installWordMode>(),
            .file = operation<&C::installFileMode>(),
            .folder = operation<&C::installDirMode>(),
            .services = operation<&C::installServicesMode>(),
            .spotlight = operation<&C::installSpotlightMode>(),
            .tessaron = operation<&C::installTessaronMode>(),
            .uninstaller = operation<&C::installUninstMode>(),
            .category = operation<&C::installCategoryMode>(),
            .allCategories = operation<&C::installAllCategoriesMode>()};
}

std::map<std::string, ComponentAudit::PartsOf, std::less<>> ecController::componentParts() {
    const auto named = [](const InstallMethod& method) { return std::string(method.name); };
    return {{named(method::kWord), [this](std::uint32_t) { return addInParts(); }},
            {named(method::kServices), [this](std::uint32_t) { return servicesParts(); }},
            {named(method::kSpotlight), [this](std::uint32_t) { return spotlightParts(); }},
            {named(method::kTessaron), [this](std::uint32_t) { return extensionParts(); }},
            {named(method::kCategory), [this](std::uint32_t item) { return categoryParts(item); }},
            {named(method::kAllCategories),
             [this](std::uint32_t item) { return allCategoriesParts(item); }}};
}

ActionResult ecController::runSelector(std::string_view name) {
    if (name.empty())
        return ActionResult::nothing;
    if (const Action action = actionNamed(name))
        return action(*this);
    m_systemLog.write("There is no action named \"" + std::string(name) + "\"");
    return ActionResult::nothing;
}

bool ecController::hasAction(std::string_view name) {
    return actionNamed(name) != nullptr;
}

} // namespace ec
