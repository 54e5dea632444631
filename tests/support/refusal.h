#pragma once

#include "tests/support/addin_test.h"

#include "host/session/session.h"

#include <cstdint>
#include <functional>
#include <string>

namespace test_support {

/// A flow in which every host call is refused once.
///
/// The flow runs again and again, each time from the same beginning: in the first run its first
/// host call is refused, in the second its second, and so on until a run in which none was left to
/// refuse. A refused call does nothing and returns nothing; those after it pass again.
struct RefusalSweep {
    /// Brings a fresh session to where the flow begins.
    std::function<void(host::Session&)> prepare;

    /// The steps whose calls are refused.
    std::function<void(host::Session&)> flow;

    /// Checks the outcome, given the name of the refused call; by gtest's expectations.
    std::function<void(host::Session&, const std::string& call)> check;

    /// The options of the sessions.
    host::SessionOptions options = addinOptions();
};

/// Runs a sweep and returns how many calls were refused. A run that crashes, or that a sanitizer
/// stops, fails the test like an expectation. Stops after `kEnoughFailures`.
std::uint64_t refuseEachCall(const RefusalSweep& sweep);

/// Refuses the `nth` call of a prepared session, and checks. False when the flow had no such call.
/// For `refuseEachCall`.
bool refuseOneCall(host::Session& session, const RefusalSweep& sweep, std::uint64_t nth);

/// How many expectations failed in the running test so far. For `refuseEachCall`.
int failuresSoFar();

/// How many failures a sweep goes through before it stops.
inline constexpr int kEnoughFailures = 5;

}  // namespace test_support
