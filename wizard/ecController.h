// The wizard's controller: one object whose operations are grouped by area. Each base is a facet,
// complete and testable alone; this class only wires them, so that the list below reads as the
// table of contents. The installer window owns one and uses it to run commands and to ask what is
// running.
//
// The bases stand in the order of their needs: a facet may be handed only what stands to its left.
// Only calls by name go the other way. `init` is the constructor; it needs no window. Main thread,
// but for what a facet says otherwise.
#pragma once

#include "engine/BrowserExtension.h"
#include "engine/CategoryModes.h"
#include "engine/CommandRunner.h"
#include "engine/ComponentAudit.h"
#include "engine/FileModes.h"
#include "engine/FileOperations.h"
#include "engine/FolderComparison.h"
#include "engine/InstallDriver.h"
#include "engine/SpotlightServices.h"
#include "patcher/Patcher.h"
#include "platform/ports/Host.h"
#include "rules/ComponentOutline.h"
#include "wizard/ActionPerformer.h"
#include "wizard/AlertPanels.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardPages.h"
#include "wizard/WizardSession.h"
#include "wizard/WizardStartUp.h"
#include "wizard/WizardSteps.h"
#include "wizard/WizardTexts.h"
#include "word/AlternateLocations.h"
#include "word/AppDiscovery.h"
#include "word/Breadcrumbs.h"
#include "word/WordAddIn.h"
#include "word/WordStartupFolders.h"

namespace ec {

class ecController final : public ActionPerformer,
                           public WizardOutlets,
                           public WizardSession,
                           public InstallLog,
                           public AlertPanels,
                           public WizardSteps,
                           public CommandRunner,
                           public FileOperations,
                           public FolderComparison,
                           public Breadcrumbs,
                           public AppDiscovery,
                           public WordStartupFolders,
                           public WordAddIn,
                           public FileModes,
                           public CategoryModes,
                           public SpotlightServices,
                           public BrowserExtension,
                           public ComponentAudit,
                           public InstallDriver,
                           public ComponentOutline,
                           public AlternateLocations,
                           public Patcher,
                           public WizardTexts,
                           public WizardPages,
                           public WizardStartUp {
  public:
    /// `init`. `root` is the tree over `rules`; both outlive the controller.
    ecController(const ports::Host& host, ecRules& rules, ecItem& root);

    ActionResult runSelector(std::string_view name) override;
    /// Is there an action of that name?
    static bool hasAction(std::string_view name);

  private:
    template <auto method>
    InstallOperation operation();
    InstallOperations installOperations();
    std::map<std::string, PartsOf, std::less<>> componentParts();

    ports::SystemLog& m_systemLog;
};

} // namespace ec
