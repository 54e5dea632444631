#include "tarnix/platform/com.h"

namespace tarnix::platform {

void initializeCom() {}

void uninitializeCom() {}

}  // namespace tarnix::platform
