#include "tarnix/bom/behaviour/structure_sort.h"

#include "tarnix/text/checked.h"
#include "tarnix/text/ids.h"
#include "tarnix/text/numbers.h"

#include <map>
#include <optional>
#include <set>
#include <unordered_map>
#include <utility>

namespace tarnix {

using adsk::core::BoolValueCommandInput;
using adsk::core::CommandInput;
using adsk::core::DropDownCommandInput;
using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;
using adsk::core::TableCommandInput;

namespace {

constexpr std::size_t kPositionColumn = 1;
constexpr std::size_t kGraphColumn = 2;
constexpr std::size_t kFirstPropertyColumn = 5;

/// Whether what stands behind the last "_" of an id is exactly "0".
bool isHeaderId(const std::string& id) { return id == "0" || id.ends_with("_0"); }

/// The rows that hold anything but header cells, in the table's order.
std::vector<CellRow> dataRows(const Ptr<TableCommandInput>& table) {
    std::vector<CellRow> rows;
    const int rowCount = table->rowCount();
    const int lastColumn = table->numberOfColumns();
    for (int row = 0; row < rowCount; ++row) {
        CellRow cells;
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
std::size_t columnOf(const CellRow& row, const std::string& clickedBase) {
    for (std::size_t column = 0; column < row.size(); ++column) {
        if (row[column]->id().find(clickedBase) != std::string::npos) {
            return column;
        }
    }
    return 0;
}

/// The text that a cell sorts by; nothing for a kind of input that has none.
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

/// Compares pairs by plain less-than, first the keys, then the ids. The standard's own comparison
/// of pairs takes a key that is not a number for equal to every other, and a set would drop its
/// row.
template <class Key>
struct PlainLess {
    bool operator()(const std::pair<Key, std::string>& left,
                    const std::pair<Key, std::string>& right) const {
        return left.first < right.first ||
               (!(right.first < left.first) && left.second < right.second);
    }
};

/// The ids of a column's cells, sorted by the keys that `keyOf` makes of their texts.
///
/// A set and not a sorting algorithm: with keys that are not numbers no order is a strict one, and
/// a set stays within its bounds all the same.
template <class Key, class KeyOf>
std::vector<std::string> sortedIds(const std::vector<CellRow>& rows, std::size_t column,
                                   KeyOf keyOf) {
    std::map<std::string, Key> keys;
    for (const CellRow& row : rows) {
        const Ptr<CommandInput>& cell = at(row, column);
        if (const std::optional<std::string> text = sortText(cell)) {
            keys[cell->id()] = keyOf(*text);
        }
    }
    std::set<std::pair<Key, std::string>, PlainLess<Key>> pairs;
    for (const auto& [id, key] : keys) {
        pairs.emplace(key, id);
    }
    std::vector<std::string> ids;
    ids.reserve(pairs.size());
    for (const auto& pair : pairs) {
        ids.push_back(pair.second);
    }
    return ids;
}

std::vector<std::string> idsInOrder(const std::vector<CellRow>& rows, std::size_t column) {
    if (column == 0 || column == kGraphColumn) {
        return {};
    }
    const bool isNumber = column == kPositionColumn ||
                          (column >= kFirstPropertyColumn && isNumericColumn(rows, column));
    if (isNumber) {
        return sortedIds<double>(rows, column, parseDouble);
    }
    return sortedIds<std::string>(rows, column, [](const std::string& text) { return text; });
}

/// The rows in the order of the ids in their column; all rows that have an id stand in its place.
std::vector<const CellRow*> rowsInOrder(const std::vector<CellRow>& rows, std::size_t column,
                                        const std::vector<std::string>& ids) {
    std::unordered_map<std::string, std::vector<const CellRow*>> rowsOfId;
    for (const CellRow& row : rows) {
        rowsOfId[row[column]->id()].push_back(&row);
    }
    std::vector<const CellRow*> ordered;
    ordered.reserve(rows.size());
    for (const std::string& id : ids) {
        const std::vector<const CellRow*>& found = rowsOfId[id];
        ordered.insert(ordered.end(), found.begin(), found.end());
    }
    return ordered;
}

/// Moves the row's cells behind the table's rows.
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
    const std::size_t column = columnOf(at(rows, 0), idBase(input->id()));
    std::vector<std::string> ids = idsInOrder(rows, column);
    if (orderText == "Descending") {
        ids = std::vector<std::string>(ids.rbegin(), ids.rend());
    } else if (orderText != "Ascending") {
        return;
    }
    if (ids.empty()) {
        return;
    }
    for (const CellRow* row : rowsInOrder(rows, column, ids)) {
        moveToEnd(table, *row);
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
