#pragma once

#include "host/session/table_view.h"

#include <string>
#include <vector>

namespace workbench {

/// What the add-in's table shows, ready to be written.
struct PartsList {
    std::vector<std::string> captions;           ///< of the visible columns; some have none
    std::vector<std::string> keys;               ///< a unique name for each column
    std::vector<std::vector<std::string>> rows;  ///< a cell for each caption
    std::string totalCaption;                    ///< empty where the tab shows no total
    std::string total;
};

/// Reads a table whose first row holds the captions. A column's key is its caption, or "Image" for
/// pictures and "Tree" for others without one; a key that is taken gets a number.
PartsList readPartsList(const host::TableView& table);

/// As aligned columns for a terminal, with the total below them.
std::string asTable(const PartsList& list);

/// As a JSON array with an object for each row, from key to cell.
std::string asJson(const PartsList& list);

}  // namespace workbench
