#include "tarnix/platform/top_windows.h"

#include "tarnix/platform/native.h"

namespace tarnix::platform {

void visitTopWindows(const std::function<bool(const TopWindow&)>& visit) {
    native::visitTopWindows(visit);
}

}  // namespace tarnix::platform
