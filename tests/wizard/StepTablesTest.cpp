// The tables of the wizard, row by row, against the same facts written down a second time.
#include "wizard/StepTables.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

using ec::gAutoList;
using ec::gAutoNavList;
using ec::gCustomList;
using ec::gCustomNavList;
using ec::gEasyList;
using ec::gEasyNavList;
using ec::gInstallStateLabels;
using ec::gPatchList;
using ec::gPatchNavList;
using ec::gSVWebInstList;
using ec::gSVWebNavList;

/// A row as one reads it: "page [label] enter / leave", the actions "-" where there are none.
std::string text(const ec::StepRow& row) {
    const auto orDash = [](std::string_view name) {
        return name.empty() ? std::string("-") : std::string(name);
    };
    return std::to_string(row.page) + (row.label ? " [" + std::string(*row.label) + "] " : " ") +
           orDash(row.enterAction) + " / " + orDash(row.leaveAction);
}
std::vector<std::string> texts(std::span<const ec::StepRow> rows) {
    std::vector<std::string> all;
    for (const ec::StepRow& row : rows)
        all.push_back(text(row));
    return all;
}

/// An entry as one reads it: "name: page page page".
std::vector<std::string> texts(std::span<const ec::OutlineRow> rows) {
    std::vector<std::string> all;
    for (const ec::OutlineRow& row : rows) {
        std::string line = std::string(row.name.english()) + ":";
        for (const int page : row.pages)
            line += " " + std::to_string(page);
        all.push_back(line);
    }
    return all;
}

using Lines = std::vector<std::string>;

TEST(StepTables, TheFullFirstInstallHasNineRows) {
    EXPECT_EQ(texts(gEasyList), (Lines{
                                    "0 startToFind / -",
                                    "1 disableBackOnly / -",
                                    "4 - / -",
                                    "5 doAgreeChange / -",
                                    "6 - / -",
                                    "10 doCheckForWord / -",
                                    "10 [GotWord] startToInitialInstall / -",
                                    "7 setDone / doExit",
                                    "-1 - / -",
                                }));
}

TEST(StepTables, TheShortFirstInstallHasFiveRows) {
    EXPECT_EQ(texts(gAutoList), (Lines{
                                    "1 - / -",
                                    "4 - / -",
                                    "10 startToInitialInstall / -",
                                    "7 setDone / doExit",
                                    "-1 - / -",
                                }));
}

TEST(StepTables, TheCustomizerHasSevenRowsAndNoTerminatorBeforeItsUninstallPage) {
    EXPECT_EQ(texts(gCustomList), (Lines{
                                      "0 startToFind / -",
                                      "6 disableBack / -",
                                      "13 adjustServSpot / -",
                                      "10 [Go] startToMakeChange / -",
                                      "8 setDone / doCustExit",
                                      "11 setExit / doUninstallExit",
                                      "-1 - / -",
                                  }));
}

TEST(StepTables, ThePatcherHasElevenRows) {
    EXPECT_EQ(texts(gPatchList), (Lines{
                                     "14 - / -",
                                     "4 - / -",
                                     "0 patchFindUI / -",
                                     "0 findTheScrivels / -",
                                     "16 [Found] - / -",
                                     "10 patchProgressUI / -",
                                     "10 doPatchYes / -",
                                     "17 [Done] setDone / doUninstallExit",
                                     "-1 - / -",
                                     "18 [Nothing] setDone / doUninstallExit",
                                     "-1 - / -",
                                 }));
}

TEST(StepTables, PenmarkHasTenRows) {
    EXPECT_EQ(texts(gSVWebInstList), (Lines{
                                         "0 startToFind / -",
                                         "26 [Start] disableBack / doStartSVWeb",
                                         "6 [Custom] - / -",
                                         "10 [Go] startToInitialInstall / -",
                                         "27 setDone / doExit",
                                         "-1 - / -",
                                         "10 [doSVWUninstall] startToMakeChange / -",
                                         "27 setDone / doCustExit",
                                         "28 setDone / doUninstallExit",
                                         "-1 - / -",
                                     }));
}

