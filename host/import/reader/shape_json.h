#pragma once

#include "host/import/reader/tessellation.h"

#include "host/design/shape_data.h"

#include <nlohmann/json.hpp>

namespace step {

/// The members of host::ShapeInvariants by their names.
nlohmann::json jsonOf(const host::ShapeInvariants& invariants);

/// [red, green, blue, alpha]
nlohmann::json jsonOf(const host::Rgba& colour);

/// The members of host::ShapeMesh by their names, see protocol.h; and "problem" where there is one.
nlohmann::json jsonOf(const Tessellation& tessellation);

}  // namespace step
