#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <Core/CoreAll.h>

namespace tarnix {

/// Walks the active design into `model` and builds the three tabs of the BOM dialog: "Data of
/// Model", "Structure", "BOM Configuration".
///
/// The rows are new, the names of custom properties stay and grow. With a product that is no
/// design, or none, the dialog gets no tabs, and nobody is told. A refused input throws a plain
/// `std::exception`, as the tabs say.
void buildBomDialog(BomModel& model, adsk::core::Ptr<adsk::core::CommandInputs> inputs);

}  // namespace tarnix
