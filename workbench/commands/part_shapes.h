#pragma once

#include "workbench/output/remarks.h"

#include "parts/part_shapes.h"
#include "parts/parts_request.h"

#include "host/design/design_data.h"
#include "host/design/shape_data.h"

#include <ostream>
#include <string>

namespace workbench {

/// Compares the shapes of a design that was read with its bodies, and draws them where the request
/// has a column for pictures. Each shape that could not be compared or drawn is a remark.
parts::PartShapes readPartShapes(const host::DesignData& design, const parts::PartsRequest& request,
                                 Remarks& remarks);

/// Writes a design that was read from `file` as a model in 3D, binary glTF; see parts/glb_writer.h.
/// Throws a `Failure` for one without shapes.
void writeModel(const host::DesignData& design, const std::string& file, std::ostream& stream,
                Remarks& remarks);

/// The shapes of a design as meshes, for a page, with remarks as the others.
host::ShapeData readMeshes(const host::DesignData& design, Remarks& remarks);

}  // namespace workbench
