#pragma once

namespace tarnix::platform {

/// Makes COM ready on the calling thread, or counts one more use of it where it is ready already.
/// Where the system has no COM, nothing happens.
void initializeCom();

/// Takes back one `initializeCom`. With the last one taken back, the thread must hold no XML handle
/// any more.
void uninitializeCom();

}  // namespace tarnix::platform
