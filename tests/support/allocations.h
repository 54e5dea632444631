#pragma once

#include <cstddef>

/// What a program allocates with `new`, for those that link `counted_allocations`. On Windows the
/// allocations of a DLL are not among them.
namespace test_support {

/// How many there were since the program started.
std::size_t allocations();

/// While it lives, the `nth` allocation from its beginning (1 is the next) throws `std::bad_alloc`.
class FailingAllocation {
public:
    explicit FailingAllocation(long nth);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    /// True once the allocation has come.
    [[nodiscard]] bool hasFailed() const;
};

}  // namespace test_support
