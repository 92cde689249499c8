// The driver of the install methods: finds out what is installed, and applies the user's choices.
// The wizard's pages start it when they have turned the window busy; it steps the wizard on when it
// is done. It works in the order of the rules, one component after the other, and a component that
// fails stops nothing. What really became of them is ComponentAudit's to say. Main thread.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/ComponentAudit.h"
#include "engine/FolderComparison.h"
#include "engine/InstallMethods.h"
#include "platform/ports/Bundles.h"
#include "rules/ecRules.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardSession.h"
#include "wizard/WizardSteps.h"

namespace ec {

class InstallDriver {
  public:
    struct Needs {
        InstallLog& log;
        const WizardSession& session;
        WizardSteps& steps;
        ecRules& rules;
        const ports::Bundles& bundles;
        FolderComparison& folders;
        ComponentAudit& audit;
        InstallOperations operations;
    };
    explicit InstallDriver(Needs needs) : m_needs(std::move(needs)) {}
    InstallDriver(const InstallDriver&) = delete;
    InstallDriver& operator=(const InstallDriver&) = delete;

    /// `installCheck` has every item's method look what is installed, and makes what it answers
    /// the item's states; a method that no table knows makes it -1. An item without a method keeps
    /// its states.
    void installCheck();

    /// `makeChange` installs every item whose state is 1 and removes every one whose state is 0,
    /// whether or not that changes anything; any other state is left alone, but removed as well
    /// when the wizard uninstalls, which removes all. Then it goes one row on, and one more when
    /// the wizard uninstalls. Answers 0.
    ///
    /// The log has one line for each item, "Succeeded" when the last answer was 1. Deliberately, an
    /// item whose method changes nothing leaves that answer as the item before it did.
    int makeChange();

    /// `initialInstall` installs Word's add-in and the browser extension anew, whatever their
    /// states, then goes on. Answers 0.
    int initialInstall();

  private:
    std::string installFolder() const { return m_needs.bundles.mainBundle() + "/../"; }
    bool isForced(std::string_view method) const;
    std::optional<OpMode> wanted(std::uint32_t item, std::string_view method) const;
    MethodAnswer perform(const InstallMethod& method, OpMode mode, std::uint32_t item);

    Needs m_needs;
};

} // namespace ec
