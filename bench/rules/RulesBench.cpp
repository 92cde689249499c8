// The component rules at a size that no product reaches: opening the file, the tree, look-ups.
#include <string>

#include <benchmark/benchmark.h>

#include "rules/ComponentOutline.h"
#include "tests/support/TemporaryFolder.h"

namespace {

/// Groups of ten lines each.
std::string rulesOf(std::int64_t lines) {
    std::string text;
    for (std::int64_t line = 0; line < lines; ++line)
        text += "Component " + std::to_string(line) + (line % 10 == 0 ? "|0|" : "|1|") +
                "What the component is good for|inst_Category|Filters/Component|Filters/More\n";
    return text;
}

/// What happens before the components page can be drawn.
void openAndAskForTheWholeTree(benchmark::State& state) {
    const tests::TemporaryFolder folder;
    folder.write("Customizer.rules.txt", rulesOf(state.range(0)));
    for (auto _ : state) {
        ec::ecRules rules(folder.path());
        ec::ecItem root(rules, ec::ecItem::kRootItem, nullptr);
        controls::OutlineView view;
        const ec::ComponentOutline outline({.root = root, .ecOutlineView = view});
        benchmark::DoNotOptimize(outline.components());
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(openAndAskForTheWholeTree)->Arg(100)->Arg(100'000)->Unit(benchmark::kMillisecond);

void lookUpTheSameItemAgain(benchmark::State& state) {
    const auto rules = ec::ecRules::fromText(rulesOf(100));
    for (auto _ : state) {
        benchmark::DoNotOptimize(rules.getItemName(42));
        benchmark::DoNotOptimize(rules.getItemDesc(42));
    }
}
BENCHMARK(lookUpTheSameItemAgain);

void lookUpItemAfterItem(benchmark::State& state) {
    const auto rules = ec::ecRules::fromText(rulesOf(100));
    std::uint32_t item = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(rules.getItemName(item));
        benchmark::DoNotOptimize(rules.getItemDesc(item));
        item = (item + 1) % 100;
    }
}
BENCHMARK(lookUpItemAfterItem);

} // namespace
