#pragma once

#include "host/ui/inputs/sequence.h"

#include <cstddef>
#include <memory>
#include <vector>

/// The rows of a table.
namespace host::ui {

class InputState;
class TableCommandInputObject;

/// One row of a table, or its toolbar.
struct TableLine {
    TableCommandInputObject* table = nullptr;
    std::size_t slot = 0;  ///< among the lines; unused for the toolbar
    int counted = 0;       ///< cells in the table's own columns
    std::vector<InputState*>
        cells;  ///< by column, null for an empty place; of the toolbar: in order
};

/// Inputs in rows and columns, without regard to what they are.
///
/// A line counts as a row while it holds a cell in the table's own columns, and is removed with the
/// last of these: what it holds beyond them then leaves the table. Placing, taking and finding cost
/// at most logarithmic time, so rows can be moved one by one.
class TableLines {
public:
    /// `lastColumn` is the last one of the table's own columns.
    TableLines(TableCommandInputObject* table, int lastColumn)
        : table_(table), lastColumn_(lastColumn) {}

    /// The number of lines that count as rows.
    [[nodiscard]] std::size_t rows() const { return rows_; }

    /// The number of lines, empty ones included.
    [[nodiscard]] std::size_t count() const { return lines_.count(); }

    [[nodiscard]] TableLine& at(std::size_t row) const { return *lines_.at(row); }
    [[nodiscard]] std::size_t indexOf(const TableLine& line) const {
        return lines_.indexOf(line.slot);
    }

    /// The input at a place, null for an empty one.
    [[nodiscard]] InputState* cell(std::size_t row, std::size_t column) const;

    /// Puts an input that is not in the table at a place; the one that was there leaves the table.
    void place(InputState& input, std::size_t row, std::size_t column);

    /// Removes the cell at `column` from `line`, and the line if it no longer counts as a row.
    void take(TableLine& line, std::size_t column);

    /// Removes a line; its cells leave the table.
    void erase(TableLine& line);

    /// The selected line, null for none; removing it leaves none selected.
    [[nodiscard]] const TableLine* selected() const { return selected_; }
    void select(const TableLine* line) { selected_ = line; }

private:
    [[nodiscard]] bool counts(std::size_t column) const {
        return column <= static_cast<std::size_t>(lastColumn_);
    }
    void count(TableLine& line, int change);

    TableCommandInputObject* table_;
    int lastColumn_;
    std::size_t rows_ = 0;
    const TableLine* selected_ = nullptr;
    Sequence<std::unique_ptr<TableLine>> lines_;
};

}  // namespace host::ui
