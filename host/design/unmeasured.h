#pragma once

#include <string>

namespace host {

/// A component whose own bodies could not be measured: it counts as if it had none, so every sum
/// that includes it is too small.
struct Unmeasured {
    std::string component;  ///< its name
    std::string reason;     ///< why, in the words of its geometry

    bool operator==(const Unmeasured&) const = default;
};

}  // namespace host
