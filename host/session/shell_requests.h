#pragma once

#include <string>
#include <vector>

/// What modules ask the shell to open, answered in the place of the system.
///
/// While a session lives its requests are written down; whether the shell then gets to see them is
/// the session's choice. Without a session the system is left alone with them.
namespace host::shell_requests {

enum class Policy {
    PassOn,      ///< no session: the module asks the system
    Record,      ///< written down, and told to be done
    RecordOpen,  ///< written down, and the module asks the system
    RecordFail,  ///< written down, and told to have failed
};

/// Forgets what was recorded, and answers that way from now on.
void start(Policy policy);

/// The targets since `start`, as the module spelt them, oldest first.
const std::vector<std::string>& recorded();

}  // namespace host::shell_requests
