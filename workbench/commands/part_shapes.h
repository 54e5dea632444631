#pragma once

#include "workbench/output/remarks.h"

#include "parts/part_shapes.h"
#include "parts/parts_request.h"

#include "host/design/design_data.h"

namespace workbench {

/// Compares the shapes of a design that was read with its bodies, and draws them where the request
/// has a column for pictures. Each shape that could not be compared or drawn is a remark.
parts::PartShapes readPartShapes(const host::DesignData& design, const parts::PartsRequest& request,
                                 Remarks& remarks);

}  // namespace workbench
