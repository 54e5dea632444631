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
/// It counts calls by name, can be made to refuse one, and to record their order. A refused call
/// does nothing and returns null, false, zero or an empty value. Calls count only while a module
/// runs, that is inside a `gate::Module`: what the host and a session do among themselves is not a
/// call. Without a host all calls pass uncounted.
///
/// A function of the API that is called on no object begins with
///
///     if (refused<"Point3D::create">()) return {};
///
/// and costs an addition while nothing is refused or recorded. For objects see object.h.
namespace host {

/// A name that is known while compiling.
template <std::size_t N>
struct CallName {
    consteval CallName(const char (&name)[N]) {  // NOLINT(google-explicit-constructor)
        std::copy_n(name, N, text);
        namesClass = std::find(name, name + N, ':') != name + N;
    }
    char text[N] = {};
    bool namesClass = false;  ///< as "Sketch::name" does
};

namespace gate {

/// One operation of the API, in the catalogue of those that this process has.
struct Call {
    explicit Call(const char* callName);

    /// The operation of a class, of which the full name is known, such as "adsk::core::Sketch".
    Call(const char* fullClassName, const char* operation);

    std::string name;   ///< such as "Sketch::name"
    std::size_t index;  ///< of the call in the catalogue
};

template <CallName Name>
inline const Call call{Name.text};

/// The operation `Name` of an interface of the API.
template <class Interface, CallName Name>
inline const Call callOf{Interface::classType(), Name.text};

/// The gate of one host.
struct State {
    State();

    /// @name Read on each call
    /// @{
    int modules = 0;                    ///< how many notifications run inside each other
    bool armed = false;                 ///< a refusal is due, or calls are being recorded
    std::vector<std::uint64_t> counts;  ///< by the indices of the calls
    /// @}

    std::string refusedName;     ///< empty: any name
    std::uint64_t refuseIn = 0;  ///< the number of calls until the refused one, 0 for none
    std::optional<std::string> refusedCall;
    bool recording = false;
    std::vector<std::string> recorded;
};

/// The gate of the host that lives, null for none.
State* state();

/// True while a module runs.
bool isModuleRunning();

/// The slow way through the gate: records the call, and returns whether it is refused.
bool onArmedCall(State& state, const Call& passing);

/// While it lives, so many modules run inside each other; afterwards as many as before.
class ModuleCount {
public:
    explicit ModuleCount(int modules);
    ModuleCount(const ModuleCount&) = delete;
    ModuleCount& operator=(const ModuleCount&) = delete;
    ~ModuleCount();

private:
    State* state_;
    int before_;
};

/// While it lives, calls are a module's.
class Module : ModuleCount {
public:
    Module() : ModuleCount(state() == nullptr ? 0 : state()->modules + 1) {}
};

/// While it lives, calls are the host's own again: for what the user or a session does while a
/// module waits for the host.
class Outside : ModuleCount {
public:
    Outside() : ModuleCount(/*modules=*/0) {}
};

/// @name For those who drive a host
/// Each needs a host that lives, and throws a `MisuseError` without one.
/// @{

/// Forgets counts, records and refusals that have not come to pass: a measurement begins.
void reset();

/// How often a call of this name came through since the host started or since `reset`; refused ones
/// count too.
std::uint64_t count(const std::string& name);

/// All names that were called since the host started or since `reset`, with their counts.
std::map<std::string, std::uint64_t> counts();

/// The sum of all counts.
std::uint64_t total();

/// Refuses the `nth` call of `name` from now on (1 is the next), once.
void refuse(const std::string& name, std::uint64_t nth);

/// Refuses the `nth` call from now on whatever its name (1 is the next), once.
void refuseAny(std::uint64_t nth);

/// The name of the call that was refused since the host started or since `reset`; none if it has
/// not come.
std::optional<std::string> refusedCall();

/// Starts or stops recording the order of calls.
void record(bool on);

/// The calls recorded since the host started or since `reset`, in order.
std::vector<std::string> recorded();
/// @}

}  // namespace gate

namespace gate {

/// Passes the gate; true when the call is refused and has to return nothing.
inline bool refuses(const Call& passing) {
    State* const living = state();
    if (living == nullptr || living->modules == 0) {
        return false;
    }
    ++living->counts[passing.index];
    return living->armed && onArmedCall(*living, passing);
}

}  // namespace gate

/// Passes the gate with a call on no object; true when it is refused and has to return nothing.
template <CallName Name>
bool refused() {
    return gate::refuses(gate::call<Name>);
}

}  // namespace host
