#include "bench/measure.h"

#include "host/base/gate.h"

#include <chrono>

namespace bench {

double measure(benchmark::State& state, const std::string& name,
               const std::function<void()>& action) {
    host::gate::reset();
    const auto begin = std::chrono::steady_clock::now();
    action();
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - begin;
    state.counters[name + "_ms"] = taken.count();
    state.counters[name + "_calls"] = static_cast<double>(host::gate::total());
    return taken.count();
}

}  // namespace bench
