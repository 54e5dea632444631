#pragma once

namespace tarnix::platform {

/// Lets the calling thread wait.
void sleep(int milliseconds);

}  // namespace tarnix::platform
