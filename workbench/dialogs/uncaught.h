#pragma once

#include "host/session/session.h"

#include <cstddef>
#include <string>

/// What leaves the add-in as an exception.
namespace workbench {

/// True for what the add-in throws each time it does its work: behind a button or field whose id
/// ends in no number, and at the end of `stop` in a host that has no control to repeat a command.
bool isOrdinary(const host::UncaughtException& thrown);

/// One line about something that the add-in let out.
std::string describe(const host::UncaughtException& thrown);

/// Throws a `Failure` that begins with `what` when the session holds something that is not ordinary
/// from the index `since` on.
void refuseThrown(const host::Session& session, std::size_t since, const std::string& what);

}  // namespace workbench
