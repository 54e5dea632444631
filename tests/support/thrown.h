#pragma once

#include <stdexcept>
#include <string>

namespace test_support {

/// What an action throws, its class and its message: "out_of_range: invalid string position".
/// "nothing" where it throws nothing.
template <class Action>
std::string thrownBy(Action action) {
    try {
        action();
    } catch (const std::invalid_argument& error) {
        return std::string("invalid_argument: ") + error.what();
    } catch (const std::out_of_range& error) {
        return std::string("out_of_range: ") + error.what();
    }
    return "nothing";
}

}  // namespace test_support
