// The page on which the user points at a Word and its startup folder by hand: a table of every Word
// with its folder, and buttons to add, remove, change and reset one. What the user chooses is
// remembered as a breadcrumb and saved at once. Also the page that tells how many Words were found.
// Which page is in sight is WizardPages' business.
//
// A row is a pair record of WordStartupFolders. Main thread.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engine/FileOperations.h"
#include "platform/controls/TableView.h"
#include "platform/ports/LocalizedTexts.h"
#include "wizard/AlertPanels.h"
#include "wizard/WizardOutlets.h"
#include "word/AppDiscovery.h"
#include "word/Breadcrumbs.h"
#include "word/PairRecord.h"
#include "word/WordStartupFolders.h"

namespace ec {

class AlternateLocations : public controls::TableDataSource {
  public:
    struct Needs {
        WizardOutlets& outlets;
        AlertPanels& panels;
        FileOperations& files;
        Breadcrumbs& breadcrumbs;
        AppDiscovery& discovery;
        WordStartupFolders& startupFolders;
        const ports::LocalizedTexts& texts;
    };
    /// Gives the table its rows, and the buttons below it their actions.
    explicit AlternateLocations(Needs needs);
    AlternateLocations(const AlternateLocations&) = delete;
    AlternateLocations& operator=(const AlternateLocations&) = delete;
    virtual ~AlternateLocations() = default;

    /// `askUserForWord` lets the user choose a Word, which has to lie beside a folder "Office", and
    /// asks whether another startup folder than the known one is to be set.
    void askUserForWord();
    /// `askUserForStartupFolder:` lets the user choose a folder, starting in `folder`; none when
    /// the user cancelled.
    std::optional<std::string> askUserForStartupFolder(const std::string& folder);
    /// `alertDidEndWord:returnCode:contextInfo:` records the Word that was chosen: after 0 ("Set")
    /// with a folder that the user chooses now; after 1 ("No") with the first one known for the
    /// folder that holds the Word. Without a folder, and after any other code, nothing happens.
    void alertDidEndWord(std::int32_t returnCode);

    /// `doACplus:` is `askUserForWord`.
    void doACplus();
    /// `doACminus:` asks whether to remove the add-in from the selected row's folder.
    void doACminus();
    /// `minusAlertDidEnd:returnCode:contextInfo:` removes, after 0 ("Uninstall"), the add-in's old
    /// files from the folder of the breadcrumb at the index `row`, and that breadcrumb.
    /// Deliberately, the table's row is the index, although the table may stand in another order.
    void minusAlertDidEnd(std::int32_t returnCode, std::int32_t row);
    /// `doACchange:` lets the user choose another startup folder for the selected row.
    void doACchange();
    /// `doACReset:` forgets the breadcrumb that the selected row comes from.
    void doACReset();

    /// `numberOfRowsInTableView:` and `tableView:objectValueForTableColumn:row:`.
    int numberOfRowsInTableView() override;
    std::string tableViewObjectValue(std::string_view column, int row) override;
    /// `tableViewSelectionIsChanging:` and `tableViewSelectionDidChange:`.
    void tableViewSelectionIsChanging() { updateAltPMRKControls(); }
    void tableViewSelectionDidChange() { updateAltPMRKControls(); }
    /// `updateAltPMRKControls`: Change goes with a selected row, − and Reset with one that comes
    /// from a breadcrumb.
    void updateAltPMRKControls();

    /// `doFoundMSWord`, on entering the page: tells the number of Words. `doAltPMRK`, on entering
    /// the page of the table: shows its rows. Both hide the Uninstall button. 0.
    int doFoundMSWord();
    int doAltPMRK();

  private:
    std::string localized(ports::TextKey key) const { return m_needs.texts.lookUp(key); }
    std::int32_t ask(ports::TextKey message, const ButtonText& defText,
                     const ButtonText& altText) const;
    void remember(const std::string& record);
    void forget(std::int32_t index);
    void setForgettable(bool enabled);
    /// The selected row's record; none when no row is selected.
    std::optional<std::string> selectedRecord() const;
    std::optional<std::int32_t> crumbOf(const std::string& record) const;

    Needs m_needs;
};

} // namespace ec
