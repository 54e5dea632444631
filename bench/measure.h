#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace bench {

/// Does one thing, and notes its time and its host calls under `name`. Returns the milliseconds.
///
/// The time is the processor's: all is done in one thread that waits for nothing, and what else
/// runs on the machine is left out.
double measure(benchmark::State& state, const std::string& name,
               const std::function<void()>& action);

/// The most memory that the process has had so far; 0 where the system does not say it.
double peakMegabytes();

}  // namespace bench
