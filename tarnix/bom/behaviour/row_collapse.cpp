#include "tarnix/bom/behaviour/row_collapse.h"

#include "tarnix/bom/behaviour/open_dialog.h"
#include "tarnix/bom/tabs/table_layout.h"
#include "tarnix/text/ids.h"
#include "tarnix/text/positions.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace tarnix {

using namespace adsk::core;

namespace {

constexpr const char* kUnfoldedMark = "\xE2\x96\x91";  // U+2591

Ptr<BoolValueCommandInput> toggleOf(const Ptr<TableCommandInput>& table, int row) {
    return table->getInputAtPosition(row, kIconColumn);
}

bool hasPosition(const Ptr<CommandInput>& cell) {
    return Ptr<StringValueCommandInput>(cell) || Ptr<BoolValueCommandInput>(cell);
}

/// The position in column 1: the value of a field, else the name of a button.
std::string positionIn(const Ptr<CommandInput>& cell) {
    if (const Ptr<StringValueCommandInput> field = cell) {
        return stripPositionPrefix(field->value());
    }
    const Ptr<BoolValueCommandInput> button = cell;
    return stripPositionPrefix(button->name());
}

std::string positionAt(const Ptr<TableCommandInput>& table, int row) {
    return positionIn(table->getInputAtPosition(row, kPositionColumn));
}

/// Whether `position` lies below `parent`, at any depth; a repeated position lies below itself.
bool isBelow(std::string_view position, std::string_view parent) {
    return position.starts_with(parent) &&
           (position.size() == parent.size() || position[parent.size()] == '.');
}

void setIconOfAssembly(const Ptr<BoolValueCommandInput>& toggle, const char* icon) {
    if (toggle->resourceFolder().find(kInAssemblyIcons) != std::string::npos) {
        toggle->resourceFolder(icon);
    }
}

/// What hiding a row does to the row above it that was folded.
void markFolded(const Ptr<TableCommandInput>& table, int row, std::string_view position) {
    setIconOfAssembly(toggleOf(table, row), kFoldedIcon);
    if (position.find('.') == std::string_view::npos) {
        const Ptr<StringValueCommandInput> graph = table->getInputAtPosition(row, kGraphColumn);
        graph->value("");
    }
}

/// What showing a row does to the row above it that was unfolded.
void markUnfolded(const Ptr<TableCommandInput>& table, int row) {
    setIconOfAssembly(toggleOf(table, row), kUnfoldedIcon);
    const Ptr<StringValueCommandInput> graph = table->getInputAtPosition(row, kGraphColumn);
    if (graph->value().empty()) {
        graph->value(kUnfoldedMark);
    }
}

void hideBelow(const Ptr<TableCommandInput>& table, int row) {
    const std::string position = positionAt(table, row);
    const int rowCount = table->rowCount();
    for (int later = row + 1; later < rowCount; ++later) {
        if (isBelow(positionAt(table, later), position)) {
            markFolded(table, row, position);
            setRowVisible(table, later, false);
        }
    }
}

/// Shows row by row, and looks through all later rows again for each: the work grows with the
/// square of the rows. Holds for any table; `Unfolding` does the same for those whose positions
/// differ.
void showBelow(const Ptr<TableCommandInput>& table, int row) {
    const std::string position = positionAt(table, row);
    const int depth = positionDepth(position);
    const int rowCount = table->rowCount();
    for (int later = row + 1; later < rowCount; ++later) {
        const std::string next = positionAt(table, later);
        if (positionDepth(next) - depth < 2 && isBelow(next, position)) {
            markUnfolded(table, row);
            setRowVisible(table, later, true);
            collapseRows(table, later, toggleOf(table, later)->value());
        }
    }
}

/// The positions from `row` to the last row; nothing where one is missing or repeated.
std::optional<std::vector<std::string>> differingPositions(const Ptr<TableCommandInput>& table,
                                                           int row, int rowCount) {
    std::vector<std::string> positions;
    std::unordered_set<std::string_view> seen;
    positions.reserve(static_cast<std::size_t>(rowCount - row));
    for (; row < rowCount; ++row) {
        const Ptr<CommandInput> cell = table->getInputAtPosition(row, kPositionColumn);
        if (!hasPosition(cell)) {
            return std::nullopt;
        }
        positions.push_back(positionIn(cell));
        if (!seen.insert(positions.back()).second) {
            return std::nullopt;
        }
    }
    return positions;
}

/// Unfolds below a row in one pass over the rows after it.
///
/// Where no position repeats, a row is touched at most once: it is shown by the row directly above
/// it, when that one is unfolded, or hidden by the first one above it that is folded. So it is
/// enough to remember of each row that was reached what it does to those below it.
class Unfolding {
public:
    Unfolding(Ptr<TableCommandInput> table, int row, std::vector<std::string> positions)
        : table_(std::move(table)), firstRow_(row), positions_(std::move(positions)) {}

