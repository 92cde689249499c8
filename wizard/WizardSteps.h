// The wizard's state machine: walks the table of steps of the current mode, shows the page of each
// row, runs its actions by name, and keeps the outline of page names and the page's title current.
// Buttons and pages drive it (WizardPages); so do long pieces of work when they are done.
//
// Actions may step, jump or start another mode themselves: every operation reads the state anew
// after it has run one. A row before the first or past the last one counts as a terminator.
// Main thread only.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"
#include "platform/ports/Watchers.h"
#include "wizard/ActionPerformer.h"
#include "wizard/StepTables.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardSession.h"

namespace ec {

class WizardSteps {
  public:
    struct Needs {
        ActionPerformer& actions;
        WizardOutlets& outlets;
        const WizardSession& session;
        const ports::LocalizedTexts& texts;
        const ports::Appearance& appearance;
        ports::Beeper& beeper;
        /// Told each row after its page is selected and before its actions run. May be empty.
        std::function<void(const ports::RowShown&)> rowShown;
    };
    explicit WizardSteps(Needs needs);
    WizardSteps(const WizardSteps&) = delete;
    WizardSteps& operator=(const WizardSteps&) = delete;

    /// `startState:` begins a mode at its first row: 0 first install (the short one in launch mode
    /// 34), 1 Customizer, 3 patcher, 4 Penmark; any other keeps the tables as they are.
    void startState(std::uint32_t mode);

    /// `nextState` leaves the current row, whose leave actions may refuse it or jump elsewhere, for
    /// the next one. Nothing happens once the wizard has finished.
    void nextState();
    /// `doNextState` does the same and refreshes outline and title once more.
    void doNextState();
    /// `skipToNextState` goes to the next row and asks nobody.
    void skipToNextState();
    /// `prevState` runs the leave actions, whatever they answer, and goes back; not once the wizard
    /// has finished.
    void prevState();
    /// `skipToPrevState` goes back and asks nobody. The progress page is passed over.
    void skipToPrevState();
    /// `skipToState:` jumps to the row with the label and shows it; outline and title are the
    /// caller's. Without such a row the state is one past the last row and the page stays.
    void skipToState(std::string_view label);
    /// `skipToRelativeState:` goes `rows` on, or back; past the end it beeps and changes nothing.
    void skipToRelativeState(std::int32_t rows);

    /// `updateOutlineText` shows the names of the mode's pages, the current one bold.
    void updateOutlineText();
    /// `updateTitleText` shows the title of the current row's page.
    void updateTitleText();
    /// The title of a page in the user's language; empty for a page that has none.
    std::string titleOf(int page) const;

    /// `secretIdentity`: what the mode calls itself; empty for the first install.
    std::string_view secretIdentity() const { return m_identity; }
    /// Index of the current row; -1 before the first page.
    std::int32_t state() const { return m_state; }
    const StepRow& currentRow() const { return rowAt(m_state); }
    bool hasLabel(std::string_view label) const { return tables::hasLabel(gListPtr, label); }

    /// The wizard is done: from now on it can't be stepped with `nextState` or `prevState`.
    void finish() { gDoneState = true; }
    bool isFinished() const { return gDoneState; }

    /// Puts other tables in place; `startState` does it for the modes. The tables must live as long
    /// as this.
    void useTables(std::span<const StepRow> steps, std::span<const OutlineRow> outline);

    /// Tells the watcher the current row once more.
    void tellRowShown() const;

  private:
    enum class Redraw { always, withPage, never };

    const StepRow& rowAt(std::int32_t state) const;
    /// The common end of every move: buttons, page, picture and enter action.
    void showRow(Redraw redraw);
    void stepBack();
    void refresh();
    int currentOutlineEntry() const;

    Needs m_needs;
    std::array<std::string, gInstallStateLabels.size()> m_titles;
    std::string_view m_identity;
    std::int32_t m_state = -1;
    std::span<const StepRow> gListPtr; ///< its size is the table's row count, terminators included
    std::span<const OutlineRow> gNavListPtr;
    bool gDoneState = false;
};

} // namespace ec
