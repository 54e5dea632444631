#include "host/session/shell_requests.h"

#include <StandIn/Process.h>

namespace host::shell_requests {
namespace {

struct State {
    Policy policy = Policy::PassOn;
    std::vector<std::string> recorded;
};

// Never destroyed: a module may ask while the process ends.
State& state() {
    static auto* instance = new State;
    return *instance;
}

}  // namespace

void start(Policy policy) { state() = {policy, {}}; }

const std::vector<std::string>& recorded() { return state().recorded; }

}  // namespace host::shell_requests

StandInAnswer standin_openWithShell(const char* target) {
    using host::shell_requests::Policy;
    auto& state = host::shell_requests::state();
    if (state.policy == Policy::PassOn) {
        return StandInAnswer::NotHandled;
    }
    state.recorded.emplace_back(target);
    switch (state.policy) {
        case Policy::RecordOpen:
            return StandInAnswer::NotHandled;
        case Policy::RecordFail:
            return StandInAnswer::Failed;
        default:
            return StandInAnswer::Done;
    }
}
