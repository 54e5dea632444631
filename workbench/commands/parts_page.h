#pragma once

#include "host/design/design_data.h"
#include "parts/parts_list.h"

#include <string>
#include <string_view>
#include <vector>

/// The offline page of `parts`: lists, and the assembly in 3D.
namespace workbench {

/// The views that a page has.
std::vector<parts::View> pageViews();

/// A page with these lists of the design, and with a model as binary glTF, which may be empty.
std::string pageFrom(const host::DesignData& design, const std::vector<parts::PartsList>& lists,
                     std::string_view model);

}  // namespace workbench
