// Time to list a nested design with all its rows, as "tarnix-workbench bom --tab model --expand
// all" does after reading: the dialog is opened, its tree expanded, the list read, exported and
// laid out.
//
// A row of the output is one design. "per_row" is the processor time of a row: where it
// grows with the size, something is not linear.

#include "bench/bench_design.h"
#include "workbench/dialogs/bom_run.h"
#include "workbench/output/bom_list.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <limits>
#include <string>

namespace {

void listTree(benchmark::State& state) {
    const auto count = static_cast<std::size_t>(state.range(0));
    workbench::BomRequest request;
    request.tab = &workbench::kModelTab;
    request.levels = std::numeric_limits<int>::max();
    request.addin.addin = ADDIN_FOLDER;
    std::size_t rows = 0;
    for (auto iteration : state) {
        (void)iteration;
        workbench::BomRun run(request);
        const workbench::BomResult result =
            run.make(bench::makeDesign(bench::Shape::Nested, count));
        rows = result.list.rows.size();
        benchmark::DoNotOptimize(asTable(result.list, workbench::console::Charset::Utf8));
    }
    state.counters["rows"] = static_cast<double>(rows);
    state.counters["per_row"] = benchmark::Counter(
        static_cast<double>(count), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

BENCHMARK(listTree)
    ->RangeMultiplier(10)
    ->Range(1000, 100000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
