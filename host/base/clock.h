#pragma once

#include <chrono>
#include <functional>

/// The clock of the host: what takes time, such as an upload, takes it by this clock.
///
/// A standing clock moves only when somebody waits: a wait of a thousand seconds is over at once,
/// and everything that was to happen in it has happened. A running one is the system's.
namespace host::clock {

enum class ClockMode { Virtual, Real };

/// Begins again at 0; what was planned is forgotten.
void start(ClockMode mode);

/// Seconds since `start`.
double now();

/// A module has waited. Moves a standing clock; nothing happens to a running one, by which the time
/// has passed anyway.
void advance(std::chrono::milliseconds duration);

/// Plans something for a time, in seconds since `start`. It is done when the host comes to it: in
/// `runDue`, or while a module calls `adsk::doEvents`.
void schedule(double seconds, std::function<void()> action);

/// Does what is planned for now or earlier, the earliest first.
void runDue();

}  // namespace host::clock
