#pragma once

#include <chrono>
#include <functional>
#include <map>

/// The clock of the host: what takes time, such as an upload, takes it by this clock.
///
/// A virtual clock moves only when a module waits: a wait of a thousand seconds is over at once,
/// and everything that was scheduled for it has happened. A real one is the system's. Without a
/// host it is 0 for ever, and what is scheduled is dropped.
namespace host::clock {

enum class ClockMode { Virtual, Real };

/// The clock of one host; it begins at 0.
struct State {
    explicit State(ClockMode clockMode) : mode(clockMode) {}

    ClockMode mode;
    double advanced = 0;  ///< seconds that a virtual clock was moved
    std::chrono::steady_clock::time_point started = std::chrono::steady_clock::now();
    std::multimap<double, std::function<void()>> scheduled;
};

/// Seconds since the host started.
double now();

/// A module has waited. Moves a virtual clock; nothing happens to a real one, by which the time has
/// passed anyway.
void advance(std::chrono::milliseconds duration);

/// Schedules something for a time, in seconds since the host started. It is done when the host
/// comes to it: in `runDue`, or while a module calls `adsk::doEvents`.
void schedule(double seconds, std::function<void()> action);

/// Does what is scheduled for now or earlier, the earliest first.
void runDue();

}  // namespace host::clock
