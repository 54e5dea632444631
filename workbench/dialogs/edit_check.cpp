#include "workbench/dialogs/edit_check.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/output/reports.h"

#include "host/design/design_data.h"
#include "host/session/table_view.h"

#include <algorithm>
#include <string>
#include <unordered_map>
#include <vector>

namespace workbench {
namespace {

using namespace adsk::core;

/// The texts of the open dialog, by occurrence. The model tab has a row for each of them, hidden or
/// not; a row of the structure tab is that of its first one.
class FreshCells {
public:
    FreshCells(const host::Session& session, const BomTab& tab) {
        for (const BomTab* each : {&kModelTab, &tab}) {
            Table& table = tables_[each == &kModelTab ? 0 : 1];
            table.input = session.table(each->table);
            for (const BomRow& row : rowsOf(table.input, {})) {
                table.rows[row.occurrence] = row.row;
            }
        }
    }

    /// True where a cell shows the value in either of the two tables.
    [[nodiscard]] bool show(const EditedCell& cell) const {
        return std::ranges::any_of(tables_, [&](const Table& table) {
            const auto row = table.rows.find(cell.row.occurrence);
            return row != table.rows.end() &&
                   host::readCell(table.input, row->second, cell.column).text == cell.value;
        });
    }

    /// What the occurrence itself shows.
    [[nodiscard]] std::string text(const EditedCell& cell) const {
        const auto row = tables_[0].rows.find(cell.row.occurrence);
        return row == tables_[0].rows.end()
                   ? ""
                   : host::readCell(tables_[0].input, row->second, cell.column).text;
    }

private:
    struct Table {
        Ptr<TableCommandInput> input;
        std::unordered_map<std::size_t, int> rows;
    };

    std::array<Table, 2> tables_;
};

std::size_t componentOf(const EditedTable& table, const BomRow& row) {
    return table.occurrences.at(row.occurrence).component;
}

/// The last row of the same component, which is written last; null where that is the edited one.
const BomRow* laterRow(const EditedTable& table, const EditedCell& cell) {
    const auto last = std::find_if(table.rows.rbegin(), table.rows.rend(), [&](const BomRow& row) {
        return componentOf(table, row) == componentOf(table, cell.row);
    });
    return last == table.rows.rend() || last->row == cell.row.row ? nullptr : &*last;
}

std::string describe(const EditedTable& table, const BomRow& row) {
    return row.line > 0 ? "row " + std::to_string(row.line)
                        : "the hidden row of " + table.occurrences.at(row.occurrence).path;
}

bool hasProperty(const host::ComponentData& component, const std::string& property) {
    return std::ranges::any_of(component.attributes, [&](const host::AttributeData& each) {
        return each.group == kPropertyGroup && each.name == kPropertyPrefix + property;
    });
}

/// Properties that every component has.
bool isBuiltIn(const std::string& property) {
    return property.empty() || property == "Part Name" || property == "Description";
}

std::string reasonFor(const EditedTable& table, const EditedCell& cell,
                      const host::DesignData& design) {
    if (std::ranges::find(kMeasuredProperties, cell.property) != std::end(kMeasuredProperties)) {
        return "the add-in works it out";
    }
    if (std::ranges::find(table.combinedRows, cell.row.row) != table.combinedRows.end()) {
        return "the row combines differently named components; edit them with --tab model";
    }
    const host::ComponentData& component = design.components.at(componentOf(table, cell.row));
    if (!isBuiltIn(cell.property) && !hasProperty(component, cell.property)) {
        return "\"" + component.name +
               "\" lacks that property; the subcommand \"properties\" adds it";
    }
    if (const BomRow* const later = laterRow(table, cell)) {
        return describe(table, *later) + " is the same component, and is written after it";
    }
    return "the design does not take \"" + cell.value + "\"";
}

}  // namespace

void checkEdits(const host::Session& session, const BomTab& tab, const EditedTable& edited) {
    if (edited.cells.empty()) {
        return;
    }
    const FreshCells fresh(session, tab);
    const host::DesignData design = session.design();
    std::vector<std::string> lost;
    for (const EditedCell& cell : edited.cells) {
        if (!fresh.show(cell)) {
            lost.push_back(cell.source + ": " + cell.key + " stays \"" + fresh.text(cell) +
                           "\": " + reasonFor(edited, cell, design));
        }
    }
    refuseObstacles(ExitCode::AddinFailed, lost);
}

}  // namespace workbench
