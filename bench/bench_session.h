#pragma once

#include "bench/bench_design.h"
#include "host/session/session.h"

#include <benchmark/benchmark.h>

/// The sessions in which the BOM dialog is measured.
namespace bench {

/// @name The tabs of the dialog
/// @{
inline constexpr const char* kStructure = "QEMA_tab_structure_BOM";
inline constexpr const char* kModel = "QEMA_tab_models_BOM";
inline constexpr const char* kConfiguration = "QEMA_tab_config_BOM";
/// @}

/// What a session with the add-in is made of.
host::SessionOptions addinOptions();

/// Opens a design with as many occurrences as the benchmark's range says, and runs the add-in.
void start(host::Session& session, Shape shape, const benchmark::State& state);

/// Designs of so many occurrences to 100,000, each measured once.
template <int First>
void sizesFrom(benchmark::internal::Benchmark* benchmark) {
    benchmark->RangeMultiplier(10)
        ->Range(First, 100000)
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
}

}  // namespace bench
