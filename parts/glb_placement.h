#pragma once

#include "host/design/design_data.h"

#include <nlohmann/json.hpp>

namespace parts {

/// Places a node of a model in mm: by "translation" and "rotation", which are left out where they
/// do nothing; by "matrix" where the placement is no movement.
void setPlacement(nlohmann::json& node, const host::Transform& placement);

}  // namespace parts