TEST(StepTables, EveryRowShowsThePictureButTerminatorsAndNoneHasASecondLeaveAction) {
    for (const auto rows : ec::tables::kAllSteps)
        for (const ec::StepRow& row : rows) {
            EXPECT_EQ(row.pictureAction, row.page == -1 ? "" : "installAppLogo") << text(row);
            EXPECT_EQ(row.secondLeaveAction, "") << text(row);
            EXPECT_EQ(row.isTerminator(), row.page == -1) << text(row);
        }
}

TEST(StepTables, NoRowCarriesTheLabelOfTheAlternateLocations) {
    for (const auto rows : ec::tables::kAllSteps)
        EXPECT_FALSE(ec::tables::hasLabel(rows, "altPMRK"));
}

TEST(StepTables, TheOutlinesNameTheirPagesInOrder) {
    EXPECT_EQ(texts(gEasyNavList),
              (Lines{"Welcome: 1 -1 -1", "Read Me: 4 -1 -1", "License: 5 -1 -1",
                     "Customization: 6 -1 -1", "Updating System: 10 -1 -1", "Summary: 7 -1 -1"}));
    EXPECT_EQ(texts(gAutoNavList), (Lines{"Welcome: 1 -1 -1", "Read Me: 4 -1 -1",
                                          "Updating System: 10 -1 -1", "Summary: 7 -1 -1"}));
    EXPECT_EQ(texts(gCustomNavList),
              (Lines{"Customization: 6 -1 -1", "Updating System: 10 -1 -1", "Summary: 8 11 -1"}));
    EXPECT_EQ(texts(gPatchNavList),
              (Lines{"Welcome: 14 -1 -1", "Read Me: 4 -1 -1", "Finding Scrivel: 0 -1 -1",
                     "Found Scrivel: 16 -1 -1", "Updating System: 10 -1 -1", "Summary: 17 18 -1"}));
    EXPECT_EQ(texts(gSVWebNavList), (Lines{"Welcome: 26 -1 -1", "Customization: 6 -1 -1",
                                           "Updating System: 10 -1 -1", "Summary: 27 28 -1"}));
}

TEST(StepTables, FourteenPagesHaveTitlesInThisOrder) {
    Lines titles;
    for (const ec::PageTitle& title : gInstallStateLabels)
        titles.push_back(std::to_string(title.page) + " " + std::string(title.title.english()));
    EXPECT_EQ(titles, (Lines{"1 Welcome to Scrivel 21", "4 Read Me", "5 End User License Agreement",
                             "6 Select Components", "7 Thank you for using Scrivel 21", "8 Finish",
                             "9 Uninstall Scrivel 21", "10 Updating System",
                             "14 Welcome to Scrivel 21 Update", "17 Finish",
                             "23 Penmark for Microsoft Word", "25 Scrivel Penmark Configuration",
                             "26 Welcome to Scrivel Penmark", "28 Finish"}));
}

TEST(StepTables, ATableThatDoesNotEndWithATerminatorIsRefused) {
    using namespace ec::tables;
    constexpr std::array kOpenEnd{step(1), step(2)};
    constexpr std::array kTwice{labelled("a", step(1)), labelled("a", step(2)), kTerminator};
    constexpr std::array kSecond{
        ec::StepRow{.page = 1, .pictureAction = "installAppLogo", .secondLeaveAction = "doExit"},
        kTerminator};
    constexpr std::array kGood{labelled("a", step(1)), kTerminator, labelled("b", step(1)),
                               kTerminator};
    EXPECT_FALSE(isWellFormed(kOpenEnd));
    EXPECT_FALSE(isWellFormed(kTwice));
    EXPECT_FALSE(isWellFormed(kSecond));
    EXPECT_FALSE(isWellFormed({}));
    EXPECT_TRUE(isWellFormed(kGood));
}

} // namespace
