#include "host/base/clock.h"

#include "host/base/host_state.h"

#include <utility>

namespace host::clock {
namespace {

double seconds(std::chrono::steady_clock::duration duration) {
    return std::chrono::duration<double>(duration).count();
}

}  // namespace

double now() {
    const HostState* host = HostState::current();
    if (host == nullptr) return 0;
    return host->clock.mode == ClockMode::Real
               ? seconds(std::chrono::steady_clock::now() - host->clock.started)
               : host->clock.advanced;
}

void advance(std::chrono::milliseconds duration) {
    if (HostState* host = HostState::current()) {
        host->clock.advanced += seconds(duration);
    }
}

void schedule(double seconds, std::function<void()> action) {
    if (HostState* host = HostState::current()) {
        host->clock.scheduled.emplace(seconds, std::move(action));
    }
}

void runDue() {
    HostState* host = HostState::current();
    if (host == nullptr) return;
    auto& scheduled = host->clock.scheduled;
    while (!scheduled.empty() && scheduled.begin()->first <= now()) {
        // Out of the list first: what is done may schedule more, and may come here again.
        const auto due = scheduled.extract(scheduled.begin());
        due.mapped()();
    }
}

}  // namespace host::clock
