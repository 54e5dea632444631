#pragma once

#include "workbench/output/remarks.h"

#include "host/design/design_data.h"
#include "host/design/shape_data.h"
#include "parts/parts_list.h"

#include <ostream>
#include <string>
#include <vector>

/// The offline page of `parts`: lists, and the assembly in 3D.
namespace workbench {

/// The views that a page has.
std::vector<parts::View> pageViews();

/// Writes a page with these lists of the design, with a remark how large its model is. Without
/// meshes it is a list alone.
void writePage(const host::DesignData& design, const host::ShapeData& meshes,
               const std::vector<parts::PartsList>& lists, std::ostream& stream, Remarks& remarks);

}  // namespace workbench
