#include "tests/support/refusal.h"

#include <gtest/gtest.h>

#include <optional>

namespace test_support {

bool refuseOneCall(host::Session& session, const RefusalSweep& sweep, std::uint64_t nth) {
    host::gate::reset();
    host::gate::refuseAny(nth);
    sweep.flow(session);
    const std::optional<std::string> call = host::gate::refusedCall();
    host::gate::reset();
    if (call) {
        SCOPED_TRACE("host call " + std::to_string(nth) + " refused: " + *call);
        sweep.check(session, *call);
    }
    return call.has_value();
}

int failuresSoFar() {
    const testing::TestResult& result =
        *testing::UnitTest::GetInstance()->current_test_info()->result();
    int count = 0;
    for (int i = 0; i < result.total_part_count(); ++i) {
        count += result.GetTestPartResult(i).failed() ? 1 : 0;
    }
    return count;
}

}  // namespace test_support
