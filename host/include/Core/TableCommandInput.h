#pragma once

#include <Core/CommandInput.h>
#include <Core/Enums.h>

#include <string>

namespace adsk::core {

/// Inputs in rows and columns.
///
/// A cell is an input of the collection that the table belongs to, put at a place of the table; it
/// stays in its collection. A row is shown exactly when one of its shown columns contains a visible
/// cell. Rows and columns are counted from 0.
class TableCommandInput : public CommandInput {
public:
    static const char* classType();  ///< "adsk::core::TableCommandInput"

    /// Puts an input at a place; the table grows as needed, and what was there is removed from the
    /// table. An input that is elsewhere in a table moves, and a row that this leaves without cells
    /// is removed. Spans are numbers of *additional* cells; `rowSpan` must be 0. False for null, an
    /// input of another dialog, a place far outside the table, and for kinds that cannot be cells:
    /// selections, button rows, tables, tabs, groups.
    virtual bool addCommandInput(const Ptr<CommandInput>& input, int row, int column,
                                 int rowSpan = 0, int columnSpan = 0) = 0;

    /// Puts an input below the table, after those already there, and removes it from where it was
    /// in a table. False as `addCommandInput`.
    virtual bool addToolbarCommandInput(const Ptr<CommandInput>& input) = 0;

    /// The input at a place, for one that spans several columns at each of them; null for an empty
    /// place and outside the table.
    [[nodiscard]] virtual Ptr<CommandInput> getInputAtPosition(int row, int column) const = 0;

    /// The place of an input. False, with the arguments unchanged, for null and for an input that
    /// is not a cell of this table.
    virtual bool getPosition(const Ptr<CommandInput>& input, int& row, int& column, int& rowSpan,
                             int& columnSpan) const = 0;

    /// Removes an input from the table; it stays in its collection. False for an empty place.
    virtual bool removeInput(int row, int column) = 0;

    /// Deletes a row together with its inputs; the rows after it move up. A number beyond the last
    /// row deletes the last row. False for a negative number and an empty table.
    virtual bool deleteRow(int row) = 0;

    /// Deletes all rows and what is in the toolbar, together with the inputs.
    virtual bool clear() = 0;

    /// The number of rows that contain inputs.
    [[nodiscard]] virtual int rowCount() const = 0;

    /// The number that the table was created with, however many columns its cells use.
    [[nodiscard]] virtual int numberOfColumns() const = 0;
    /// Has no effect, and returns true.
    virtual bool numberOfColumns(int value) = 0;

    /// The widths of the columns in relation to each other, such as "1:3:0", as it was set. A
    /// column of width 0 is not shown; a missing width counts as 1, and surplus ones are ignored.
    [[nodiscard]] virtual std::string columnRatio() const = 0;
    /// Not checked; the cells of a column that is hidden keep their own flags.
    virtual bool columnRatio(const std::string& value) = 0;

    /// How many rows show before the table scrolls, 4 at first.
    [[nodiscard]] virtual int maximumVisibleRows() const = 0;
    /// Shown at once.
    virtual bool maximumVisibleRows(int value) = 0;

    /// How many rows the table has room for when it contains fewer, 2 at first.
    [[nodiscard]] virtual int minimumVisibleRows() const = 0;
    /// Shown at once.
    virtual bool minimumVisibleRows(int value) = 0;

    /// The row of the cell that the user clicked last, -1 for none.
    [[nodiscard]] virtual int selectedRow() const = 0;
    /// -1 selects none; no handler is notified. False for a row that does not exist.
    virtual bool selectedRow(int value) = 0;

    /// How the cells are drawn.
    [[nodiscard]] virtual TablePresentationStyles tablePresentationStyle() const = 0;
    /// Changes the look alone.
    virtual bool tablePresentationStyle(TablePresentationStyles value) = 0;
};

}  // namespace adsk::core
