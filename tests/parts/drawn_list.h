#pragma once

#include "tests/support/outline.h"

#include "host/design/design_data.h"
#include "host/design/naming.h"
#include "host/design/outline.h"
#include "parts/number_text.h"
#include "parts/parts_list.h"

#include <string>

namespace test_support {

/// A design drawn as in host/design/outline.h, with the add-in's vocabulary.
inline host::DesignData drawn(const std::string& outline) {
    host::DesignData design = host::parseOutline(addinOutline(outline));
    host::numberInstances(design);
    return design;
}

inline parts::PartsRequest request(parts::View view, const std::string& columns) {
    return {.view = view, .columns = parts::parseColumns(columns)};
}

/// The rows with " | " between the cells, and numbers in four significant digits.
inline std::string rowsOf(const parts::PartsList& list) {
    std::string text;
    for (const parts::PartsRow& row : list.rows) {
        text += text.empty() ? "" : "\n";
        for (std::size_t cell = 0; cell < row.cells.size(); ++cell) {
            text += (cell == 0 ? "" : " | ") + parts::cellText(row.cells[cell], {});
        }
    }
    return text;
}

/// The rows of a list that is made of a drawn design.
inline std::string rowsOf(const std::string& outline, const parts::PartsRequest& request) {
    return rowsOf(parts::buildPartsList(drawn(outline), request));
}

}  // namespace test_support
