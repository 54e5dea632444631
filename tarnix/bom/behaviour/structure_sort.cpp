#include "tarnix/bom/behaviour/structure_sort.h"

#include "tarnix/bom/tabs/table_layout.h"
#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"
#include "tarnix/text/numbers.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace tarnix {

using namespace adsk::core;

namespace {

/// Whether what follows the last "_" of an id is exactly "0".
bool isHeaderId(const std::string& id) { return id == "0" || id.ends_with("_0"); }

/// The rows that hold anything but header cells, in the table's order.
std::vector<CellRow> dataRows(const Ptr<TableCommandInput>& table) {
    std::vector<CellRow> rows;
    const int rowCount = table->rowCount();
    const int lastColumn = table->numberOfColumns();
    rows.reserve(static_cast<std::size_t>(rowCount));
    for (int row = 0; row < rowCount; ++row) {
        CellRow cells;
        cells.reserve(static_cast<std::size_t>(lastColumn) + 1);
        for (int column = 0; column <= lastColumn; ++column) {
            Ptr<CommandInput> cell = table->getInputAtPosition(row, column);
            if (cell && !isHeaderId(cell->id())) {
                cells.push_back(std::move(cell));
            }
        }
        if (!cells.empty()) {
            rows.push_back(std::move(cells));
        }
    }
    return rows;
}

/// The column whose cells have the id of the clicked header but for the number; 0 where none has.
std::size_t clickedColumn(const CellRow& row, const std::string& clickedBase) {
    for (std::size_t column = 0; column < row.size(); ++column) {
        if (row[column]->id().find(clickedBase) != std::string::npos) {
            return column;
        }
    }
    return 0;
}

/// The string that a cell sorts by; nothing for a kind of input that has none.
std::optional<std::string> sortText(const Ptr<CommandInput>& cell) {
    if (const Ptr<StringValueCommandInput> field = cell) {
        return field->value();
    }
    if (const Ptr<DropDownCommandInput> dropDown = cell) {
        return dropDown->selectedItem()->name();
    }
    if (const Ptr<BoolValueCommandInput> button = cell) {
        return button->name();
    }
    return std::nullopt;
}

using Rows = std::vector<const CellRow*>;

/// What the sorted column holds under one id.
template <class Key>
struct Entry {
    std::optional<Key> key;  ///< missing where no cell has a text
    Rows rows;               ///< in the table's order
};

template <class Key>
using EntryOfId = std::pair<const std::string, Entry<Key>>;

/// Compares by plain less-than, first the keys, then the ids. The standard's own comparison of
/// pairs takes a key that is not a number as equal to every other, and a set would drop its row.
template <class Key>
struct PlainLess {
    using Pair = std::pair<Key, EntryOfId<Key>*>;

    bool operator()(const Pair& left, const Pair& right) const {
        return left.first < right.first ||
               (!(right.first < left.first) && left.second->first < right.second->first);
    }
};

/// The column's entries by their ids, with the keys that `keyOf` makes of their texts.
template <class Key, class KeyOf>
std::map<std::string, Entry<Key>> entriesOf(const std::vector<CellRow>& rows, std::size_t column,
                                            KeyOf keyOf) {
    std::map<std::string, Entry<Key>> entries;
    for (const CellRow& row : rows) {
        const Ptr<CommandInput>& cell = at(row, column);
        const std::optional<std::string> text = sortText(cell);
        Entry<Key>& entry = entries[cell->id()];
        entry.rows.push_back(&row);
        if (text) {
            entry.key = keyOf(*text);
        }
    }
    return entries;
}

/// The rows of each id, sorted by their keys.
///
/// A set and not a sorting algorithm: with keys that are not numbers no order is a strict one, and
/// a set stays within its bounds all the same.
template <class Key, class KeyOf>
std::vector<Rows> sortedRows(const std::vector<CellRow>& rows, std::size_t column, KeyOf keyOf) {
    std::map<std::string, Entry<Key>> entries = entriesOf<Key>(rows, column, keyOf);
    std::set<std::pair<Key, EntryOfId<Key>*>, PlainLess<Key>> pairs;
    for (EntryOfId<Key>& each : entries) {
        if (each.second.key) {
            pairs.emplace(*std::move(each.second.key), &each);
        }
    }
    std::vector<Rows> sorted;
    sorted.reserve(pairs.size());
    for (const auto& pair : pairs) {
        sorted.push_back(std::move(pair.second->second.rows));
    }
    return sorted;
}

std::vector<Rows> rowsInOrder(const std::vector<CellRow>& rows, std::size_t column) {
    if (column == kIconColumn || column == kGraphColumn) {
        return {};
    }
    const bool isNumber =
        column == kPositionColumn || (column >= kFixedColumns && isNumericColumn(rows, column));
    if (isNumber) {
        return sortedRows<double>(rows, column, parseDouble);
    }
    return sortedRows<std::string>(rows, column, [](const std::string& text) { return text; });
}

/// Moves the row's cells to a row after the table's last.
void moveToEnd(const Ptr<TableCommandInput>& table, const CellRow& row) {
    const int target = table->rowCount();
    for (std::size_t column = 0; column < row.size(); ++column) {
        table->addCommandInput(row[column], target, static_cast<int>(column), /*rowSpan=*/0,
                               /*columnSpan=*/0);
    }
}

}  // namespace

void sortStructureTable(Ptr<TableCommandInput> table, Ptr<CommandInput> input,
                        const std::string& orderText) {
    const std::vector<CellRow> rows = dataRows(table);
    const std::size_t column = clickedColumn(at(rows, 0), idBase(input->id()));
    std::vector<Rows> sorted = rowsInOrder(rows, column);
    if (orderText == kDescending) {
        std::ranges::reverse(sorted);
    } else if (orderText != kAscending) {
        return;
    }
    for (const Rows& rowsOfId : sorted) {
        for (const CellRow* row : rowsOfId) {
            moveToEnd(table, *row);
        }
    }
}

bool isNumericColumn(const std::vector<CellRow>& rows, std::size_t column) {
    bool isNumeric = false;
    for (const CellRow& row : rows) {
        const Ptr<StringValueCommandInput> field = at(row, column);
        if (field && parseDouble(field->value()) != 0.0) {
            isNumeric = true;
        }
    }
    return isNumeric;
}

}  // namespace tarnix
