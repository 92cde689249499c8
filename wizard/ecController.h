// The wizard's controller: one object whose operations are grouped by area. Each base is a facet,
// complete and testable alone; this class only wires them, so that the list below reads as the
// table of contents. The installer window owns one and uses it to run commands and to ask what is
// running.
//
// The bases stand in the order of their needs: a facet may be handed only what stands to its left.
// `init` is the constructor; it needs no window. Main thread, but for what a facet says otherwise.
#pragma once

#include "engine/CommandRunner.h"
#include "engine/FileOperations.h"
#include "platform/ports/Host.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardSession.h"
#include "wizard/WizardStartUp.h"
#include "word/AppDiscovery.h"
#include "word/Breadcrumbs.h"

namespace ec {

class ecController final : public WizardOutlets,
                           public WizardSession,
                           public InstallLog,
                           public CommandRunner,
                           public FileOperations,
                           public Breadcrumbs,
                           public AppDiscovery,
                           public WizardStartUp {
  public:
    explicit ecController(const ports::Host& host)
        : WizardSession(host.bundles, host.places), InstallLog({.places = host.places,
                                                                .clock = host.clock,
                                                                .streams = host.streams,
                                                                .processingText = processingText,
                                                                .written = host.watchers.logged}),
          CommandRunner({.log = *this,
                         .session = *this,
                         .tools = host.tools,
                         .administrator = host.administrator,
                         .streams = host.streams}),
          FileOperations({.log = *this, .runner = *this, .finderFiles = host.finderFiles}),
          Breadcrumbs({.log = *this, .session = *this, .lists = host.propertyLists}),
          AppDiscovery({.log = *this,
                        .session = *this,
                        .breadcrumbs = *this,
                        .applications = host.applications,
                        .bundles = host.bundles,
                        .finderFiles = host.finderFiles}),
          WizardStartUp({.session = *this}) {}
};

} // namespace ec
