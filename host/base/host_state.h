#pragma once

#include "host/base/clock.h"
#include "host/base/dispatcher.h"
#include "host/base/gate.h"
#include "host/base/last_error.h"
#include "host/base/misuse.h"
#include "host/base/posted_work.h"

#include <memory>
#include <typeindex>
#include <typeinfo>
#include <vector>

/// Everything that a host knows while it lives, and that is gone with it.
///
/// One lives at a time. It is constructed where a host starts and destroyed where it ends, so that
/// nothing has to be cleared in between: the next host begins with a state of its own. The folders
/// above `base` keep theirs in it as parts, which `base` need not know.
///
/// A module may call the API when no host lives: from a static destructor, or through a handle that
/// it kept. So whatever the API does looks for the living state with `current` and does without it
/// where there is none.
namespace host {

class HostState {
public:
    /// Throws a `std::logic_error` where a host lives already.
    explicit HostState(clock::ClockMode mode = clock::ClockMode::Virtual);
    HostState(const HostState&) = delete;
    HostState& operator=(const HostState&) = delete;

    /// The parts go first, the newest of them first.
    ~HostState();

    /// That of the host that lives, null for none.
    static HostState* current();

    /// That of the host that lives; throws a `MisuseError` for none. For those who drive a host.
    static HostState& required();

    /// The state of that type, made on first use. Only for the main thread.
    template <class T>
    T& part() {
        // One part for each type that a source of the host asks for: a handful.
        for (const Part& each : parts_) {
            if (each.type == std::type_index(typeid(T))) return *static_cast<T*>(each.object.get());
        }
        parts_.push_back({std::type_index(typeid(T)), std::make_shared<T>()});
        return *static_cast<T*>(parts_.back().object.get());
    }

    /// That part of the host that lives, null for none.
    template <class T>
    static T* currentPart() {
        HostState* state = current();
        return state == nullptr ? nullptr : &state->part<T>();
    }

    gate::State gate;
    clock::State clock;
    std::vector<ModuleEntry> entries;  ///< into the module, the one that runs last
    std::vector<UncaughtException> uncaughtExceptions;
    std::vector<Misuse> misuses;
    LastError lastError;
    PostedWork posted;

private:
    struct Part {
        std::type_index type;
        std::shared_ptr<void> object;
    };

    std::vector<Part> parts_;
};

}  // namespace host
