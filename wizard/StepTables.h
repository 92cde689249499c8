// What the wizard does in each mode, as data: the pages in their order with the actions that run on
// entering and leaving them, the names in the outline at the side, and the pages' titles. Read by
// WizardSteps; constant, and proved at compile time here and in ActionTable.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>

#include "platform/ports/LocalizedTexts.h"

namespace ec {

inline constexpr int kNoPage = -1;

/// One row of a table of steps. Actions are named by their selectors' first keywords; an empty name
/// is no action.
struct StepRow {
    int page = kNoPage; ///< index in the tab view; kNoPage ends a run of rows
    std::optional<std::string_view> label = std::nullopt; ///< where `skipToState:` may jump to
    std::string_view pictureAction = {};
    std::string_view enterAction = {};
    std::string_view leaveAction = {}; ///< its answer may keep the wizard on the page
    std::string_view secondLeaveAction = {};

    constexpr bool isTerminator() const { return page == kNoPage; }
};

/// One entry of the outline: it is the current one while a page of its slots is shown.
struct OutlineRow {
    ports::TextKey name;
    std::array<int, 3> pages;
};

struct PageTitle {
    int page;
    ports::TextKey title;
};

namespace tables {

inline constexpr StepRow kTerminator{};

constexpr StepRow step(int page, std::string_view enter = {}, std::string_view leave = {}) {
    return {.page = page,
            .pictureAction = "installAppLogo",
            .enterAction = enter,
            .leaveAction = leave};
}
constexpr StepRow labelled(std::string_view label, StepRow row) {
    row.label = label;
    return row;
}
constexpr OutlineRow entry(ports::TextKey name, int page, int second = kNoPage) {
    return {name, {page, second, kNoPage}};
}

} // namespace tables

/// Mode 0: the full first-install sequence.
inline constexpr std::array<StepRow, 9> gEasyList{
    tables::step(0, "startToFind"),
    tables::step(1, "disableBackOnly"),
    tables::step(4),
    tables::step(5, "doAgreeChange"),
    tables::step(6),
    tables::step(10, "doCheckForWord"),
    tables::labelled("GotWord", tables::step(10, "startToInitialInstall")),
    tables::step(7, "setDone", "doExit"),
    tables::kTerminator,
};
inline constexpr std::array<OutlineRow, 6> gEasyNavList{
    tables::entry("Welcome", 1),          tables::entry("Read Me", 4),
    tables::entry("License", 5),          tables::entry("Customization", 6),
    tables::entry("Updating System", 10), tables::entry("Summary", 7),
};

/// Mode 0 with launch mode 34: the short sequence.
inline constexpr std::array<StepRow, 5> gAutoList{
    tables::step(1),
    tables::step(4),
    tables::step(10, "startToInitialInstall"),
    tables::step(7, "setDone", "doExit"),
    tables::kTerminator,
};
inline constexpr std::array<OutlineRow, 4> gAutoNavList{
    tables::entry("Welcome", 1),
    tables::entry("Read Me", 4),
    tables::entry("Updating System", 10),
    tables::entry("Summary", 7),
};

/// Mode 1: the Customizer. No terminator stands between rows 4 and 5.
inline constexpr std::array<StepRow, 7> gCustomList{
    tables::step(0, "startToFind"),
    tables::step(6, "disableBack"),
    tables::step(13, "adjustServSpot"),
    tables::labelled("Go", tables::step(10, "startToMakeChange")),
    tables::step(8, "setDone", "doCustExit"),
    tables::step(11, "setExit", "doUninstallExit"),
    tables::kTerminator,
};
inline constexpr std::array<OutlineRow, 3> gCustomNavList{
    tables::entry("Customization", 6),
    tables::entry("Updating System", 10),
    tables::entry("Summary", 8, 11),
};

/// Mode 3: the patcher.
inline constexpr std::array<StepRow, 11> gPatchList{
    tables::step(14),
    tables::step(4),
    tables::step(0, "patchFindUI"),
    tables::step(0, "findTheScrivels"),
    tables::labelled("Found", tables::step(16)),
    tables::step(10, "patchProgressUI"),
    tables::step(10, "doPatchYes"),
    tables::labelled("Done", tables::step(17, "setDone", "doUninstallExit")),
    tables::kTerminator,
    tables::labelled("Nothing", tables::step(18, "setDone", "doUninstallExit")),
    tables::kTerminator,
};
inline constexpr std::array<OutlineRow, 6> gPatchNavList{
    tables::entry("Welcome", 14),         tables::entry("Read Me", 4),
    tables::entry("Finding Scrivel", 0),  tables::entry("Found Scrivel", 16),
    tables::entry("Updating System", 10), tables::entry("Summary", 17, 18),
};

/// Mode 4: Penmark alone.
inline constexpr std::array<StepRow, 10> gSVWebInstList{
    tables::step(0, "startToFind"),
    tables::labelled("Start", tables::step(26, "disableBack", "doStartSVWeb")),
    tables::labelled("Custom", tables::step(6)),
    tables::labelled("Go", tables::step(10, "startToInitialInstall")),
    tables::step(27, "setDone", "doExit"),
    tables::kTerminator,
    tables::labelled("doSVWUninstall", tables::step(10, "startToMakeChange")),
    tables::step(27, "setDone", "doCustExit"),
    tables::step(28, "setDone", "doUninstallExit"),
    tables::kTerminator,
};
inline constexpr std::array<OutlineRow, 4> gSVWebNavList{
    tables::entry("Welcome", 26),
    tables::entry("Customization", 6),
    tables::entry("Updating System", 10),
    tables::entry("Summary", 27, 28),
};

/// The pages' titles; a page that is not here has none. Each is looked up once, at the start.
inline constexpr std::array<PageTitle, 14> gInstallStateLabels{{
    {1, "Welcome to Scrivel 21"},
    {4, "Read Me"},
    {5, "End User License Agreement"},
    {6, "Select Components"},
    {7, "Thank you for using Scrivel 21"},
    {8, "Finish"},
    {9, "Uninstall Scrivel 21"},
    {10, "Updating System"},
    {14, "Welcome to Scrivel 21 Update"},
    {17, "Finish"},
    {23, "Penmark for Microsoft Word"},
    {25, "Scrivel Penmark Configuration"},
    {26, "Welcome to Scrivel Penmark"},
    {28, "Finish"},
}};

namespace tables {

inline constexpr std::array<std::span<const StepRow>, 5> kAllSteps{
    gEasyList, gAutoList, gCustomList, gPatchList, gSVWebInstList};

/// Ends with a terminator, no label stands twice, and every other row shows the picture.
constexpr bool isWellFormed(std::span<const StepRow> rows) {
    if (rows.empty() || !rows.back().isTerminator())
        return false;
    for (const StepRow& row : rows) {
        const auto same = [&](const StepRow& other) { return other.label == row.label; };
        if (row.label && std::ranges::count_if(rows, same) != 1)
            return false;
        if (row.isTerminator() ? row.label || !row.pictureAction.empty() ||
                                     !row.enterAction.empty() || !row.leaveAction.empty()
                               : row.pictureAction != "installAppLogo")
            return false;
        if (!row.secondLeaveAction.empty())
            return false;
    }
    return true;
}
static_assert(std::ranges::all_of(kAllSteps, isWellFormed));

constexpr bool hasLabel(std::span<const StepRow> rows, std::string_view label) {
    return std::ranges::any_of(rows, [&](const StepRow& row) { return row.label == label; });
}
static_assert(hasLabel(gEasyList, "GotWord") && hasLabel(gCustomList, "Go") &&
              hasLabel(gPatchList, "Found") && hasLabel(gPatchList, "Nothing") &&
              hasLabel(gPatchList, "Done") && hasLabel(gSVWebInstList, "Custom") &&
              hasLabel(gSVWebInstList, "doSVWUninstall"));

} // namespace tables

} // namespace ec
