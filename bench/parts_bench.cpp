// Time to make a parts list of a design file, as "tarnix-workbench parts FILE --output FILE.csv"
// does: the file is read, the list is made, and written as CSV.
//
// A row of the output is one design and one view. "read_ms", "list_ms" and "write_ms" are its parts
// by the clock, "rows" those of the list, "peak_MB" the memory that the process has needed up to
// then.

#include "bench/bench_design.h"
#include "bench/measure.h"

#include "host/design/design_file.h"
#include "parts/csv_writer.h"
#include "parts/parts_list.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <sstream>
#include <string>

namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

double millisecondsBetween(Clock::time_point from, Clock::time_point to) {
    return std::chrono::duration<double, std::milli>(to - from).count();
}

void listParts(benchmark::State& state, bench::Shape shape, parts::View view) {
    const auto count = static_cast<std::size_t>(state.range(0));
    const fs::path file = fs::temp_directory_path() / "parts_bench.design.json";
    host::saveDesignFile(file, bench::makeDesign(shape, count));
    for (auto iteration : state) {
        (void)iteration;
        const Clock::time_point start = Clock::now();
        const host::DesignData design = host::loadDesignFile(file);
        const Clock::time_point read = Clock::now();
        const parts::PartsList list = parts::buildPartsList(design, {.view = view});
        const Clock::time_point listed = Clock::now();
        std::ostringstream csv;
        writeCsv(list, {}, csv);
        const Clock::time_point written = Clock::now();
        benchmark::DoNotOptimize(csv.view().size());
        state.counters["read_ms"] = millisecondsBetween(start, read);
        state.counters["list_ms"] = millisecondsBetween(read, listed);
        state.counters["write_ms"] = millisecondsBetween(listed, written);
        state.counters["rows"] = static_cast<double>(list.rows.size());
        state.counters["peak_MB"] = bench::peakMegabytes();
    }
    fs::remove(file);
}

BENCHMARK_CAPTURE(listParts, nested_parts, bench::Shape::Nested, parts::View::Parts)
    ->Arg(10000)
    ->Arg(100000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(listParts, nested_tree, bench::Shape::Nested, parts::View::Indented)
    ->Arg(100000)
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
