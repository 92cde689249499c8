#include "wizard/WizardSteps.h"

#include <algorithm>
#include <utility>

#include "wizard/LaunchModes.h"

namespace ec {

namespace {

using controls::Colour;
using controls::StyledText;
using controls::TextRun;

constexpr int kProgressPage = 10;
/// The row after one with this page is passed over going forward.
constexpr int kPageBeforePassedOver = 23;

constexpr std::string_view kBullet = "\u2022";
constexpr Colour kReached{0.0, 0.5, 0.71, 1.0};
constexpr Colour kToCome{0.2, 0.2, 0.2, 0.8};
/// Keeps the names legible on a dark ground.
constexpr Colour kLightGrey{2.0 / 3, 2.0 / 3, 2.0 / 3, 1.0};
constexpr double kParagraphSpacing = 8.0;

struct Mode {
    std::uint32_t number;
    std::string_view identity;
    std::span<const StepRow> steps;
    std::span<const OutlineRow> outline;
};
constexpr Mode kShortInstall{0, "", gAutoList, gAutoNavList};
constexpr std::array kModes{
    Mode{0, "", gEasyList, gEasyNavList},
    Mode{1, "Customizer_Customizer", gCustomList, gCustomNavList},
    Mode{3, "Customizer_Patcher", gPatchList, gPatchNavList},
    Mode{4, "Customizer_SVWeb_Install", gSVWebInstList, gSVWebNavList},
};

} // namespace

WizardSteps::WizardSteps(Needs needs) : m_needs(std::move(needs)) {
    std::ranges::transform(gInstallStateLabels, m_titles.begin(), [this](const PageTitle& label) {
        return m_needs.texts.lookUp(label.title);
    });
}

void WizardSteps::startState(std::uint32_t mode) {
    gDoneState = false;
    m_needs.outlets.helpBtn.setHidden(mode == 0);
    const auto* known = std::ranges::find(kModes, mode, &Mode::number);
    if (known != kModes.end()) {
        const bool isShort = mode == 0 && m_needs.session.m_mode == launch::kShortInstall;
        const Mode& chosen = isShort ? kShortInstall : *known;
        m_identity = chosen.identity;
        useTables(chosen.steps, chosen.outline);
    }
    m_state = -1;
    nextState();
}

void WizardSteps::useTables(std::span<const StepRow> steps, std::span<const OutlineRow> outline) {
    gListPtr = steps;
    gNavListPtr = outline;
}

const StepRow& WizardSteps::rowAt(std::int32_t state) const {
    return state >= 0 && static_cast<std::size_t>(state) < gListPtr.size()
               ? gListPtr[static_cast<std::size_t>(state)]
               : tables::kTerminator;
}

void WizardSteps::nextState() {
    if (gDoneState)
        return;
    const std::int32_t left = m_state;
    if (left != -1) {
        const StepRow& row = currentRow();
        if (m_needs.actions.runSelector(row.leaveAction) == ActionResult::object ||
            m_needs.actions.runSelector(row.secondLeaveAction) == ActionResult::object)
            return;
    }
    refresh();
    if (m_state != left)
        return; // an action has jumped, and shown its row
    if (currentRow().page == kPageBeforePassedOver)
        ++m_state;
    ++m_state;
    refresh();
    showRow(Redraw::withPage);
}

void WizardSteps::doNextState() {
    nextState();
    refresh();
}

void WizardSteps::skipToNextState() {
    ++m_state;
    refresh();
    showRow(Redraw::always);
}

void WizardSteps::stepBack() {
    const std::int32_t left = m_state--;
    if (left != 1 && currentRow().page == kProgressPage)
        --m_state;
    refresh();
}

void WizardSteps::skipToPrevState() {
    stepBack();
    showRow(Redraw::always);
}

void WizardSteps::prevState() {
    if (m_state != -1) {
        const StepRow& row = currentRow();
        (void)m_needs.actions.runSelector(row.leaveAction);
        (void)m_needs.actions.runSelector(row.secondLeaveAction);
    }
    if (gDoneState)
        return;
    stepBack();
    showRow(Redraw::never);
}

void WizardSteps::skipToState(std::string_view label) {
    const auto found = std::ranges::find_if(
        gListPtr, [&](const StepRow& row) { return row.label && *row.label == label; });
    m_state = static_cast<std::int32_t>(found - gListPtr.begin());
    if (found != gListPtr.end())
        showRow(Redraw::always);
}

void WizardSteps::skipToRelativeState(std::int32_t rows) {
    const std::int64_t wanted = std::int64_t{m_state} + rows;
    if (wanted >= static_cast<std::int64_t>(gListPtr.size())) {
        m_needs.beeper.beep();
        return;
    }
    m_state = static_cast<std::int32_t>(wanted);
    showRow(Redraw::always);
}

void WizardSteps::showRow(Redraw redraw) {
    WizardOutlets& outlets = m_needs.outlets;
    const StepRow& row = currentRow();
    outlets.backBtn.setHidden(false);
    outlets.backBtn.setEnabled(m_state != 0);
    outlets.backBtn.setTitle(m_needs.texts.lookUp("Back"));
    outlets.nextBtn.setHidden(false);
    outlets.nextBtn.setEnabled(true);
    outlets.nextBtn.setTitle(m_needs.texts.lookUp("Next"));
    outlets.ecTabView.select(row.page);
    if (redraw == Redraw::always || (redraw == Redraw::withPage && !row.isTerminator()))
        outlets.ecTabView.display();
    if (m_state == -1)
        return;
    tellRowShown();
    (void)m_needs.actions.runSelector(row.pictureAction);
    (void)m_needs.actions.runSelector(row.enterAction);
}

void WizardSteps::refresh() {
    updateOutlineText();
    updateTitleText();
}

int WizardSteps::currentOutlineEntry() const {
    const int page = currentRow().page;
    if (m_state <= 0 || page == kNoPage)
        return 0;
    const auto found = std::ranges::find_if(gNavListPtr, [&](const OutlineRow& entry) {
        return std::ranges::find(entry.pages, page) != entry.pages.end();
    });
    return found == gNavListPtr.end() ? 0 : static_cast<int>(found - gNavListPtr.begin());
}

void WizardSteps::updateOutlineText() {
    const int current = currentOutlineEntry();
    const auto nameColour = m_needs.appearance.isDark() ? std::optional(kLightGrey) : std::nullopt;
    StyledText text;
    for (int i = 0; const OutlineRow& entry : gNavListPtr) {
        const bool reached = i <= current;
        const std::string name = "  " + m_needs.texts.lookUp(entry.name) + "\n";
        text.runs.push_back({std::string(kBullet), reached ? kReached : kToCome, reached});
        text.runs.push_back({name,
                             nameColour ? nameColour
                             : reached  ? std::nullopt
                                        : std::optional(kToCome),
                             i == current});
        ++i;
    }
    text.paragraphSpacing = kParagraphSpacing;
    m_needs.outlets.outlineText.setStyledText(std::move(text));
}

std::string WizardSteps::titleOf(int page) const {
    const auto* found = std::ranges::find(gInstallStateLabels, page, &PageTitle::page);
    return found == gInstallStateLabels.end()
               ? std::string()
               : m_titles[static_cast<std::size_t>(found - gInstallStateLabels.begin())];
}

void WizardSteps::updateTitleText() {
    m_needs.outlets.titleText.setText(titleOf(currentRow().page));
}

void WizardSteps::tellRowShown() const {
    if (!m_needs.rowShown)
        return;
    std::vector<std::string> names;
    for (const OutlineRow& entry : gNavListPtr)
        names.push_back(m_needs.texts.lookUp(entry.name));
    const int shown = m_needs.outlets.ecTabView.selected();
    m_needs.rowShown({.page = shown,
                      .state = m_state,
                      .title = titleOf(shown == page::kLocations ? shown : currentRow().page),
                      .outline = std::move(names),
                      .current = currentOutlineEntry(),
                      .identity = std::string(m_identity)});
}

} // namespace ec
