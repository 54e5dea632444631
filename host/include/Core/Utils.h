#pragma once

/// What a module asks of the host as a whole.
namespace adsk {

/// Lets the host work off what waits in its queue while the caller goes on waiting. Events may be
/// delivered in the middle of it.
void doEvents();

/// True while the host would unload the module as soon as its `run` has returned.
bool autoTerminate();

/// With false the module stays loaded after its `run` has returned.
void autoTerminate(bool value);

/// Asks the host to stop the calling module.
void terminate();

}  // namespace adsk
