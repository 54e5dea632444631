#pragma once

namespace tarnix::platform {

/// Address of a C function that the process exports by name: of the program, or of the library of
/// the stand-in host. Null if there is none.
void* processFunction(const char* name);

}  // namespace tarnix::platform
