#include "wizard/WizardTexts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "engine/FileBytes.h"
#include "engine/LogText.h"
#include "wizard/InstallLog.h"

namespace ec {

namespace {

using controls::DocumentView;
using controls::Progress;

struct PageDocument {
    DocumentView WizardOutlets::* view;
    std::string_view file;
};
constexpr std::array kDocuments{
    PageDocument{&WizardOutlets::welcomeText, "Welcome.html"},
    PageDocument{&WizardOutlets::patchWelcomeText, "UpdateWelcome.html"},
    PageDocument{&WizardOutlets::readMeText, "ReadMe.html"},
    PageDocument{&WizardOutlets::licenseText, "License.html"},
};

struct PageSummary {
    int page;
    DocumentView WizardOutlets::* view;
};
constexpr std::array kSummaries{
    PageSummary{7, &WizardOutlets::installSummary},
    PageSummary{8, &WizardOutlets::changeSummary},
    PageSummary{11, &WizardOutlets::uninstallSummary},
    PageSummary{17, &WizardOutlets::patchSummary},
    PageSummary{27, &WizardOutlets::penmarkSummary},
    PageSummary{28, &WizardOutlets::penmarkUninstallSummary},
};

struct PageProgress {
    int page;
    Progress WizardOutlets::* indicator;
};
constexpr std::array kProgresses{
    PageProgress{0, &WizardOutlets::custProgress},
    PageProgress{10, &WizardOutlets::progress},
};

/// What the summary says of one component.
ports::TextKey sentenceFor(const ComponentOutcome& outcome) {
    using Result = ComponentOutcome::Result;
    switch (outcome.result) {
    case Result::installed:
        return "%@ was installed.";
    case Result::removed:
        return "%@ was removed.";
    case Result::unchanged:
        break;
    case Result::refused:
    case Result::failed:
        return outcome.mode == OpMode::remove ? ports::TextKey("%@ could not be removed.")
                                              : ports::TextKey("%@ could not be installed.");
    }
    if (!outcome.mode)
        return "%@ was left as it is.";
    return outcome.present ? ports::TextKey("%@ is installed, as before.")
                           : ports::TextKey("%@ is not installed, as before.");
}

/// And of one copy.
ports::TextKey sentenceFor(const CopyOutcome& copy) {
    using State = CopyOutcome::State;
    switch (copy.state) {
    case State::updated:
        return "“%@” was updated.";
    case State::refused:
    case State::failed:
        return "“%@” could not be updated.";
    case State::current:
        return "“%@” is up to date already.";
    case State::unfit:
        return "This update does not fit “%@”.";
    case State::offered:
    case State::declined:
        break;
    }
    return "“%@” was left as it is.";
}

} // namespace

WizardTexts::WizardTexts(Needs needs) : m_needs(needs) {
    m_needs.outlets.helpBtn.setAction([this] { showHelp(); });
    m_needs.outlets.logBtn.setAction([this] { showLog(); });
    m_needs.outlets.ecTabView.addObserver(m_pageWatcher);
}

WizardTexts::~WizardTexts() {
    m_needs.outlets.ecTabView.removeObserver(m_pageWatcher);
}

std::string WizardTexts::missing(std::string_view name) const {
    return formatted(m_needs.texts.lookUp("The text “%@” is missing from this copy of the "
                                          "installer. Get a complete copy to read it."),
                     {name});
}

void WizardTexts::showDocuments() {
    for (const auto& [view, name] : kDocuments) {
        DocumentView& document = m_needs.outlets.*view;
        if (const auto file = m_needs.texts.file(name))
            document.setFile(*file);
        else
            document.setText(controls::StyledText::plain(missing(name)));
    }
    m_needs.outlets.aboutText.setText(m_needs.session.m_aboutFileString);
    // nothing can be selected then, so that nothing else is ever said there
    if (m_needs.components.outlineViewNumberOfChildrenOfItem(nullptr) == 0)
        m_needs.outlets.infoText.setText(
            m_needs.texts.lookUp("The list of components is missing from this copy of the "
                                 "installer. Get a complete copy to choose components."));
}

void WizardTexts::showHelp() {
    constexpr std::string_view kHelp = "Help.html";
    const auto file = m_needs.texts.file(kHelp);
    m_needs.reader.read({.title = m_needs.texts.lookUp("Help"),
                         .file = file.value_or(""),
                         .anchor = "page" + std::to_string(m_needs.outlets.ecTabView.selected()),
                         .text = file ? "" : missing(kHelp)},
                        m_needs.outlets.window);
}

void WizardTexts::showLog() {
    std::string lines = bytesOfFile(m_needs.session.places.expandTilde(gLogName));
    m_needs.reader.read({.title = m_needs.texts.lookUp("Install Log"),
                         .file = {},
                         .anchor = {},
                         .text = lines.empty() ? m_needs.texts.lookUp("The install log is empty.")
                                               : std::move(lines)},
                        m_needs.outlets.window);
}

std::string WizardTexts::lineFor(const ComponentOutcome& outcome) const {
    std::string line = formatted(m_needs.texts.lookUp(sentenceFor(outcome)),
                                 {m_needs.texts.translated(outcome.name)});
    if (outcome.reason)
        line +=
            " " + formatted(m_needs.texts.lookUp(outcome.reason->text), {outcome.reason->about});
    return line;
}

std::string WizardTexts::lineFor(const CopyOutcome& copy) const {
    std::string line = formatted(m_needs.texts.lookUp(sentenceFor(copy)), {copy.folder});
    if (const auto reason = copy.reason())
        line += " " + m_needs.texts.lookUp(*reason);
    return line;
}

std::vector<WizardTexts::SummaryLine> WizardTexts::summaryLines() const {
    std::vector<SummaryLine> lines;
    for (const ComponentOutcome& outcome : m_needs.session.outcomes)
        lines.push_back({lineFor(outcome), outcome.result != ComponentOutcome::Result::unchanged,
                         !outcome.succeeded()});
    for (const CopyOutcome& copy : m_needs.session.copies)
        lines.push_back({lineFor(copy), copy.wasAccepted(), !copy.succeeded()});
    return lines;
}

controls::StyledText WizardTexts::summary() const {
    const std::vector<SummaryLine> lines = summaryLines();
    if (lines.empty())
        return controls::StyledText::plain(m_needs.texts.lookUp("Nothing was changed."));
    controls::StyledText text;
    for (const bool changes : {true, false}) { // what is as it was comes last, by itself
        const bool apart = !text.runs.empty();
        bool isFirst = true;
        for (const SummaryLine& line : lines) {
            if (changes != line.changed)
                continue;
            const bool parts = std::exchange(isFirst, false) && apart;
            text.runs.push_back({(parts ? "\n" : "") + line.text + "\n", {}, line.failed});
        }
    }
    text.paragraphSpacing = 4;
    return text;
}

void WizardTexts::pageChanged() {
    const int page = m_needs.outlets.ecTabView.selected();
    for (const auto& [its, indicator] : kProgresses)
        if (page != its)
            (m_needs.outlets.*indicator).stopAnimation();
    const auto* shown = std::ranges::find(kSummaries, page, &PageSummary::page);
    m_needs.outlets.logBtn.setHidden(shown == kSummaries.end() && page != page::kNothingFound);
    if (shown != kSummaries.end())
        (m_needs.outlets.*shown->view).setText(summary());
}

} // namespace ec
