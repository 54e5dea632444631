#include "tarnix/platform/process_function.h"

#include <dlfcn.h>

namespace tarnix::platform {

void* processFunction(const char* name) { return ::dlsym(RTLD_DEFAULT, name); }

}  // namespace tarnix::platform
