#include "tarnix/platform/com.h"

#include <windows.h>

#include <objbase.h>

namespace tarnix::platform {

void initializeCom() {
    // Dropped: S_FALSE says that COM is ready already, and a thread that a host has made ready in
    // another way serves as well.
    static_cast<void>(::CoInitialize(nullptr));
}

void uninitializeCom() { ::CoUninitialize(); }

}  // namespace tarnix::platform
