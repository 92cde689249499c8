// What the wizard remembers between its runs about where Word and its startup folders are: a
// dictionary that is kept in a preferences file of the user's. Discovery, startup folders and the
// page of alternate locations read it; that page changes it. Every change is saved at once.
//
// The file: an XML property list (a binary one is read too). Under "Word" stands an array of pair
// records (PairRecord), at most one for each Word path; under "Scrivel" the path of the installer's
// executable. All other entries are kept as they are. Main thread.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports/PropertyLists.h"
#include "wizard/InstallLog.h"
#include "wizard/WizardSession.h"

namespace ec {

/// The preferences file; the leading "~" is the user's home folder.
inline constexpr std::string_view kBreadcrumbsFile =
    "~/Library/Preferences/com.BrackleyHarlow.ScrivelCustomizer.plist";

class Breadcrumbs {
  public:
    struct Needs {
        InstallLog& log;
        const WizardSession& session;
        ports::PropertyLists& lists;
    };
    explicit Breadcrumbs(Needs needs)
        : m_needs(needs), m_customizerCrumbs(needs.lists.emptyDictionary()) {}
    Breadcrumbs(const Breadcrumbs&) = delete;
    Breadcrumbs& operator=(const Breadcrumbs&) = delete;

    /// What the user is pointing at just now on the page of alternate locations, which alone writes
    /// it: the application, its startup folder, its major version, and whether it was recorded.
    std::string m_crumb_word;
    std::string m_crumb_startup;
    std::int32_t m_crumb_version = 0;
    bool m_breadCrumbsUpdated = false;

    /// Adds the file's entries to the dictionary, when the wizard's window is loaded. A file that
    /// is missing or broken adds none, without a message.
    void readBreadcrumbs();

    /// The records under "Word", in their order; none when there is no such array.
    std::optional<std::vector<std::string>> wordCrumbs() const {
        return m_customizerCrumbs->strings(kWord);
    }

    /// `addWordCrumb:` puts the record in the place of every one of the same Word path (letter case
    /// does not count), or else at the end, and saves. Logs each record that was there.
    void addWordCrumb(std::string_view record);

    /// `deleteWordCrumb:` drops the record at the index, or none when there is none, and saves.
    void deleteWordCrumb(std::int32_t index);

    /// `saveBreadcrumbs` writes the file. A failure is passed over: the dictionary stays current
    /// for the rest of the run. A broken file in its place is kept under a second name first, with
    /// a line in the log; where that fails nothing is written, so that nothing is lost.
    void saveBreadcrumbs();

  private:
    static constexpr std::string_view kWord = "Word";
    static constexpr std::string_view kScrivel = "Scrivel";

    std::string path() const { return m_needs.session.places.expandTilde(kBreadcrumbsFile); }
    bool keepBrokenFile(const std::string& path);

    Needs m_needs;
    std::unique_ptr<ports::PropertyDictionary> m_customizerCrumbs;
};

} // namespace ec
