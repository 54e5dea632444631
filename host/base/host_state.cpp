#include "host/base/host_state.h"

#include <stdexcept>
#include <utility>

namespace host {
namespace {

constinit HostState* living = nullptr;

}  // namespace

HostState::HostState(clock::ClockMode mode) : clock(mode) {
    if (living != nullptr) {
        throw std::logic_error("a host lives already");
    }
    living = this;
}

HostState::~HostState() {
    while (!parts_.empty()) {
        // Out of the list first: a part that goes may look for another one.
        const Part last = std::move(parts_.back());
        parts_.pop_back();
    }
    living = nullptr;
}

HostState* HostState::current() { return living; }

HostState& HostState::required() {
    if (living == nullptr) {
        throw MisuseError("no host runs: start one first");
    }
    return *living;
}

// Here beside the pointer: every call of the API comes by.
gate::State* gate::state() { return living == nullptr ? nullptr : &living->gate; }

}  // namespace host
