#pragma once

#include <Core/CommandInput.h>
#include <Core/Enums.h>

#include <string>

namespace adsk::core {

/// Inputs in rows and columns.
///
/// A cell is an input of the collection that the table lives in, put at a place of the table; the
/// collection goes on owning it. A row is shown exactly when a visible cell stands in one of its
/// shown columns.
class TableCommandInput : public CommandInput {
public:
    static const char* classType();

    /// Puts an input at a place; the table grows as needed, and what stood there is taken out of
    /// the table. An input that stands elsewhere in the table moves, and a row that it leaves
    /// without a cell is closed up. Spans are numbers of *additional* cells; `rowSpan` must be 0.
    /// False for inputs that cannot stand in a table: selections, button rows, tables, tabs,
    /// groups.
    virtual bool addCommandInput(const Ptr<CommandInput>& input, int row, int column,
                                 int rowSpan = 0, int columnSpan = 0) = 0;

    /// Puts an input below the table.
    virtual bool addToolbarCommandInput(const Ptr<CommandInput>& input) = 0;

    /// The input at a place, null where there is none.
    [[nodiscard]] virtual Ptr<CommandInput> getInputAtPosition(int row, int column) const = 0;

    /// Where an input stands; false where it stands nowhere in this table.
    virtual bool getPosition(const Ptr<CommandInput>& input, int& row, int& column, int& rowSpan,
                             int& columnSpan) const = 0;

    /// Takes an input out of the table; it stays in its collection.
    virtual bool removeInput(int row, int column) = 0;

    /// Deletes a row together with its inputs; the rows behind it move up. The last row for a
    /// number beyond it, false for a negative one.
    virtual bool deleteRow(int row) = 0;

    /// Deletes all rows together with their inputs.
    virtual bool clear() = 0;

    /// The number of rows that hold inputs.
    [[nodiscard]] virtual int rowCount() const = 0;

    /// The number that the table was made with; setting it has no effect.
    [[nodiscard]] virtual int numberOfColumns() const = 0;
    virtual bool numberOfColumns(int value) = 0;

    /// The widths of the columns in relation to each other, such as "1:3:0". A column of width 0 is
    /// not shown, missing ones count 1.
    [[nodiscard]] virtual std::string columnRatio() const = 0;
    virtual bool columnRatio(const std::string& value) = 0;

    /// How many rows show before the table scrolls, 4 at first.
    [[nodiscard]] virtual int maximumVisibleRows() const = 0;
    virtual bool maximumVisibleRows(int value) = 0;

    /// How many rows the table takes at least, 2 at first.
    [[nodiscard]] virtual int minimumVisibleRows() const = 0;
    virtual bool minimumVisibleRows(int value) = 0;

    /// The row that the user selected, -1 for none.
    [[nodiscard]] virtual int selectedRow() const = 0;
    virtual bool selectedRow(int value) = 0;

    [[nodiscard]] virtual TablePresentationStyles tablePresentationStyle() const = 0;
    virtual bool tablePresentationStyle(TablePresentationStyles value) = 0;
};

}  // namespace adsk::core
