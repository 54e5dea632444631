#pragma once

#include <functional>

/// What waits for the host's main thread.
namespace host {

/// Hands work to the main thread. Any thread may call it; the work is done in order, when the main
/// thread comes to it: in `runPosted`, or while a module calls `adsk::doEvents`.
void post(std::function<void()> work);

/// Does what was posted until then, and what the clock has planned. Only the main thread may call
/// it.
void runPosted();

/// What `adsk::autoTerminate` was last set to; true in the beginning.
bool unloadsAfterRun();

/// Makes `unloadsAfterRun` true again: another module is about to run.
void resetAutoTerminate();

namespace ui {

/// Forgets what was posted.
void forgetPosted();

}  // namespace ui
}  // namespace host
