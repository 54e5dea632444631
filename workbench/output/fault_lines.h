#pragma once

#include "host/session/session.h"

#include <string>

/// What an add-in does wrong, in the words that every command reports it with.
namespace workbench {

/// One line about an exception that left the add-in.
std::string describe(const host::UncaughtException& thrown);

/// One line about a call that the add-in should not have made.
std::string describe(const host::Misuse& misuse);

}  // namespace workbench
