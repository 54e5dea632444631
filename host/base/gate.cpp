#include "host/base/gate.h"

namespace host::gate {
namespace {

struct Memory {
    std::vector<Call*> calls;
    std::string refusedName;  ///< empty: any name
    std::uint64_t refuseIn = 0;
    std::optional<std::string> refusedCall;
    bool recording = false;
    std::vector<std::string> recorded;
};

// Never destroyed: modules and the host end in either order.
Memory& memory() {
    static auto* instance = new Memory;
    return *instance;
}

void updateArmed() { state().armed = memory().refuseIn > 0 || memory().recording; }

}  // namespace

Call::Call(const char* callName) : name(callName) { memory().calls.push_back(this); }

State& state() {
    static State instance;
    return instance;
}

bool onArmedCall(Call& passing) {
    Memory& all = memory();
    if (all.recording) {
        all.recorded.emplace_back(passing.name);
    }
    const bool meant = all.refusedName.empty() || all.refusedName == passing.name;
    if (all.refuseIn == 0 || !meant || --all.refuseIn > 0) {
        return false;
    }
    all.refusedCall = passing.name;
    updateArmed();
    return true;
}

void reset() {
    Memory& all = memory();
    for (Call* each : all.calls) {
        each->count = 0;
    }
    all.refuseIn = 0;
    all.refusedCall.reset();
    all.recording = false;
    all.recorded.clear();
    updateArmed();
}

std::uint64_t count(const std::string& name) {
    std::uint64_t sum = 0;
    for (const Call* each : memory().calls) {
        sum += each->name == name ? each->count : 0;
    }
    return sum;
}

std::map<std::string, std::uint64_t> counts() {
    std::map<std::string, std::uint64_t> result;
    for (const Call* each : memory().calls) {
        if (each->count > 0) {
            result[each->name] += each->count;
        }
    }
    return result;
}

std::uint64_t total() {
    std::uint64_t sum = 0;
    for (const Call* each : memory().calls) {
        sum += each->count;
    }
    return sum;
}

void refuse(const std::string& name, std::uint64_t nth) {
    memory().refusedName = name;
    memory().refuseIn = nth;
    memory().refusedCall.reset();
    updateArmed();
}

void refuseAny(std::uint64_t nth) { refuse("", nth); }

std::optional<std::string> refusedCall() { return memory().refusedCall; }

void record(bool on) {
    memory().recording = on;
    updateArmed();
}

std::vector<std::string> recorded() { return memory().recorded; }

}  // namespace host::gate
