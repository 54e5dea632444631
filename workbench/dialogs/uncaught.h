#pragma once

#include "host/session/session.h"

#include <cstddef>
#include <string>
#include <vector>

/// What leaves the add-in as an exception.
namespace workbench {

/// True for what the add-in throws each time it does its work: after a click on a button or field
/// whose id does not end in a number, and at the end of `stop` in a host that has no control to
/// repeat a command.
bool isExpected(const host::UncaughtException& thrown);

/// The line about the first unexpected one from the index `since` on; an empty string for none.
std::string describeUnexpected(const std::vector<host::UncaughtException>& thrown,
                               std::size_t since = 0);

/// Throws a `Failure` for the first unexpected one from the index `since` on. Its line begins with
/// `what`, unless that is empty.
void refuseUnexpected(const std::vector<host::UncaughtException>& thrown, std::size_t since = 0,
                      const std::string& what = "");

}  // namespace workbench
