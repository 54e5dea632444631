#pragma once

#include "host/base/dispatcher.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <random>
#include <string>
#include <vector>

/// Which call of the host an action is to do without, and whether the rules say what follows.
namespace test_support {

/// The host calls of an action by their names: those that the add-in made, and those of them that
/// the rules say.
struct CallsOfAction {
    std::string kind;
    std::map<std::string, std::uint64_t> made;
    std::map<std::string, int> said;
};

/// A call that an action is to do without.
struct Refusal {
    std::size_t action = 0;
    std::string name;
    int nth = 0;
    bool isRuled = false;  ///< what follows from it is among the rules
};

/// Any call of any action; none where no action makes calls.
std::optional<Refusal> pickRefusal(const std::vector<CallsOfAction>& actions, std::mt19937& random);

}  // namespace test_support
