#include "tests/support/allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t made = 0;
long remaining = 0;  // until the allocation that fails; 0 when none is to fail

/// Null without memory, and for the one that is to fail.
void* allocate(std::size_t size) {
    ++made;
    if (remaining > 0 && --remaining == 0) {
        return nullptr;
    }
    return std::malloc(size != 0 ? size : 1);
}

void* allocateOrThrow(std::size_t size) {
    void* const memory = allocate(size);
    if (memory == nullptr) {
        throw std::bad_alloc();
    }
    return memory;
}

}  // namespace

// Those of the whole program.
void* operator new(std::size_t size) { return allocateOrThrow(size); }
void* operator new[](std::size_t size) { return allocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return allocate(size);
}
void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return allocate(size);
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace test_support {

std::size_t allocations() { return made; }

FailingAllocation::FailingAllocation(long nth) { remaining = nth; }

FailingAllocation::~FailingAllocation() { remaining = 0; }

bool FailingAllocation::hasFailed() const { return remaining == 0; }

}  // namespace test_support
