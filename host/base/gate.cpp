#include "host/base/gate.h"

#include "host/base/host_state.h"

#include <numeric>

namespace host::gate {
namespace {

/// The names of all operations. Of the process and not of a host: it is filled while libraries are
/// loaded, and never changes afterwards.
std::vector<std::string>& catalogue() {
    static std::vector<std::string> names;
    return names;
}

std::size_t addToCatalogue(const std::string& name) {
    catalogue().push_back(name);
    if (State* const living = state()) {
        living->counts.resize(catalogue().size());
    }
    return catalogue().size() - 1;
}

/// "Sketch", of "adsk::core::Sketch".
std::string shortName(const std::string& fullClassName) {
    return fullClassName.substr(fullClassName.rfind(':') + 1);
}

void updateArmed(State& state) { state.armed = state.refuseIn > 0 || state.recording; }

}  // namespace

Call::Call(const char* callName) : name(callName), index(addToCatalogue(name)) {}

Call::Call(const char* fullClassName, const char* operation)
    : name(shortName(fullClassName) + "::" + operation), index(addToCatalogue(name)) {}

State::State() : counts(catalogue().size()) {}

bool isModuleRunning() { return state() != nullptr && state()->modules > 0; }

bool onArmedCall(State& state, const Call& passing) {
    if (state.recording) {
        state.recorded.emplace_back(passing.name);
    }
    const bool meant = state.refusedName.empty() || state.refusedName == passing.name;
    if (state.refuseIn == 0 || !meant || --state.refuseIn > 0) {
        return false;
    }
    state.refusedCall = passing.name;
    updateArmed(state);
    return true;
}

ModuleCount::ModuleCount(int modules)
    : state_(state()), before_(state_ == nullptr ? 0 : std::exchange(state_->modules, modules)) {}

ModuleCount::~ModuleCount() {
    // The host may have ended meanwhile.
    if (state_ != nullptr && state_ == state()) {
        state_->modules = before_;
    }
}

void reset() {
    State& all = HostState::required().gate;
    const int modules = all.modules;
    all = {};
    all.modules = modules;
}

std::uint64_t count(const std::string& name) {
    const auto all = counts();
    const auto found = all.find(name);
    return found == all.end() ? 0 : found->second;
}

std::map<std::string, std::uint64_t> counts() {
    const State& all = HostState::required().gate;
    std::map<std::string, std::uint64_t> result;
    for (std::size_t i = 0; i < all.counts.size(); ++i) {
        if (all.counts[i] > 0) {
            result[catalogue()[i]] += all.counts[i];
        }
    }
    return result;
}

std::uint64_t total() {
    const State& all = HostState::required().gate;
    return std::accumulate(all.counts.begin(), all.counts.end(), std::uint64_t{0});
}

void refuse(const std::string& name, std::uint64_t nth) {
    State& all = HostState::required().gate;
    all.refusedName = name;
    all.refuseIn = nth;
    all.refusedCall.reset();
    updateArmed(all);
}

void refuseAny(std::uint64_t nth) { refuse("", nth); }

std::optional<std::string> refusedCall() { return HostState::required().gate.refusedCall; }

void record(bool on) {
    State& all = HostState::required().gate;
    all.recording = on;
    updateArmed(all);
}

std::vector<std::string> recorded() { return HostState::required().gate.recorded; }

}  // namespace host::gate
