#pragma once

#include "parts/parts_list.h"

#include "host/design/design_data.h"

#include <ostream>
#include <string_view>
#include <vector>

namespace parts {

/// Writes the offline page that docs/page.md describes: `pageTemplate` filled with lists of
/// `design`, one for each view, and with a model as binary glTF (empty: none). Throws a
/// `std::logic_error` for a template without its two marks.
void writePage(std::string_view pageTemplate, const host::DesignData& design,
               const std::vector<PartsList>& lists, std::string_view model, std::ostream& stream);

}  // namespace parts
