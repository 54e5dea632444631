#pragma once

#include "workbench/output/model_request.h"
#include "workbench/output/remarks.h"

#include "parts/glb_writer.h"

#include "host/design/design_data.h"
#include "host/design/shape_data.h"

#include <string>

/// The assembly in 3D that `parts` writes: a file of its own, or a part of the page.
namespace workbench {

/// Whether a list needs the measures of shapes that are drawn.
enum class ShapeMeasures { Needed, NotNeeded };

/// The shapes of a design as meshes, none where it has none. Each that could not be drawn as asked
/// for is a remark.
host::ShapeData readMeshes(const host::DesignData& design, const ModelRequest& request,
                           ShapeMeasures measures, Remarks& remarks);

/// Whether anything of a design can be seen.
bool isDrawn(const host::ShapeData& meshes);

struct Model {
    std::string bytes;  ///< binary glTF
    Remark size;        ///< how large it is, and how much of it is not drawn as asked for
};

Model modelOf(const host::DesignData& design, const host::ShapeData& meshes,
              const ModelRequest& request, parts::GlbExtras extras);

/// Bytes in kB, as the user reads them.
std::string sizeText(std::size_t bytes);

}  // namespace workbench
