#pragma once

#include "workbench/dialogs/addin_ids.h"
#include "workbench/dialogs/bom_columns.h"
#include "workbench/dialogs/bom_rows.h"

#include "host/session/session.h"

#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace workbench {

/// The printed cells of a BOM table, found by the names that the user has for them.
class BomCells {
public:
    BomCells(const host::Session& session, const BomTab& tab);

    [[nodiscard]] const std::vector<BomOccurrence>& occurrences() const { return occurrences_; }

    /// All rows, hidden ones included.
    [[nodiscard]] const std::vector<BomRow>& rows() const { return rows_; }

    /// The printed rows of a line from 1, else of the path of an occurrence, else of a part number;
    /// none for any other name.
    [[nodiscard]] std::vector<BomRow> rowsNamed(const std::string& name) const;

    /// The printed rows, by their lines.
    [[nodiscard]] const std::vector<BomRow>& printedRows() const { return printed_; }

    [[nodiscard]] const std::string& pathOf(const BomRow& row) const;
    [[nodiscard]] std::string partNumberOf(const BomRow& row) const;

    /// The cells that the add-in exports of a row, in their order.
    [[nodiscard]] std::vector<host::TableCell> exportedCells(const BomRow& row) const;

    /// Throws a `Failure` that begins with `what` and says why the name is that of no printed row.
    [[noreturn]] void refuseRow(const std::string& name, const std::string& what) const;

    [[nodiscard]] const std::vector<BomColumn>& columns() const { return columns_; }

    /// The column of a key, else of a property; nothing where there is none.
    [[nodiscard]] std::optional<BomColumn> columnNamed(const std::string& name) const;

    /// The columns whose cells can be edited in a row.
    [[nodiscard]] std::vector<BomColumn> editableColumns(const BomRow& row) const;

    /// A printed cell.
    [[nodiscard]] const host::TableCell& cell(const BomRow& row, const BomColumn& column) const;

    /// True for a row that merges differently named components.
    [[nodiscard]] bool isCombined(const BomRow& row) const;

    /// The input of a cell.
    [[nodiscard]] adsk::core::Ptr<adsk::core::CommandInput> input(const BomRow& row,
                                                                  int column) const;

private:
    using RowsByName = std::unordered_map<std::string, std::vector<BomRow>>;

    adsk::core::Ptr<adsk::core::TableCommandInput> table_;
    host::TableView view_;
    std::vector<BomColumn> columns_;
    std::vector<BomOccurrence> occurrences_;
    std::vector<BomRow> rows_;
    std::vector<BomRow> printed_;  ///< by their lines, from 1
    RowsByName byPath_;
    RowsByName byPartNumber_;
};

}  // namespace workbench
