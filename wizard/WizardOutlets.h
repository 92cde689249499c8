// The control models of the wizard's window, by the names of the interface file "Customizer". The
// first base of ecController, so that every facet can be handed the controls that it works. Holds
// state only.
#pragma once

#include "platform/controls/Interface.h"

namespace ec {

/// The pages of `ecTabView` that code names; the others come from the step tables.
namespace page {
inline constexpr int kCount = 29;
inline constexpr int kLicence = 5;
inline constexpr int kComponents = 6;
inline constexpr int kQuitWord = 12;
inline constexpr int kNothingFound = 18; ///< the updater's; it sends its reader to the log
inline constexpr int kLocations = 25;
} // namespace page

struct WizardOutlets {
    controls::Window window;

    // The frame round the pages.
    controls::TabView ecTabView{page::kCount};
    controls::ImageView ecImage;
    controls::TextField outlineText; ///< the names of the pages, at the side
    controls::TextField titleText;
    controls::Button nextBtn;
    controls::Button backBtn;
    controls::Button cancelBtn;
    controls::Button helpBtn;
    controls::Button logBtn; ///< opens the install log; in sight on the last pages

    // 0 scanning, 10 updating
    controls::Progress custProgress;
    controls::Progress progress;
    controls::TextField processingText; ///< names the component under work

    // 1 welcome, 14 patcher's welcome, 4 read-me, 5 licence
    controls::DocumentView welcomeText;
    controls::TextField aboutText;
    controls::DocumentView patchWelcomeText;
    controls::DocumentView readMeText;
    controls::DocumentView licenseText;
    controls::RadioMatrix agreeBtns{2, 1}; ///< Agree, Disagree

    // 6 components
    controls::OutlineView ecOutlineView;
    controls::TextField infoText; ///< what the selected component is
    controls::Button uninstallBtn;
    controls::Button locationsBtn; ///< opens the alternate locations

    // 13 Services and Spotlight: for this user, for all users
    controls::TextField spotText;
    controls::RadioMatrix spotBtns{2, 0, controls::RadioMatrix::Emptying::byUser};
    controls::TextField servText;
    controls::RadioMatrix servBtns{2, 0, controls::RadioMatrix::Emptying::byUser};

    // 16 a copy found by the patcher
    controls::TextField patchFound;

    // 23 found Word, 25 alternate locations
    controls::TextField numOfMSWordsText;
    controls::TableView acTbl{{"wordPath", "startupPath", "wordversion"}};
    controls::Button acPlus;
    controls::Button acMinusBtn;
    controls::Button acChange;
    controls::Button acResetBtn;
    controls::Button acDoneBtn; ///< leads back to the components

    // 26 Penmark welcome: install, uninstall
    controls::RadioMatrix matSVWInstall{2};

    // What was done: 7, 8, 11, 17, 27, 28
    controls::DocumentView installSummary;
    controls::DocumentView changeSummary;
    controls::DocumentView uninstallSummary;
    controls::DocumentView patchSummary;
    controls::DocumentView penmarkSummary;
    controls::DocumentView penmarkUninstallSummary;

    controls::Interface outlets{window,
                                {{"nextBtn", &nextBtn},
                                 {"backBtn", &backBtn},
                                 {"cancelBtn", &cancelBtn},
                                 {"helpBtn", &helpBtn},
                                 {"logBtn", &logBtn},
                                 {"uninstallBtn", &uninstallBtn},
                                 {"locationsBtn", &locationsBtn},
                                 {"ecTabView", &ecTabView},
                                 {"ecImage", &ecImage},
                                 {"outlineText", &outlineText},
                                 {"titleText", &titleText},
                                 {"custProgress", &custProgress},
                                 {"progress", &progress},
                                 {"processingText", &processingText},
                                 {"welcomeText", &welcomeText},
                                 {"aboutText", &aboutText},
                                 {"patchWelcomeText", &patchWelcomeText},
                                 {"readMeText", &readMeText},
                                 {"licenseText", &licenseText},
                                 {"agreeBtns", &agreeBtns},
                                 {"ecOutlineView", &ecOutlineView},
                                 {"infoText", &infoText},
                                 {"spotText", &spotText},
                                 {"spotBtns", &spotBtns},
                                 {"servText", &servText},
                                 {"servBtns", &servBtns},
                                 {"patchFound", &patchFound},
                                 {"numOfMSWordsText", &numOfMSWordsText},
                                 {"acTbl", &acTbl},
                                 {"acPlus", &acPlus},
                                 {"acMinusBtn", &acMinusBtn},
                                 {"acChange", &acChange},
                                 {"acResetBtn", &acResetBtn},
                                 {"acDoneBtn", &acDoneBtn},
                                 {"matSVWInstall", &matSVWInstall},
                                 {"installSummary", &installSummary},
                                 {"changeSummary", &changeSummary},
                                 {"uninstallSummary", &uninstallSummary},
                                 {"patchSummary", &patchSummary},
                                 {"penmarkSummary", &penmarkSummary},
                                 {"penmarkUninstallSummary", &penmarkUninstallSummary}}};
};

} // namespace ec
