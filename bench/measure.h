#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>

namespace bench {

/// Does one thing, and notes its time and its host calls under `name`. Yields the milliseconds.
double measure(benchmark::State& state, const std::string& name,
               const std::function<void()>& action);

}  // namespace bench
