#include "host/base/clock.h"

#include <map>
#include <utility>

namespace host::clock {
namespace {

using Steady = std::chrono::steady_clock;

struct State {
    ClockMode mode = ClockMode::Virtual;
    double standing = 0;
    Steady::time_point started = Steady::now();
    std::multimap<double, std::function<void()>> planned;
};

// Never destroyed: a module may wait while the process ends.
State& state() {
    static auto* instance = new State;
    return *instance;
}

double seconds(Steady::duration duration) {
    return std::chrono::duration<double>(duration).count();
}

}  // namespace

void start(ClockMode mode) {
    state() = {};
    state().mode = mode;
}

double now() {
    const State& all = state();
    return all.mode == ClockMode::Real ? seconds(Steady::now() - all.started) : all.standing;
}

void advance(std::chrono::milliseconds duration) { state().standing += seconds(duration); }

void schedule(double seconds, std::function<void()> action) {
    state().planned.emplace(seconds, std::move(action));
}

void runDue() {
    auto& planned = state().planned;
    while (!planned.empty() && planned.begin()->first <= now()) {
        // Out of the list first: what is done may plan again, and may come here again.
        const auto due = planned.extract(planned.begin());
        due.mapped()();
    }
}

}  // namespace host::clock
