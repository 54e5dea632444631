#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The gate that every call of the public API passes.
///
/// It counts calls by name, can be told to refuse one, and to record their order. A refused call
/// does nothing and returns null, false, zero or an empty value. Calls count only while a module
/// runs, that is inside a `gate::Module`: what the host and a session do among themselves is not a
/// call.
///
/// An operation of the API begins with
///
///     if (refused<"CommandInput::id">()) return {};
///
/// and costs an addition while nobody asks.
namespace host {

/// A name that is known while compiling.
template <std::size_t N>
struct CallName {
    consteval CallName(const char (&name)[N]) {  // NOLINT(google-explicit-constructor)
        std::copy_n(name, N, text);
    }
    char text[N] = {};
};

namespace gate {

/// One operation of the API.
struct Call {
    explicit Call(const char* callName);

    const char* name;
    std::uint64_t count = 0;
};

template <CallName Name>
inline Call call{Name.text};

/// What the gate has been asked to do besides counting; read on each call.
struct State {
    int modules = 0;     ///< how many notifications run inside each other
    bool armed = false;  ///< a refusal is due, or calls are being recorded
};

State& state();

/// The slow way through the gate: records the call, and tells whether it is refused.
bool onArmedCall(Call& passing);

/// While it lives, calls are a module's.
class Module {
public:
    Module() { ++state().modules; }
    Module(const Module&) = delete;
    Module& operator=(const Module&) = delete;
    ~Module() { --state().modules; }
};

/// While it lives, calls are the host's own again: for what a person or a session does while a
/// module waits for the host.
class Outside {
public:
    Outside() : modules_(std::exchange(state().modules, 0)) {}
    Outside(const Outside&) = delete;
    Outside& operator=(const Outside&) = delete;
    ~Outside() { state().modules = modules_; }

private:
    int modules_;
};

/// Forgets counts, records and refusals that have not come to pass.
void reset();

/// How often a call of this name came through since the last `reset`; refused ones count too.
std::uint64_t count(const std::string& name);

/// All names that were called since the last `reset`, with their counts.
std::map<std::string, std::uint64_t> counts();

/// The sum of all counts.
std::uint64_t total();

/// Refuses the `nth` call of `name` from now on (1 is the next), once.
void refuse(const std::string& name, std::uint64_t nth);

/// Refuses the `nth` call from now on whatever its name (1 is the next), once.
void refuseAny(std::uint64_t nth);

/// The name of the call that was refused since the last `reset`, none if it has not come.
std::optional<std::string> refusedCall();

/// Starts or stops keeping the order of calls.
void record(bool on);

/// The calls recorded since the last `reset`, in order.
std::vector<std::string> recorded();

}  // namespace gate

/// Passes the gate; true when the call is refused and has to return nothing.
template <CallName Name>
bool refused() {
    gate::State& state = gate::state();
    if (state.modules == 0) {
        return false;
    }
    ++gate::call<Name>.count;
    return state.armed && gate::onArmedCall(gate::call<Name>);
}

}  // namespace host
