// That a wizard which is opened again and again costs no more each time: every allocation of this
// program is counted, and so are those who watch its controls.
#include <cstdlib>
#include <new>

#include <gtest/gtest.h>

#include "tests/wizard/WizardStage.h"

namespace {

/// Allocations that have not been given back.
long alive = 0;

} // namespace

// Never inlined: the compiler would take the pair for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
    ++alive;
    if (void* memory = std::malloc(size ? size : 1))
        return memory;
    throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* memory) noexcept {
    alive -= memory != nullptr;
    std::free(memory);
}
[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}

namespace {

struct WizardGrowthTest : testing::Test, tests::WizardStage {
    /// Opens the wizard in every mode and walks each to an end, with a question and a page that
    /// asks to quit Word on the way.
    void openInEveryMode() {
        show(35, {next(), next()});
        show(35, {uninstall(), answer("No"), uninstall(), answer("Yes"), next()});
        host.modalLoop.terminated = false;
        show(36, {next(), back(),
                  [this] {
                      host.applications.running.insert("com.microsoft.Word");
                      controller.nextBtn.press();
                      host.applications.running.clear();
                  },
                  next(), next(), next()});
        showPatcher({next(), back(), cancel()});
        show(0, {[this] { controller.helpBtn.press(); }, next(), closeWindow()});
        show(34, {cancel()});
        // What the fakes and the stage have kept for tests is not the wizard's.
        host.texts.lookedUp = {};
        host.streams.appended = {};
        host.streams.files = {};
        host.tools.calls = {};
        host.administrator.calls = {};
        host.applications.asked = {};
        host.interfaceFiles.loaded = {};
        host.reader.matters = {};
        looks = {};
        rows = {};
        questions = {};
        drawn = {};
        user = {};
    }
    std::map<std::string_view, std::size_t> observers() const {
        std::map<std::string_view, std::size_t> counts{
            {"window", controller.window.observerCount()}};
        for (const controls::NamedOutlet& outlet : controller.outlets.outlets)
            counts[outlet.name] =
                std::visit([](const auto* its) { return its->observerCount(); }, outlet.control);
        return counts;
    }
};

TEST(WizardGrowth, AllocationsAreCounted) {
    const long before = alive;
    auto* const text = ::new std::string(100, 'x');
    EXPECT_EQ(alive, before + 2);
    delete text;
    EXPECT_EQ(alive, before);
}

TEST_F(WizardGrowthTest, AThousandOpeningsInEveryModeCostNoMoreThanTwo) {
    openInEveryMode();
    const auto observersAtFirst = observers();
    openInEveryMode();
    const long aliveAtFirst = alive;
    for (int i = 2; i < 1000; ++i)
        openInEveryMode();
    EXPECT_EQ(alive, aliveAtFirst);
    EXPECT_EQ(observers(), observersAtFirst);
    EXPECT_EQ(observersAtFirst.at("ecTabView"), 1u) << "WizardTexts watches the pages";
}

} // namespace
