#pragma once

#include "host/design/design_data.h"
#include "host/session/table_view.h"

#include <Core/CoreAll.h>

#include <cstddef>
#include <string>
#include <vector>

/// What the rows of a BOM table stand for in the design.
namespace workbench {

/// An occurrence of a design.
struct BomOccurrence {
    std::string path;           ///< its full path name, as in "Gearbox:1+Bolt:2"
    std::size_t component = 0;  ///< index into `DesignData::components`
    int level = 1;              ///< 1 directly below the root
};

/// All occurrences, in the order in which the add-in numbers them.
std::vector<BomOccurrence> occurrencesOf(const host::DesignData& design);

/// For each component, whether the mass of its bodies, or of those below it, is of a material that
/// is assumed.
std::vector<bool> componentsWithAssumed(const host::DesignData& design);

/// A row of a BOM table.
struct BomRow {
    int row = 0;           ///< of the table, hidden rows counted
    std::size_t line = 0;  ///< of the list as it is printed, from 1; 0 for a row that is hidden
    std::size_t occurrence = 0;  ///< index into the occurrences
};

/// All rows below the captions, in the order of the table; `view` is what the table shows.
std::vector<BomRow> rowsOf(const adsk::core::Ptr<adsk::core::TableCommandInput>& table,
                           const host::TableView& view);

}  // namespace workbench
