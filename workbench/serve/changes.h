#pragma once

#include "workbench/serve/json.h"

#include <cstdint>
#include <map>
#include <memory>
#include <string>

/// The host's state as the pages see it, and what differs between two of them.
namespace workbench::serve {

/// The members of the state. One that did not change is the same object in the next state, so that
/// it need not be compared.
using Sections = std::map<std::string, std::shared_ptr<const Json>>;

struct State {
    std::uint64_t revision = 0;
    Sections sections;
};

/// The state as one document.
Json documentOf(const State& state);

/// A JSON Patch (RFC 6902) from one state to another that has the same members. A member is
/// replaced as a whole where that is shorter.
Json patchBetween(const State& before, const State& after);

/// Puts sections in the place of others, but keeps each that is equal. True where one changed.
bool update(Sections& sections, std::map<std::string, Json> fresh);

}  // namespace workbench::serve
