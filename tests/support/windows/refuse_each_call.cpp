#include "tests/support/addin_test.h"
#include "tests/support/refusal.h"

namespace test_support {

// Each run has a session of its own, whose module goes with it: a process could not hold thousands.
std::uint64_t refuseEachCall(const RefusalSweep& sweep) {
    const int before = failuresSoFar();
    host::SessionOptions options = sweep.options;
    options.unloadAtEnd = true;
    for (std::uint64_t nth = 1;; ++nth) {
        host::Session session(options);
        sweep.prepare(session);
        if (!refuseOneCall(session, sweep, nth)) {
            return nth - 1;
        }
        if (failuresSoFar() - before >= kEnoughFailures) {
            return nth;
        }
    }
}

}  // namespace test_support
