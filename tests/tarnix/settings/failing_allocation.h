#pragma once

namespace tarnix::test {

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

}  // namespace tarnix::test
