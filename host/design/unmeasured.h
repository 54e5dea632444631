#pragma once

#include <string>

namespace host {

/// A component whose own bodies could not be measured: it counts as if it had none, so whatever is
/// summed up over it is too small.
struct Unmeasured {
    std::string component;  ///< its name
    std::string reason;     ///< why, as its geometry tells it

    bool operator==(const Unmeasured&) const = default;
};

}  // namespace host
