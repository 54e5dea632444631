#pragma once

/// Functions of the host as a whole.
namespace adsk {

/// Lets the host process its queue while the caller waits; to be called in every loop that waits.
/// Handlers, also the caller's own, may be notified before it returns, and documents may be opened
/// or closed.
void doEvents();

/// Whether the host unloads the module as soon as its `run` has returned, true at first.
bool autoTerminate();

/// With false, set during `run`, the module stays loaded and its handlers stay in effect.
void autoTerminate(bool value);

/// Asks the host to stop the calling module: its `stop` is called once the running notification,
/// or its `run`, has returned. The module stays in the process until that ends.
void terminate();

}  // namespace adsk
