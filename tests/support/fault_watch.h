#pragma once

#include "host/base/dispatcher.h"
#include "host/base/misuse.h"

#include <cstddef>
#include <string>
#include <vector>

namespace test_support {

/// Holds a module to its record: what the host reports against it, the test has to name.
///
/// The host lists each exception that leaves a handler and each call that a module should not have
/// made, for as long as it lives. A fixture calls `verify` before its host ends. What was not named
/// by then fails the test. A test names what it expects
///
/// - by asserting the whole list, which `exceptions` and `misuses` return, or
/// - by `expectMisuse`, where the list would be beside the point of the test, or
/// - by `allowExceptions`, where it refuses calls and looks at what is left, not at what is thrown.
///
/// The add-in's known faults need no naming where the watch excuses them; see `known_faults.h`.
class FaultWatch {
public:
    enum class KnownFaults { Accused, Excused };

    explicit FaultWatch(KnownFaults known = KnownFaults::Accused) : known_(known) {}

    /// The uncaught exceptions so far, oldest first. They count as named from then on.
    [[nodiscard]] const std::vector<host::UncaughtException>& exceptions();

    /// The misuses so far that are not excused, oldest first. They count as named from then on.
    [[nodiscard]] std::vector<host::Misuse> misuses();

    /// Lets the host's list of exceptions begin again. Those that were not named fail the test.
    void forgetExceptions();

    /// Names a misuse that has to be reported once before the end.
    void expectMisuse(const std::string& operation, const std::string& text);

    /// Names all exceptions of this test, past and future.
    void allowExceptions() { exceptionsAllowed_ = true; }

    /// Fails the running test for each report that was not named and each misuse that was expected
    /// and not reported. The lists begin again afterwards. There has to be a host.
    void verify();

private:
    void verifyExceptions();
    void verifyMisuses();
    template <class Report>
    [[nodiscard]] std::vector<Report> accused(std::vector<Report> reports) const;

    KnownFaults known_;
    std::size_t namedExceptions_ = 0;
    std::size_t namedMisuses_ = 0;  ///< of those that are not excused
    std::vector<host::Misuse> expected_;
    bool exceptionsAllowed_ = false;
};

/// Exceptions, a line each: class, string, event and input.
std::string describe(const std::vector<host::UncaughtException>& exceptions);

/// The operations of misuses, separated by spaces.
std::string operationsOf(const std::vector<host::Misuse>& misuses);

/// Misuses, a line each: operation and string.
std::string describe(const std::vector<host::Misuse>& misuses);

}  // namespace test_support
