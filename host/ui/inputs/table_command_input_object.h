#pragma once

#include "host/ui/inputs/command_input_object.h"
#include "host/ui/inputs/table_lines.h"

#include <Core/TableCommandInput.h>

#include <cstddef>
#include <string>
#include <vector>

namespace host::ui {

class TableCommandInputObject final : public CommandInputObject<core::TableCommandInput> {
public:
    TableCommandInputObject(const InputOrigin& origin, int columns, const std::string& ratio);

    bool addCommandInput(const core::Ptr<core::CommandInput>& input, int row, int column,
                         int rowSpan, int columnSpan) override;
    bool addToolbarCommandInput(const core::Ptr<core::CommandInput>& input) override;
    [[nodiscard]] core::Ptr<core::CommandInput> getInputAtPosition(int row,
                                                                   int column) const override;
    bool getPosition(const core::Ptr<core::CommandInput>& input, int& row, int& column,
                     int& rowSpan, int& columnSpan) const override;
    bool removeInput(int row, int column) override;
    bool deleteRow(int row) override;
    bool clear() override;
    [[nodiscard]] int rowCount() const override;
    [[nodiscard]] int numberOfColumns() const override;
    bool numberOfColumns(int value) override;  ///< without effect: a table keeps its columns
    [[nodiscard]] std::string columnRatio() const override { return get<"columnRatio">(ratio_); }
    bool columnRatio(const std::string& value) override {
        return set<"columnRatio">(ratio_, value);
    }
    [[nodiscard]] int maximumVisibleRows() const override {
        return get<"maximumVisibleRows">(maximumVisibleRows_);
    }
    bool maximumVisibleRows(int value) override {
        return set<"maximumVisibleRows">(maximumVisibleRows_, value);
    }
    [[nodiscard]] int minimumVisibleRows() const override {
        return get<"minimumVisibleRows">(minimumVisibleRows_);
    }
    bool minimumVisibleRows(int value) override {
        return set<"minimumVisibleRows">(minimumVisibleRows_, value);
    }
    [[nodiscard]] int selectedRow() const override;
    bool selectedRow(int value) override;
    [[nodiscard]] core::TablePresentationStyles tablePresentationStyle() const override {
        return get<"tablePresentationStyle">(style_);
    }
    bool tablePresentationStyle(core::TablePresentationStyles value) override {
        return set<"tablePresentationStyle">(style_, value);
    }

    void dispose() override;

    /// @name For the host itself
    /// @{

    /// Removes an input that is in it, as a cell or in its toolbar.
    void remove(InputState& input);

    /// Selects a row, as the user does.
    void select(const TableLine& line) { lines_.select(&line); }

    [[nodiscard]] const TableLines& lines() const { return lines_; }
    [[nodiscard]] const std::vector<InputState*>& toolbar() const { return toolbar_.cells; }

    [[nodiscard]] bool isToolbar(const TableLine& line) const { return &line == &toolbar_; }

    /// The columns that have a width, of those from 0 to `numberOfColumns`.
    [[nodiscard]] std::vector<int> shownColumns() const;

    /// Whether a visible cell is in one of the columns `shown`.
    [[nodiscard]] bool isShown(const TableLine& line, const std::vector<int>& shown) const;
    /// @}

private:
    [[nodiscard]] InputState* acceptable(const core::Ptr<core::CommandInput>& input,
                                         const char* operation) const;
    [[nodiscard]] InputState* covering(std::size_t row, std::size_t column) const;
    void eraseWithInputs(TableLine& line);
    [[nodiscard]] int columnsInUse() const;

    int columns_;
    std::string ratio_;
    TableLines lines_;
    TableLine toolbar_;
    int maximumVisibleRows_ = 4;
    int minimumVisibleRows_ = 2;
    core::TablePresentationStyles style_ = core::itemBorderTablePresentationStyle;
};

}  // namespace host::ui
