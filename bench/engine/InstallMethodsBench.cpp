// The install methods at sizes that no product reaches: the program's own work for a check and a
// change, with tools that do nothing, and the comparisons of folders. Everything is installed
// already, so that a change compares every file with its source before and after.
#include <filesystem>
#include <memory>

#include <benchmark/benchmark.h>

#include "tests/engine/MethodsStage.h"

namespace {

namespace fs = std::filesystem;

constexpr std::int64_t kFiles = 10; ///< in a category

std::string categoryPath(std::int64_t category) {
    return "C/K" + std::to_string(category);
}

/// `components` categories of ten files each, all in one collection.
std::unique_ptr<tests::MethodsStage> stageOf(std::int64_t components) {
    std::string rules;
    for (std::int64_t category = 0; category < components; ++category)
        rules += "Category|1|What it is good for|inst_Category|" + categoryPath(category) + "\n";
    auto stage = std::make_unique<tests::MethodsStage>(rules);
    for (std::int64_t category = 0; category < components; ++category)
        for (std::int64_t file = 0; file < kFiles; ++file) {
            const std::string name = std::to_string(category) + " " + std::to_string(file);
            stage->writeContent(categoryPath(category) + "/" + name, name);
            stage->writeBeside("C/" + name, name);
        }
    return stage;
}

/// Between two rounds: forgets what the fakes remember.
void forget(tests::MethodsStage& stage) {
    stage.host.tools.calls.clear();
    stage.host.streams.appended.clear();
    stage.host.streams.files.clear();
    stage.events.clear();
    stage.controller.outcomes.clear();
}

void checkComponents(benchmark::State& state) {
    const auto stage = stageOf(state.range(0));
    for (auto _ : state) {
        stage->controller.installCheck();
        state.PauseTiming();
        forget(*stage);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(checkComponents)->Arg(1'000)->Arg(2'000)->Arg(4'000)->Unit(benchmark::kMillisecond);

/// 1: all are installed anew. 0: all are removed.
void changeComponents(benchmark::State& state) {
    const auto stage = stageOf(state.range(1));
    for (std::uint32_t item = 0; item < stage->components.rules.count(); ++item)
        stage->components.rules.setItemState(item, static_cast<std::int32_t>(state.range(0)));
    for (auto _ : state) {
        benchmark::DoNotOptimize(stage->controller.makeChange());
        state.PauseTiming();
        forget(*stage);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(1));
}
BENCHMARK(changeComponents)
    ->ArgNames({"install", ""})
    ->ArgsProduct({{1, 0}, {1'000, 2'000, 4'000}})
    ->Unit(benchmark::kMillisecond);

/// One collection of so many files, a hundred in each category.
std::unique_ptr<tests::MethodsStage> collectionOf(std::int64_t files) {
    auto stage =
        std::make_unique<tests::MethodsStage>("All|1|All of them|inst_allCategories|Filters\n");
    for (std::int64_t file = 0; file < files; ++file) {
        const std::string name = std::to_string(file);
        stage->writeContent("Filters/" + std::to_string(file / 100) + "/" + name, name);
        stage->writeBeside("Filters/" + name, name);
    }
    return stage;
}

void checkCollection(benchmark::State& state) {
    const auto stage = collectionOf(state.range(0));
    for (auto _ : state)
        stage->controller.installCheck();
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(checkCollection)->Arg(10'000)->Arg(20'000)->Arg(40'000)->Unit(benchmark::kMillisecond);

void changeCollection(benchmark::State& state) {
    const auto stage = collectionOf(state.range(0));
    stage->components.rules.setItemState(0, 1);
    for (auto _ : state) {
        benchmark::DoNotOptimize(stage->controller.makeChange());
        state.PauseTiming();
        forget(*stage);
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(changeCollection)->Arg(10'000)->Arg(20'000)->Arg(40'000)->Unit(benchmark::kMillisecond);

/// n names in one folder against m in the other, all of the smaller folder's in both.
void compareFolders(benchmark::State& state) {
    const tests::MethodsStage stage;
    const auto make = [&](const char* folder, std::int64_t names) {
        for (std::int64_t name = 0; name < names; ++name)
            stage.folder.write(folder + ("/" + std::to_string(name)), "");
        return stage.folder.path(folder);
    };
    const std::string one = make("one", state.range(0));
    const std::string other = make("other", state.range(1));
    for (auto _ : state)
        benchmark::DoNotOptimize(stage.controller.itemsAtPath(one, other));
    state.SetItemsProcessed(state.iterations() * (state.range(0) + state.range(1)));
}
BENCHMARK(compareFolders)
    ->ArgNames({"n", "m"})
    ->Args({10'000, 10'000})
    ->Args({10'000, 20'000})
    ->Args({20'000, 10'000})
    ->Args({20'000, 20'000})
    ->Args({40'000, 40'000})
    ->Unit(benchmark::kMillisecond);

} // namespace
