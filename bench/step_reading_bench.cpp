// Time to read a STEP assembly, against what Open CASCADE itself takes for the same.
//
// A row is an assembly of so many different parts under one root, or a file that the environment's
// TARNIX_BENCH_FILE names. Its time is that of reading it as the workbench does. The counters are
// milliseconds by the clock, since the reader is a process of its own and works in several threads:
// "read" is without measuring and "all" with the area and volume of every part; "bare_read" and
// "bare_all" are Open CASCADE's ReadFile and TransferRoots in sequence, and the same with its
// surface and volume properties. "tree" is the tree alone. The ratios divide ours by the bare ones.
//
// "first" and "second" are two runs with an empty cache: reading, measuring and keeping what was
// found, then the same with what was kept. "second_ratio" divides the second by the first.

#include "bench/comparison/bare_open_cascade.h"
#include "host/import/read_design.h"
#include "host/import/read_tree.h"
#include "samples/product.h"

#include <Message.hxx>
#include <Message_Messenger.hxx>

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

double millisecondsOf(const std::function<void()>& action) {
    const auto before = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - before)
        .count();
}

/// Parts of different widths, each used once.
std::string differentParts(std::int64_t count) {
    std::vector<samples::Product> products;
    samples::Product top = {.key = "top",
                            .id = "TOP",
                            .name = "Top",
                            .description = "",
                            .material = {},
                            .solid = {},
                            .uses = {}};
    for (std::int64_t number = 0; number < count; ++number) {
        const std::string name = "Part " + std::to_string(number);
        const double width = 10 + 0.01 * static_cast<double>(number);
        products.push_back(
            {.key = name,
             .id = name,
             .name = name,
             .description = "",
             .material = {},
             .solid = samples::Solid{{{samples::rectangle(width, 20), 5}}, {samples::circle(2)}},
             .uses = {}});
        top.uses.push_back({name, {{0, 0, 10 * static_cast<double>(number)}}});
    }
    products.push_back(top);
    return samples::stepFile("Top", products);
}

host::DesignData readOurs(const fs::path& file, const host::ReadingCache& cache = {}) {
    std::vector<host::ReadingWarning> warnings;
    return host::readDesign(file, {}, {}, warnings, cache);
}

void measureOurs(const host::DesignData& design) {
    for (const host::ComponentData& component : design.components) {
        if (component.geometry != nullptr) {
            benchmark::DoNotOptimize(component.geometry->volume());
        }
    }
}

/// Two runs of the same file, the first of which fills the cache.
void compareRuns(benchmark::State& state, const fs::path& file) {
    const host::ReadingCache cache{.folder =
                                       fs::temp_directory_path() / "step_reading_bench-cache"};
    clear(cache);
    const auto run = [&] { measureOurs(readOurs(file, cache)); };
    const double first = millisecondsOf(run);
    const double second = millisecondsOf(run);
    fs::remove_all(cache.folder);
    state.counters["first_ms"] = first;
    state.counters["second_ms"] = second;
    state.counters["second_ratio"] = second / first;
}

void compare(benchmark::State& state, const fs::path& file) {
    Message::DefaultMessenger()->ChangePrinters().Clear();
    for (auto iteration : state) {
        (void)iteration;
        TopoDS_Shape whole;
        const double bare = millisecondsOf([&] { whole = bench::bareRead(file); });
        const double bareAll =
            bare + millisecondsOf([&] { benchmark::DoNotOptimize(bench::bareMeasure(whole)); });
        host::DesignData design;
        const double read = millisecondsOf([&] { design = readOurs(file); });
        const double all = read + millisecondsOf([&] { measureOurs(design); });
        std::vector<host::ReadingWarning> warnings;
        const double tree = millisecondsOf([&] { host::readTree(file, {}, {}, warnings); });
        state.counters["bare_read_ms"] = bare;
        state.counters["bare_all_ms"] = bareAll;
        state.counters["read_ms"] = read;
        state.counters["all_ms"] = all;
        state.counters["tree_ms"] = tree;
        state.counters["read_ratio"] = read / bare;
        state.counters["all_ratio"] = all / bareAll;
        compareRuns(state, file);
        state.SetIterationTime(all / 1000);
    }
}

void differentPartsUnderOneRoot(benchmark::State& state) {
    const fs::path file = fs::temp_directory_path() /
                          ("step_reading_bench-" + std::to_string(state.range(0)) + ".step");
    std::ofstream(file, std::ios::binary) << differentParts(state.range(0));
    compare(state, file);
    fs::remove(file);
}

void chosenFile(benchmark::State& state) {
    const char* const file = std::getenv("TARNIX_BENCH_FILE");
    if (file == nullptr) {
        state.SkipWithError("TARNIX_BENCH_FILE names no file");
        return;
    }
    compare(state, file);
}

BENCHMARK(differentPartsUnderOneRoot)
    ->Arg(300)
    ->Arg(1000)
    ->Arg(3000)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(chosenFile)->Iterations(1)->UseManualTime()->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
