#include "bench/measure.h"

#include "host/base/gate.h"

#include <ctime>
#include <fstream>
#include <string>

namespace bench {

double measure(benchmark::State& state, const std::string& name,
               const std::function<void()>& action) {
    host::gate::reset();
    const std::clock_t begin = std::clock();
    action();
    const double taken = 1000.0 * static_cast<double>(std::clock() - begin) / CLOCKS_PER_SEC;
    state.counters[name + "_ms"] = taken;
    state.counters[name + "_calls"] = static_cast<double>(host::gate::total());
    return taken;
}

double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("VmHWM:")) {
            return std::stod(line.substr(6)) / 1024;
        }
    }
    return 0;
}

}  // namespace bench
