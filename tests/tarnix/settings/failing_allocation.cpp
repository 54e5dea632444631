#include "tests/tarnix/settings/failing_allocation.h"

#include <cstdlib>
#include <new>

namespace {

long remaining = 0;  // until the allocation that fails; 0 when none is to fail

void* allocate(std::size_t size) {
    if (remaining > 0 && --remaining == 0) {
        throw std::bad_alloc();
    }
    void* const memory = std::malloc(size != 0 ? size : 1);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

}  // namespace

// Those of the whole program.
void* operator new(std::size_t size) { return allocate(size); }
void* operator new[](std::size_t size) { return allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace tarnix::test {

FailingAllocation::FailingAllocation(long nth) { remaining = nth; }

FailingAllocation::~FailingAllocation() { remaining = 0; }

bool FailingAllocation::hasFailed() const { return remaining == 0; }

}  // namespace tarnix::test
