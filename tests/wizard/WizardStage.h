// The whole wizard over fakes, and a user who does one thing whenever its window or a question
// waits. What was in sight at each wait, and whenever the window was drawn before a long piece of
// work, is kept as text, so that a test reads as the user's way through the pages.
#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/TemporaryFolder.h"
#include "wizard/ecController.h"

namespace tests {

/// Five components: two that need the page of Services and Spotlight, in a group, and two others.
inline constexpr const char* kStageRules = "Word|0|Word integration\n"
                                           "Penmark|1|Penmark for Word|inst_Word\n"
                                           "System|0|System integration\n"
                                           "Spotlight|1|Spotlight importer|inst_Spotlight\n"
                                           "Services|1|Services menu|inst_Services\n"
                                           "Browser|0|Browser extension|inst_Tessaron\n";
namespace stage_item {
inline constexpr std::uint32_t kPenmark = 1, kSpotlight = 3, kServices = 4;
} // namespace stage_item

class WizardStage : private controls::Control::Observer {
  public:
    WizardStage() : controller(preparedHost(), components.rules, components.root) {
        controller.window.addObserver(*this);
    }
    virtual ~WizardStage() { controller.window.removeObserver(*this); }
    WizardStage(const WizardStage&) = delete;
    WizardStage& operator=(const WizardStage&) = delete;

    using Deed = std::function<void()>;

    TemporaryFolder folder; ///< the resources lie in it
    fakes::FakeHost host;
    Components components{kStageRules};

    /// What the user still does, one thing at each wait.
    std::deque<Deed> user;
    /// The window at each wait; the rows that came into sight; the questions that were answered.
    std::vector<std::string> looks;
    std::vector<ports::RowShown> rows;
    std::vector<ports::QuestionAnswered> questions;
    /// The window each time it was drawn at once.
    std::vector<std::string> drawn;

    ec::ecController controller;

    /// Opens the wizard and has the user do all this; answers the wizard's result.
    std::int32_t show(std::uint32_t launchMode, std::deque<Deed> deeds) {
        return run([&] { return controller.showCustomizerFromMenu(launchMode); }, std::move(deeds));
    }
    std::int32_t showPatcher(std::deque<Deed> deeds) {
        return run([&] { return controller.showPatcherFromMenu(); }, std::move(deeds));
    }

    // What the user can do.
    Deed next() {
        return [this] { controller.nextBtn.press(); };
    }
    Deed back() {
        return [this] { controller.backBtn.press(); };
    }
    Deed cancel() {
        return [this] { controller.cancelBtn.press(); };
    }
    Deed uninstall() {
        return [this] { controller.uninstallBtn.press(); };
    }
    Deed closeWindow() {
        return [this] { controller.window.performClose(); };
    }
    /// Presses the question's button with that title.
    Deed answer(std::string title) {
        return [this, title = std::move(title)] { answerQuestion(title); };
    }

    void answerQuestion(const std::string& title) {
        for (const auto* outlet : {"defBtn", "altBtn", "othBtn"}) {
            auto& button = host.interfaceFiles.control<controls::Button>("ecPanel", outlet);
            if (!button.isHidden() && button.title() == title)
                return button.press();
        }
        ADD_FAILURE() << "The question has no button " << title;
    }
    bool isAsked() const { return !host.modalLoop.sheets.empty(); }

    /// The page, its title and the buttons, those in parentheses that are disabled:
    /// "4 Read Me: Back Next (Cancel)".
    std::string look() const {
        const auto button = [](const controls::Button& its, const std::string& title) {
            return its.isEnabled() ? " " + title : " (" + title + ")";
        };
        return std::to_string(controller.ecTabView.selected()) + " " + controller.titleText.text() +
               ":" + button(controller.backBtn, controller.backBtn.title()) +
               button(controller.nextBtn, controller.nextBtn.title()) +
               button(controller.cancelBtn, "Cancel");
    }
    /// The outline's current entry as it shows: the one whose name is bold.
    std::string currentName() const {
        const auto& runs = controller.outlineText.styledText().runs;
        for (std::size_t i = 1; i < runs.size(); i += 2)
            if (runs[i].bold)
                return runs[i].text.substr(2, runs[i].text.size() - 3);
        return {};
    }
    /// The pages of the rows that came into sight, in order.
    std::vector<int> pages() const {
        std::vector<int> all;
        for (const ports::RowShown& row : rows)
            all.push_back(row.page);
        return all;
    }
    /// Was the line written to the log?
    long timesLogged(const std::string& line) const {
        return std::ranges::count(host.logged(), line);
    }

  private:
    ports::Host preparedHost() {
        host.bundles.resourceFolder = folder.path();
        host.places.temporary = folder.path();
        host.places.root = folder.path(); // the updater writes below it
        host.watchers.rowShown = [this](const ports::RowShown& row) { rows.push_back(row); };
        host.watchers.answered = [this](const ports::QuestionAnswered& question) {
            questions.push_back(question);
        };
        host.modalLoop.idle = [this] { return idle(); };
        return host.host();
    }
    bool idle() {
        if (!isAsked())
            looks.push_back(look());
        if (user.empty())
            return false;
        const Deed deed = std::move(user.front());
        user.pop_front();
        deed();
        return true;
    }
    template <class Show>
    std::int32_t run(Show wizard, std::deque<Deed> deeds) {
        user = std::move(deeds);
        const std::int32_t result = wizard();
        EXPECT_TRUE(user.empty()) << user.size() << " deeds are left";
        EXPECT_FALSE(host.modalLoop.isRunning());
        return result;
    }

    void controlChanged(controls::Control&) override {}
    void displayNow(controls::Control&) override {
        drawn.push_back(look() + (controller.custProgress.isRunning() ? " scanning" : "") +
                        (controller.progress.isRunning() ? " working" : ""));
    }
};

} // namespace tests
