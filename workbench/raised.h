#pragma once

#include "host/session/session.h"

#include <cstddef>
#include <string>

/// What leaves the add-in as an exception.
namespace workbench {

/// True for what the add-in raises each time it does its work: behind a button or field whose id
/// ends in no number, and at the end of `stop` in a host that has no control to repeat a command.
bool isOrdinary(const host::Raised& raised);

/// One line about something that the add-in let out.
std::string describe(const host::Raised& raised);

/// Raises a `Failure` that begins with `what` when the session holds something that is not ordinary
/// from the index `since` on.
void refuseRaised(const host::Session& session, std::size_t since, const std::string& what);

}  // namespace workbench
