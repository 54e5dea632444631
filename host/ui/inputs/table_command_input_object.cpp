#include "host/ui/inputs/table_command_input_object.h"

#include "host/base/documented_points.h"
#include "host/base/last_error.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <set>
#include <utility>

namespace host::ui {
namespace {

// A place far beyond the others is a mistake, and would cost the memory of all rows in between.
constexpr int kMostEmptyRows = 100000;
constexpr int kMostColumns = 1000;

bool fitsInTable(InputKind kind) {
    switch (kind) {
        case InputKind::Tab:
        case InputKind::Group:
        case InputKind::ButtonRow:
        case InputKind::Table:
        case InputKind::Selection:
        case InputKind::TabBar:
            return false;
        default:
            return true;
    }
}

/// The numbers of "a:b:c"; a part that is no number counts as 1.
std::vector<double> widths(const std::string& ratio) {
    std::vector<double> parts;
    for (std::size_t from = 0; from <= ratio.size();) {
        const std::size_t to = std::min(ratio.find(':', from), ratio.size());
        double width = 1;
        std::from_chars(ratio.data() + from, ratio.data() + to, width);
        parts.push_back(width);
        from = to + 1;
    }
    return parts;
}

}  // namespace

TableCommandInputObject::TableCommandInputObject(const InputOrigin& origin, int columns,
                                                 const std::string& ratio)
    : CommandInputObject(origin, InputKind::Table),
      columns_(columns),
      ratio_(ratio),
      lines_(this, std::max(columns, 0)) {
    toolbar_.table = this;
}

// Null, with the misuse listed, for an input that cannot be in this table.
InputState* TableCommandInputObject::acceptable(const core::Ptr<core::CommandInput>& input,
                                                const char* operation) const {
    InputState* state = InputState::of(input);
    if (state == nullptr) {
        fail(core::BadApiCallError, std::string(operation) + ": the input is null");
        return nullptr;
    }
    if (state->command() == nullptr || state->command() != command()) {
        misuse(operation, "the input \"" + state->id() + "\" is not of this dialog");
        return nullptr;
    }
    if (!fitsInTable(state->kind)) {
        misuse(operation, "an input like \"" + state->id() + "\" cannot be in a table");
        return nullptr;
    }
    return state;
}

bool TableCommandInputObject::addCommandInput(const core::Ptr<core::CommandInput>& input, int row,
                                              int column, int rowSpan, int columnSpan) {
    constexpr const char* kOperation = "TableCommandInput::addCommandInput";
    if (closed<"addCommandInput">(*this)) return {};
    InputState* state = acceptable(input, kOperation);
    if (state == nullptr) return false;
    const auto lines = static_cast<int>(lines_.count());
    if (row < 0 || row - kMostEmptyRows > lines || column < 0 || column >= kMostColumns) {
        return misuse(kOperation, "no place at row " + std::to_string(row) + ", column " +
                                      std::to_string(column));
    }
    if (rowSpan != 0 || columnSpan < 0) {
        return misuse(kOperation, "a cell spans one row, and columns to its right");
    }
    TableLine* from = state->inLine;
    const auto at = static_cast<std::size_t>(state->inColumn);
    if (lines_.cell(static_cast<std::size_t>(row), static_cast<std::size_t>(column)) != state) {
        lines_.place(*state, static_cast<std::size_t>(row), static_cast<std::size_t>(column));
        // Only now: an input that leaves its row empty removes that row, and would shift the place
        // that it is moved to.
        if (from != nullptr && from == &from->table->toolbar_) {
            std::erase(from->cells, state);
        } else if (from != nullptr) {
            from->table->lines_.take(*from, at);
        }
    }
    if (columnSpan != state->extras().columnSpan) {
        state->changeExtras().columnSpan = columnSpan;
    }
    return true;
}

bool TableCommandInputObject::addToolbarCommandInput(const core::Ptr<core::CommandInput>& input) {
    constexpr const char* kOperation = "TableCommandInput::addToolbarCommandInput";
    if (closed<"addToolbarCommandInput">(*this)) return {};
    InputState* state = acceptable(input, kOperation);
    if (state == nullptr) return false;
    if (state->inLine != nullptr) {
        state->inLine->table->remove(*state);
    }
    toolbar_.cells.push_back(state);
    state->inLine = &toolbar_;
    state->inColumn = 0;
    return true;
}

core::Ptr<core::CommandInput> TableCommandInputObject::getInputAtPosition(int row,
                                                                          int column) const {
    if (closed<"getInputAtPosition">(*this)) return {};
    if (row < 0 || column < 0) return nullptr;
    InputState* found = covering(static_cast<std::size_t>(row), static_cast<std::size_t>(column));
    return found == nullptr ? nullptr : found->api();
}

// The cell at a place, or the one to its left that reaches so far.
InputState* TableCommandInputObject::covering(std::size_t row, std::size_t column) const {
    if (column >= static_cast<std::size_t>(kMostColumns)) return nullptr;
    for (std::size_t at = column + 1; at-- > 0;) {
        if (InputState* cell = lines_.cell(row, at)) {
            const auto span = static_cast<std::size_t>(cell->extras().columnSpan);
            return at + span >= column ? cell : nullptr;
        }
    }
    return nullptr;
}

bool TableCommandInputObject::getPosition(const core::Ptr<core::CommandInput>& input, int& row,
                                          int& column, int& rowSpan, int& columnSpan) const {
    if (closed<"getPosition">(*this)) return {};
    const InputState* state = InputState::of(input);
    if (state == nullptr || state->inLine == nullptr || state->inLine->table != this ||
        state->inLine == &toolbar_) {
        return fail(core::OperationFailed,
                    "TableCommandInput::getPosition: the input is not in the table");
    }
    row = static_cast<int>(lines_.indexOf(*state->inLine));
    column = state->inColumn;
    rowSpan = 0;
    columnSpan = state->extras().columnSpan;
    return true;
}

bool TableCommandInputObject::removeInput(int row, int column) {
    if (closed<"removeInput">(*this)) return {};
    InputState* found = row < 0 || column < 0 ? nullptr
                                              : lines_.cell(static_cast<std::size_t>(row),
                                                            static_cast<std::size_t>(column));
    if (found == nullptr) {
        return fail(core::OperationFailed, "TableCommandInput::removeInput: the place is empty");
    }
    remove(*found);
    return true;
}

void TableCommandInputObject::remove(InputState& input) {
    TableLine& line = *input.inLine;
    input.inLine = nullptr;
    if (&line == &toolbar_) {
        std::erase(toolbar_.cells, &input);
    } else {
        lines_.take(line, static_cast<std::size_t>(input.inColumn));
    }
}

bool TableCommandInputObject::deleteRow(int row) {
    if (closed<"deleteRow">(*this)) return {};
    if (row < 0 || lines_.count() == 0) {
        return fail(core::OperationFailed,
                    "TableCommandInput::deleteRow: row " + std::to_string(row) + " does not exist");
    }
    const std::size_t index = std::min(static_cast<std::size_t>(row), lines_.count() - 1);
    eraseWithInputs(lines_.at(index));
    return true;
}

bool TableCommandInputObject::clear() {
    if (closed<"clear">(*this)) return {};
    while (lines_.count() > 0) {
        eraseWithInputs(lines_.at(lines_.count() - 1));
    }
    for (InputState* each : std::exchange(toolbar_.cells, {})) {
        each->inLine = nullptr;
        removeFromOwner(*each);
    }
    return true;
}

void TableCommandInputObject::eraseWithInputs(TableLine& line) {
    const std::vector<InputState*> cells = line.cells;
    lines_.erase(line);
    for (InputState* each : cells) {
        if (each != nullptr) {
            removeFromOwner(*each);
        }
    }
}

void TableCommandInputObject::dispose() {
    while (lines_.count() > 0) {
        lines_.erase(lines_.at(lines_.count() - 1));
    }
    for (InputState* each : toolbar_.cells) {
        each->inLine = nullptr;
    }
    toolbar_.cells.clear();
    CommandInputObject::dispose();
}

int TableCommandInputObject::rowCount() const {
    if (closed<"rowCount">(*this)) return {};
    return static_cast<int>(lines_.rows());
}

bool TableCommandInputObject::numberOfColumns(int /*value*/) {
    if (closed<"numberOfColumns">(*this)) return {};
    return true;
}

int TableCommandInputObject::numberOfColumns() const {
    if (closed<"numberOfColumns">(*this)) return {};
    return documentedPoints().columnsInUse ? columnsInUse() : columns_;
}

int TableCommandInputObject::columnsInUse() const {
    const std::vector<double> given = widths(ratio_);
    std::set<std::size_t> used;
    for (std::size_t row = 0; row < lines_.count(); ++row) {
        const std::vector<InputState*>& cells = lines_.at(row).cells;
        for (std::size_t column = 0; column < cells.size(); ++column) {
            const bool hasWidth = column >= given.size() || given[column] != 0;
            if (cells[column] != nullptr && hasWidth) {
                used.insert(column);
            }
        }
    }
    return static_cast<int>(used.size());
}

int TableCommandInputObject::selectedRow() const {
    if (closed<"selectedRow">(*this)) return -1;
    const TableLine* selected = lines_.selected();
    return selected == nullptr ? -1 : static_cast<int>(lines_.indexOf(*selected));
}

bool TableCommandInputObject::selectedRow(int value) {
    if (closed<"selectedRow">(*this)) return {};
    if (value < -1 || value >= static_cast<int>(lines_.count())) {
        return fail(core::OperationFailed, "TableCommandInput::selectedRow: row " +
                                               std::to_string(value) + " does not exist");
    }
    lines_.select(value < 0 ? nullptr : &lines_.at(static_cast<std::size_t>(value)));
    return true;
}

std::vector<int> TableCommandInputObject::shownColumns() const {
    const std::vector<double> given = widths(ratio_);
    std::vector<int> shown;
    for (int column = 0; column <= std::min(columns_, kMostColumns); ++column) {
        const auto index = static_cast<std::size_t>(column);
        if (index >= given.size() || given[index] != 0) {
            shown.push_back(column);
        }
    }
    return shown;
}

bool TableCommandInputObject::isShown(const TableLine& line, const std::vector<int>& shown) const {
    return std::any_of(shown.begin(), shown.end(), [&line](int column) {
        const auto index = static_cast<std::size_t>(column);
        return index < line.cells.size() && line.cells[index] != nullptr &&
               line.cells[index]->visible;
    });
}

}  // namespace host::ui
