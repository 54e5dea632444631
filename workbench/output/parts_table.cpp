#include "workbench/output/parts_table.h"

#include "workbench/output/display_text.h"

#include "parts/row_remarks.h"

#include <algorithm>

namespace workbench {
namespace {

constexpr std::size_t kLevelIndent = 2;
constexpr std::size_t kWidestUses = 60;  // of the column "Used in", in terminal columns

/// As many parents as there is room for: a screw may have hundreds. Other formats have them all.
std::string usesText(const std::string& text) { return fitted(text, kWidestUses); }

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

std::vector<std::string> cellsOf(const parts::PartsList& list, const parts::PartsRow& row,
                                 const parts::NumberFormat& numbers, std::size_t tree) {
    std::vector<std::string> cells;
    for (const parts::Cell& cell : row.cells) {
        const std::size_t column = cells.size();
        const std::size_t depth = column == tree ? static_cast<std::size_t>(row.level - 1) : 0;
        const std::string text = parts::cellText(cell, numbers);
        const bool isUses = list.columns[column].column.field == parts::Field::UsedIn;
        cells.push_back(std::string(kLevelIndent * depth, ' ') + (isUses ? usesText(text) : text));
    }
    return cells;
}

std::string linesText(const parts::PartsList& list, const parts::NumberFormat& numbers,
                      console::Charset charset, std::size_t width) {
    std::vector<std::string> captions;
    for (const parts::ListColumn& column : list.columns) {
        captions.push_back(column.caption);
    }
    const bool hasRemarks = std::ranges::any_of(list.rows, [&](const parts::PartsRow& row) {
        return !parts::doubtAbout(list, row).empty();
    });
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
        std::vector<std::string> cells = cellsOf(list, row, numbers, tree);
        if (hasRemarks) {
            cells.push_back(parts::doubtAbout(list, row));
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

std::string conflictsText(const parts::PartsList& list) {
    std::string text;
    for (const parts::Conflict& conflict : list.conflicts) {
        const bool hasValues = !conflict.values.empty();
        text += "conflict: " + conflict.item + ": different " + conflict.what + ": " +
                parts::shortList(hasValues ? conflict.values : conflict.components) + "\n";
    }
    for (const parts::PossibleDuplicate& duplicate : list.duplicates) {
        text += "possible duplicates, of one shape: " + parts::shortList(duplicate.items) + "\n";
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
