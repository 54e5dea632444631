#pragma once

#include "host/base/posted_work.h"

#include <functional>

/// The turn of the host's main thread: what it does while a module waits.
namespace host {

/// Does what was posted until now, and what the clock has scheduled. Only the main thread may call
/// it; `adsk::doEvents` does so for a module. Nothing happens without a host.
void runPosted();

/// What `adsk::autoTerminate` was last set to; true at the beginning of a host.
bool unloadsAfterRun();

/// Sets it as a module does: true where another module is about to run.
void setUnloadsAfterRun(bool value);

/// Sets what stops the module, for one that asks for that with `adsk::terminate`.
void setModuleStop(std::function<void()> stop);

/// Stops the module if it has asked for that. Nothing happens while it still runs.
void stopIfRequested();

}  // namespace host
