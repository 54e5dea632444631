#include "host/ui/inputs/table_lines.h"

#include "host/ui/inputs/input_state.h"

#include <algorithm>
#include <cstdint>

namespace host::ui {

InputState* TableLines::cell(std::size_t row, std::size_t column) const {
    if (row >= lines_.count()) return nullptr;
    const std::vector<InputState*>& cells = lines_.at(row)->cells;
    return column < cells.size() ? cells[column] : nullptr;
}

void TableLines::place(InputState& input, std::size_t row, std::size_t column) {
    while (lines_.count() <= row) {
        const std::size_t slot = lines_.append(std::make_unique<TableLine>());
        lines_.inSlot(slot)->table = table_;
        lines_.inSlot(slot)->slot = slot;
    }
    TableLine& line = *lines_.at(row);
    if (line.cells.size() <= column) {
        // As many as the table has columns, and no more: there are as many rows as parts.
        line.cells.reserve(std::max(column, static_cast<std::size_t>(lastColumn_)) + 1);
        line.cells.resize(column + 1);
    }
    if (InputState* before = line.cells[column]) {
        before->inLine = nullptr;
    } else if (counts(column)) {
        count(line, 1);
    }
    line.cells[column] = &input;
    input.inLine = &line;
    input.inColumn = static_cast<std::int16_t>(column);
}

void TableLines::take(TableLine& line, std::size_t column) {
    line.cells[column] = nullptr;
    if (counts(column)) {
        count(line, -1);
        if (line.counted == 0) {
            erase(line);
        }
    }
}

void TableLines::erase(TableLine& line) {
    for (InputState* each : line.cells) {
        if (each != nullptr) {
            each->inLine = nullptr;
        }
    }
    rows_ -= line.counted > 0 ? 1 : 0;
    if (selected_ == &line) {
        selected_ = nullptr;
    }
    lines_.remove(line.slot);
    lines_.tidy(
        [](const std::unique_ptr<TableLine>& moved, std::size_t slot) { moved->slot = slot; });
}

void TableLines::count(TableLine& line, int change) {
    const bool before = line.counted > 0;
    line.counted += change;
    const bool after = line.counted > 0;
    rows_ += after && !before ? 1 : 0;
    rows_ -= before && !after ? 1 : 0;
}

}  // namespace host::ui
