#include "workbench/dialogs/bom_cells.h"

#include "workbench/cli/exit_code.h"

#include <algorithm>
#include <charconv>

namespace workbench {
namespace {

using namespace adsk::core;
using host::TableCell;

bool isEditable(const TableCell& cell) {
    return cell.editable &&
           (cell.kind == TableCell::Kind::Text || cell.kind == TableCell::Kind::Choice);
}

bool isNumber(const std::string& name) {
    return !name.empty() && name.find_first_not_of("0123456789") == std::string::npos;
}

/// The value of a number; 0 for any other string, and for a number that is too large.
std::size_t valueOf(const std::string& name) {
    std::size_t value = 0;
    const char* const end = name.data() + name.size();
    const auto [stop, error] = std::from_chars(name.data(), end, value);
    return error == std::errc() && stop == end ? value : 0;
}

template <class Map>
std::vector<BomRow> rowsIn(const Map& rows, const std::string& name) {
    const auto found = rows.find(name);
    return found == rows.end() ? std::vector<BomRow>() : found->second;
}

}  // namespace

BomCells::BomCells(const host::Session& session, const BomTab& tab)
    : table_(session.table(tab.table)),
      view_(host::readTable(table_)),
      columns_(columnsOf(view_)),
      occurrences_(occurrencesOf(session.design())),
      rows_(rowsOf(table_, view_)) {
    for (const BomRow& row : rows_) {
        if (row.line == 0) {
            continue;
        }
        printed_.push_back(row);
        byPath_[pathOf(row)].push_back(row);
        byPartNumber_[partNumberOf(row)].push_back(row);
    }
}

std::vector<BomRow> BomCells::rowsNamed(const std::string& name) const {
    const std::size_t line = valueOf(name);
    if (line > 0 && line <= printed_.size()) {
        return {printed_[line - 1]};
    }
    std::vector<BomRow> rows = rowsIn(byPath_, name);
    return rows.empty() ? rowsIn(byPartNumber_, name) : rows;
}

const std::string& BomCells::pathOf(const BomRow& row) const {
    return occurrences_.at(row.occurrence).path;
}

std::string BomCells::partNumberOf(const BomRow& row) const {
    return host::readCell(table_, row.row, kPartNumberColumn).text;
}

std::vector<TableCell> BomCells::exportedCells(const BomRow& row) const {
    std::vector<TableCell> cells;
    for (int column = kPositionColumn; column <= table_->numberOfColumns(); ++column) {
        if (column != kTreeColumn) {
            cells.push_back(host::readCell(table_, row.row, column));
        }
    }
    std::erase_if(cells, [](const TableCell& each) { return each.kind == TableCell::Kind::Empty; });
    return cells;
}

void BomCells::refuseRow(const std::string& name, const std::string& what) const {
    if (printed_.empty()) {
        refuse(what + ": the table has no rows");
    }
    const auto hidden = std::ranges::find_if(rows_, [&](const BomRow& row) {
        return row.line == 0 && occurrences_.at(row.occurrence).path == name;
    });
    if (hidden != rows_.end()) {
        refuse(what + ": the row of " + name + " is not shown; --expand all shows it");
    }
    if (isNumber(name)) {
        refuse(what + ": row " + name + " is out of range (1 to " +
               std::to_string(printed_.size()) + ")");
    }
    refuse(what + ": no row \"" + name +
           "\"; expected the number of a line, the path of an occurrence or a part number");
}

std::optional<BomColumn> BomCells::columnNamed(const std::string& name) const {
    auto found = std::ranges::find(columns_, name, &BomColumn::key);
    if (found == columns_.end() && !name.empty()) {
        found = std::ranges::find(columns_, name, &BomColumn::property);
    }
    return found == columns_.end() ? std::nullopt : std::optional(*found);
}

std::vector<BomColumn> BomCells::editableColumns(const BomRow& row) const {
    std::vector<BomColumn> editable = columns_;
    std::erase_if(editable,
                  [&](const BomColumn& column) { return !isEditable(cell(row, column)); });
    return editable;
}

const TableCell& BomCells::cell(const BomRow& row, const BomColumn& column) const {
    return *std::ranges::find(view_.rows.at(row.line).cells, column.column, &TableCell::column);
}

bool BomCells::isCombined(const BomRow& row) const {
    return host::readCell(table_, row.row, kPictureColumn).picture.starts_with(kCombinePicture);
}

Ptr<CommandInput> BomCells::input(const BomRow& row, int column) const {
    return table_->getInputAtPosition(row.row, column);
}

}  // namespace workbench
