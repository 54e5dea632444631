#pragma once

#include <Core/CoreAll.h>

#include <string>
#include <vector>

namespace host {

/// One place of a table, as the user sees it.
struct TableCell {
    enum class Kind { Empty, Button, CheckBox, Text, Choice, Picture };

    Kind kind = Kind::Empty;
    int column = 0;    ///< of the table, hidden columns counted
    std::string id;    ///< of the input there
    std::string text;  ///< a button's caption, a text, the chosen item; empty where there is none
    std::string picture;  ///< name of the picture, without folder and ending
    bool editable = false;
};

/// One shown row, with a cell for each shown column.
struct TableRow {
    int row = 0;  ///< of the table, hidden rows counted
    std::vector<TableCell> cells;
};

/// What a table shows: its shown rows and columns, in order.
struct TableView {
    std::string name;  ///< the table's caption
    std::vector<int> columns;
    std::vector<TableRow> rows;
};

/// Reads what a table shows at this moment. Neither cells that are hidden one by one nor columns
/// without a width are in it; nor are rows without any visible cell.
TableView readTable(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// One cell, shown or not; of kind `Empty` where there is none.
TableCell readCell(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int row,
                   int column);

}  // namespace host