    void run() {
        reached_.emplace(positions_.front(), Reached{.row = firstRow_, .isUnfolded = true});
        for (std::size_t i = 1; i < positions_.size(); ++i) {
            visit(positions_[i], firstRow_ + static_cast<int>(i));
        }
    }

private:
    struct Reached {
        int row;          ///< the row that decides about those below
        bool isUnfolded;  ///< else all below are hidden, at any depth
    };

    void visit(std::string_view position, int row) {
        std::string_view above = position;
        for (std::size_t levels = 1;; ++levels) {
            const std::size_t dot = above.rfind('.');
            if (dot == std::string_view::npos) {
                return;
            }
            above = above.substr(0, dot);
            const auto found = reached_.find(above);
            if (found == reached_.end()) {
                continue;
            }
            const Reached parent = found->second;
            if (!parent.isUnfolded) {
                hide(position, row, parent);
            } else if (levels == 1) {
                show(position, row, parent);
            }
            return;
        }
    }

    void hide(std::string_view position, int row, const Reached& folded) {
        markFolded(table_, folded.row,
                   positions_[static_cast<std::size_t>(folded.row - firstRow_)]);
        setRowVisible(table_, row, false);
        reached_.emplace(position, folded);
    }

    void show(std::string_view position, int row, const Reached& unfolded) {
        markUnfolded(table_, unfolded.row);
        setRowVisible(table_, row, true);
        reached_.emplace(position,
                         Reached{.row = row, .isUnfolded = toggleOf(table_, row)->value()});
    }

    Ptr<TableCommandInput> table_;
    int firstRow_;
    std::vector<std::string> positions_;
    std::unordered_map<std::string_view, Reached> reached_;
};

}  // namespace

void toggleRowCollapse(Ptr<CommandInput> input) {
    const Ptr<CommandInputs> inputs = dialogInputsOf(input);
    const RowTabs tabs = rowTabs(inputs);
    const char* tableId = nullptr;
    if (tabs.structure->isActive()) {
        tableId = kStructureRows.tableId;
    } else if (tabs.model->isActive()) {
        tableId = kModelRows.tableId;
    } else {
        return;
    }
    const int row = idNumber(input->id());
    const Ptr<TableCommandInput> table = inputs->itemById(tableId);
    collapseRows(table, row, toggleOf(table, row)->value());
}

void collapseRows(Ptr<TableCommandInput> table, int row, bool showChildren) {
    const int rowCount = table->rowCount();
    if (row < 1 || row >= rowCount) {
        return;
    }
    if (!showChildren) {
        hideBelow(table, row);
    } else if (auto positions = differingPositions(table, row, rowCount)) {
        Unfolding(table, row, *std::move(positions)).run();
    } else {
        showBelow(table, row);
    }
}

void setRowVisible(Ptr<TableCommandInput> table, int row, bool visible) {
    const Ptr<BoolValueCommandInput> toggle = toggleOf(table, row);
    if (toggle->resourceFolder().find(kInPartIcons) == std::string::npos) {
        toggle->resourceFolder(toggle->value() ? kFoldedIcon : kUnfoldedIcon);
    }
    const std::string id = table->id();
    if (id != kModelRows.tableId && id != kStructureRows.tableId) {
        return;
    }
    toggle->isVisible(visible);
    // Column 1 is left out: it has no width on the tab "Data of Model".
    const int columns = table->numberOfColumns();
    for (int c = 1; c < columns; ++c) {
        table->getInputAtPosition(row, c + 1)->isVisible(visible);
    }
}

}  // namespace tarnix
