#include "workbench/output/parts_table.h"

#include "workbench/output/display_text.h"

#include <algorithm>

namespace workbench {
namespace {

constexpr std::size_t kLevelIndent = 2;
constexpr std::size_t kMostValues = 5;  // of a conflict; JSON has them all

std::string remarkOf(const parts::PartsRow& row) {
    if (row.isUnmeasured) {
        return "unmeasured";
    }
    return row.isAssumed ? "material assumed" : "";
}

bool isIndented(parts::Field field) {
    return field == parts::Field::PartNumber || field == parts::Field::PartName;
}

/// Whether a column has the item numbers of a tree: 1.10 comes after 1.9.
bool isOutline(const parts::PartsList& list, parts::Field field) {
    return field == parts::Field::Item && list.request.view == parts::View::Indented;
}

/// The column that shows the levels of a tree; none in a flat list.
std::size_t treeColumn(const parts::PartsList& list) {
    if (list.request.view != parts::View::Indented) {
        return list.columns.size();
    }
    const auto found = std::ranges::find_if(list.columns, [](const parts::ListColumn& column) {
        return isIndented(column.column.field);
    });
    return static_cast<std::size_t>(found - list.columns.begin());
}

std::vector<std::string> cellsOf(const parts::PartsRow& row, const parts::NumberFormat& numbers,
                                 std::size_t tree) {
    std::vector<std::string> cells;
    for (const parts::Cell& cell : row.cells) {
        const bool isTree = cells.size() == tree;
        const std::size_t depth = isTree ? static_cast<std::size_t>(row.level - 1) : 0;
        cells.push_back(std::string(kLevelIndent * depth, ' ') + parts::cellText(cell, numbers));
    }
    return cells;
}

std::string linesText(const parts::PartsList& list, const parts::NumberFormat& numbers,
                      console::Charset charset, std::size_t width) {
    std::vector<std::string> captions;
    for (const parts::ListColumn& column : list.columns) {
        captions.push_back(column.caption);
    }
    const bool hasRemarks = std::ranges::any_of(
        list.rows, [](const parts::PartsRow& row) { return !remarkOf(row).empty(); });
    if (hasRemarks) {
        captions.emplace_back("Remark");
    }
    const std::size_t tree = treeColumn(list);
    TextTable table(captions, charset);
    for (std::size_t column = 0; column < list.columns.size(); ++column) {
        if (isOutline(list, list.columns[column].column.field)) {
            table.alignLeft(column);
        }
    }
    for (const parts::PartsRow& row : list.rows) {
        std::vector<std::string> cells = cellsOf(row, numbers, tree);
        if (hasRemarks) {
            cells.push_back(remarkOf(row));
        }
        table.add(cells);
    }
    return table.text(/*indent=*/0, width);
}

std::string totalsText(const parts::PartsList& list, const parts::NumberFormat& numbers) {
    const parts::Totals& totals = list.totals;
    std::string text =
        std::to_string(list.rows.size()) + (list.rows.size() == 1 ? " row, " : " rows, ") +
        std::to_string(totals.quantity) + (totals.quantity == 1 ? " item" : " items");
    if (totals.massKg) {
        const parts::Unit& unit = *list.request.units.mass;
        text += std::string(", ") + (totals.isUnmeasured ? "at least " : "") +
                parts::numberText({.value = *totals.massKg * unit.factor}, numbers) + " " +
                unit.name + (totals.isAssumed ? " (some materials are assumed)" : "");
    }
    return text + "\n";
}

std::string shortList(const std::vector<std::string>& values) {
    std::string text;
    for (std::size_t index = 0; index < std::min(values.size(), kMostValues); ++index) {
        text += (index == 0 ? "" : ", ") + values[index];
    }
    const std::size_t others = values.size() - std::min(values.size(), kMostValues);
    return text + (others == 0 ? "" : " and " + std::to_string(others) + " more");
}

std::string conflictsText(const parts::PartsList& list) {
    std::string text;
    for (const parts::Conflict& conflict : list.conflicts) {
        const bool hasValues = !conflict.values.empty();
        text += "conflict: " + conflict.item + ": different " + conflict.what + ": " +
                shortList(hasValues ? conflict.values : conflict.components) + "\n";
    }
    for (const parts::PossibleDuplicate& duplicate : list.duplicates) {
        text += "possible duplicates, of one shape: " + shortList(duplicate.items) + "\n";
    }
    return text;
}

}  // namespace

std::string partsTable(const parts::PartsList& list, const parts::NumberFormat& numbers,
                       console::Charset charset, std::size_t width) {
    std::string text = linesText(list, numbers, charset, width);
    text += "\n" + printableLines(totalsText(list, numbers));
    return text + printableLines(conflictsText(list));
}

}  // namespace workbench
