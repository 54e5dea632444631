#pragma once

#include "workbench/cli/exit_code.h"

#include <string>

namespace test_support {

/// The line with which something is refused; empty where it is not.
template <class Action>
std::string refusal(Action action) {
    try {
        action();
    } catch (const workbench::Failure& failure) {
        return failure.what();
    }
    return "";
}

}  // namespace test_support
