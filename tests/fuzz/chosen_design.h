#pragma once

#include "tests/fuzz/choices.h"

#include "host/design/design_data.h"

namespace fuzz {

/// A small design of what makes the dialog's work hard: names that begin like each other or hold
/// the marks of paths, part numbers that several components share, structures, properties, numbers
/// that are none.
host::DesignData chosenDesign(Choices& choices);

}  // namespace fuzz
