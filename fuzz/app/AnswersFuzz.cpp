// Answers files from anywhere: whatever the bytes, the file is read or refused with a sentence that
// names it, and a wizard over pretended ports survives its steps: each is done or refused with a
// reason.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "app/unattended/AnswersFile.h"
#include "app/unattended/StepPerformer.h"
#include "tests/fakes/FakeHost.h"
#include "tests/support/Components.h"
#include "tests/support/TemporaryFolder.h"

namespace {

constexpr const char* kRules = "Word|0|Word integration\n"
                               "Penmark|1|Penmark for Word|inst_Word\n"
                               "System|0|System integration\n"
                               "Same|1|Spotlight importer|inst_Spotlight\n"
                               "Other|0|another group\n"
                               "Same|1|Services menu|inst_Services|a\n";

void check(bool holds) {
    if (!holds)
        std::abort();
}

/// The wizard with nothing below it, on its first page. Questions are closed unanswered.
class Wizard {
  public:
    explicit Wizard(const std::string& root)
        : m_controller(hostBelow(root), m_components.rules, m_components.root) {
        m_events.addListener([](const app::Event& event) {
            check(app::Event::accept(app::EventStream::line(event)));
        });
        m_controller.attach();
        m_controller.startState(0);
    }

    void perform(const app::Step& step) {
        m_host.modalLoop.terminated = false;
        const auto refusal = performStep(step, {m_controller.outlets, &m_controller}, m_events);
        check(!refusal || !refusal->empty());
        const int page = m_controller.ecTabView.selected();
        check(page >= 0 && page < ec::page::kCount);
        const auto* clicked = std::get_if<app::ComponentStep>(&step);
        if (clicked && clicked->state && !refusal) {
            const auto found = m_controller.ComponentOutline::find(clicked->component);
            check(found.item && found.item->getItemState() == *clicked->state);
        }
    }

  private:
    ports::Host hostBelow(const std::string& root) {
        m_host.places = {.root = root, .home = root + "/home", .temporary = root};
        m_host.bundles.resourceFolder = root;
        m_host.modalLoop.idle = [this] { return m_host.modalLoop.terminated = true; };
        return m_host.host();
    }

    fakes::FakeHost m_host;
    tests::Components m_components{kRules};
    ec::ecController m_controller;
    app::EventStream m_events{m_host.clock, m_host.mainQueue};
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kMostSteps = 200;
    static const tests::TemporaryFolder folder;
    app::AnswersFile file;
    try {
        file = app::AnswersFile::parse({reinterpret_cast<const char*>(data), size}, "answers.json");
    } catch (const app::AnswersFileError& error) {
        check(std::string(error.what()).starts_with("answers.json: "));
        return 0;
    }
    if (!file.steps || file.steps->size() > kMostSteps)
        return 0;
    Wizard wizard(folder.path());
    for (const app::Step& step : *file.steps)
        wizard.perform(step);
    return 0;
}
