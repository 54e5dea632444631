#pragma once

#include <array>
#include <cstdint>

/// The machine: its processor and memory.
namespace tarnix::platform {

/// EAX, EBX, ECX and EDX after CPUID.
using ProcessorRegisters = std::array<std::uint32_t, 4>;

/// What the processor's instruction CPUID returns for a leaf; zeros on a processor without it.
ProcessorRegisters processorInformation(std::uint32_t leaf);

/// Logical processors that are in use.
unsigned processorCount();

/// Bytes of memory that the system has.
std::uint64_t memorySize();

}  // namespace tarnix::platform
