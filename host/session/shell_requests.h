#pragma once

#include <StandIn/Process.h>

#include <string>
#include <vector>

/// What modules ask the shell to open, answered in the place of the system.
///
/// While a session lives its requests are recorded; whether the shell then gets to see them is the
/// session's choice. Without a session the module asks the system.
namespace host::shell_requests {

enum class Policy {
    PassOn,      ///< not recorded, and the module asks the system
    Record,      ///< recorded, and reported to the module as done
    RecordOpen,  ///< recorded, and the module asks the system
    RecordFail,  ///< recorded, and reported to the module as failed
};

/// Answers that way from now on; `PassOn` at the start of a host. Throws a `MisuseError` without a
/// host.
void setPolicy(Policy policy);

/// The targets since the host started, as the module spelt them, oldest first. Throws a
/// `MisuseError` without a host.
const std::vector<std::string>& recorded();

/// What each of these is. Throws a `MisuseError` without a host.
const std::vector<StandInTarget>& recordedKinds();

}  // namespace host::shell_requests
