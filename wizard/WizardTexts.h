// The texts that the wizard shows to be read: welcome, read-me and licence from files of the
// resources, the help of the page in sight, the install log, and the summaries of what was done.
// Keeps what belongs to a page in step with the page shown. Changes nothing on the system.
// Main thread only.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/FrontEnd.h"
#include "platform/ports/LocalizedTexts.h"
#include "rules/ComponentOutline.h"
#include "wizard/WizardOutlets.h"
#include "wizard/WizardSession.h"

namespace ec {

class WizardTexts {
  public:
    struct Needs {
        const WizardSession& session;
        WizardOutlets& outlets;
        ComponentOutline& components;
        const ports::LocalizedTexts& texts;
        ports::Reader& reader;
    };
    /// Gives the Help and Show Log buttons their actions.
    explicit WizardTexts(Needs needs);
    ~WizardTexts();
    WizardTexts(const WizardTexts&) = delete;
    WizardTexts& operator=(const WizardTexts&) = delete;

    /// Fills the pages with their documents. A file that is missing is said to be, and so is the
    /// list of components, at the foot of its empty tree.
    void showDocuments();

    /// Shows the help text of the page in sight.
    void showHelp();
    /// Shows the install log.
    void showLog();

    /// What became of each component and each copy since the wizard was opened, a line for each;
    /// those that are as they were come last.
    controls::StyledText summary() const;

  private:
    class PageWatcher final : public controls::Control::Observer {
      public:
        explicit PageWatcher(WizardTexts& texts) : m_texts(texts) {}
        void controlChanged(controls::Control&) override { m_texts.pageChanged(); }

      private:
        WizardTexts& m_texts;
    };

    struct SummaryLine {
        std::string text;
        bool changed = false; ///< or should have
        bool failed = false;
    };

    void pageChanged();
    std::string missing(std::string_view name) const;
    std::string lineFor(const ComponentOutcome& outcome) const;
    std::string lineFor(const CopyOutcome& copy) const;
    std::vector<SummaryLine> summaryLines() const;

    Needs m_needs;
    PageWatcher m_pageWatcher{*this};
};

} // namespace ec
