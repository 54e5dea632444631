#include "host/session/shell_requests.h"

#include "host/base/host_state.h"

namespace host::shell_requests {
namespace {

/// A part of the host's state.
struct State {
    Policy policy = Policy::PassOn;
    std::vector<std::string> recorded;
    std::vector<StandInTarget> kinds;
};

}  // namespace

void setPolicy(Policy policy) { HostState::required().part<State>().policy = policy; }

const std::vector<std::string>& recorded() { return HostState::required().part<State>().recorded; }

const std::vector<StandInTarget>& recordedKinds() {
    return HostState::required().part<State>().kinds;
}

}  // namespace host::shell_requests

StandInAnswer standin_openWithShell(const char* target, StandInTarget kind) {
    using host::shell_requests::Policy;
    auto* state = host::HostState::currentPart<host::shell_requests::State>();
    if (state == nullptr || state->policy == Policy::PassOn) {
        return StandInAnswer::NotHandled;
    }
    state->recorded.emplace_back(target);
    state->kinds.push_back(kind);
    switch (state->policy) {
        case Policy::RecordOpen:
            return StandInAnswer::NotHandled;
        case Policy::RecordFail:
            return StandInAnswer::Failed;
        default:
            return StandInAnswer::Done;
    }
}
