#pragma once

#include "workbench/cli/console.h"
#include "workbench/output/text_table.h"

#include "host/design/reading_warning.h"
#include "host/session/table_view.h"

#include <cstddef>
#include <string>
#include <vector>

namespace workbench {

/// Where a row is in the design.
struct RowPlace {
    int level = 1;           ///< 1 directly below the root
    std::string path;        ///< full path name of the occurrence; of a merged row the first one's
    bool isAssumed = false;  ///< its material, or that of a part in it, is not the file's
};

/// What the add-in's table shows, ready to be written.
struct BomList {
    std::vector<std::string> captions;           ///< of the visible columns; some have none
    std::vector<std::string> keys;               ///< a unique name for each column
    std::vector<std::vector<std::string>> rows;  ///< a cell for each caption
    std::string totalCaption;                    ///< empty where the tab shows no total
    std::string total;
    std::vector<RowPlace> places = {};  ///< of each row
};

/// Reads a table whose first row holds the captions. A column's key is its caption, or "Image" for
/// pictures and "Tree" for others without one; a key that is taken gets a number.
BomList readBomList(const host::TableView& table);

/// As aligned columns for a terminal, with the total below them. Icons become signs, which are
/// indented by the level of the row where the list shows a tree. Rows whose material is assumed say
/// so in a last column. For `width` see `TextTable::text`.
std::string asTable(const BomList& list, console::Charset charset,
                    std::size_t width = TextTable::kUnlimited);

/// As a JSON object: "rows" with an object for each row, from key to cell, and with its "Level" and
/// "Path", and "Material assumed"; "total" where the tab shows one; and "warnings".
std::string asJson(const BomList& list, const std::vector<host::ReadingWarning>& warnings);

}  // namespace workbench
