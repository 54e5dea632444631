#pragma once

#include "host/base/dispatcher.h"
#include "host/base/misuse.h"

namespace test_support {

/// True for what the add-in is known to do wrong and to keep doing, because the product fixes it:
/// no test has to name it. Each is in the list of known_faults.cpp with its reason.
bool isKnown(const host::Misuse& misuse);
bool isKnown(const host::UncaughtException& thrown);

}  // namespace test_support
