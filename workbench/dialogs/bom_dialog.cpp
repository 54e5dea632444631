#include "workbench/dialogs/bom_dialog.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/bom_columns.h"
#include "workbench/dialogs/list_items.h"
#include "workbench/dialogs/uncaught.h"
#include "workbench/output/display_text.h"

#include "host/session/input_actions.h"
#include "host/session/table_view.h"
#include "host/session/user_actions.h"

#include <algorithm>

namespace workbench {
namespace {

using namespace adsk::core;
using host::TableCell;

std::vector<std::string> offeredProperties(const host::Session& session) {
    const Ptr<DropDownCommandInput> list = session.input(std::string(kPropertyList) + "0");
    std::vector<std::string> names = itemNames(list ? list->listItems() : nullptr);
    std::erase_if(names, [](const std::string& name) { return name.starts_with(kHeading); });
    return names;
}

/// The choices with properties that are offered. A name may have a "=" of its own: then it is the
/// whole of what the user wrote.
std::vector<ColumnChoice> offeredColumns(const host::Session& session,
                                         std::vector<ColumnChoice> columns) {
    const std::vector<std::string> offered = offeredProperties(session);
    for (ColumnChoice& column : columns) {
        const std::string whole = column.property + "=" + column.caption;
        if (std::ranges::find(offered, whole) != offered.end()) {
            column = {.property = whole, .caption = whole};
        } else if (std::ranges::find(offered, column.property) == offered.end()) {
            refuse("--column " + column.property +
                   ": no such property; available: " + quoted(offered));
        }
    }
    return columns;
}

/// The columns whose headers sort: those with a caption.
std::vector<BomColumn> sortableColumns(const host::TableView& table) {
    std::vector<BomColumn> columns = columnsOf(table);
    std::erase_if(columns, [&](const BomColumn& column) {
        return std::ranges::find(table.rows.front().cells, column.column, &TableCell::column)
            ->text.empty();
    });
    return columns;
}

int levelOf(const Ptr<TableCommandInput>& table, int row) {
    const std::string position = host::readCell(table, row, kPositionColumn).text;
    return 1 + static_cast<int>(std::ranges::count(position, '.'));
}

/// What the add-in does with a row that comes into view: all cells but the position show.
void showRow(const Ptr<TableCommandInput>& table, int row) {
    const int last = static_cast<int>(table->numberOfColumns());
    for (int column = 0; column <= last; ++column) {
        if (const Ptr<CommandInput> cell = table->getInputAtPosition(row, column);
            cell && column != kPositionColumn) {
            cell->isVisible(true);
        }
    }
}

/// What the add-in does with the assembly whose toggle was clicked.
void expandRow(const Ptr<TableCommandInput>& table, int row) {
    const Ptr<BoolValueCommandInput> toggle = table->getInputAtPosition(row, kPictureColumn);
    if (toggle->resourceFolder().find(kAssemblyPicture) == std::string::npos) {
        return;
    }
    toggle->value(true);
    toggle->resourceFolder(kExpandedPicture);
    const Ptr<StringValueCommandInput> tree = table->getInputAtPosition(row, kTreeColumn);
    if (tree->value().empty()) {
        tree->value(kExpandedTree);
    }
}

}  // namespace

void saveColumns(host::Session& session, const std::vector<ColumnChoice>& columns) {
    session.activateTab(kConfigurationTab);
    std::vector<ColumnChoice> all = offeredColumns(session, columns);
    const std::size_t since = session.uncaughtExceptions().size();
    all.resize(kFreeColumns, {.property = kNoProperty, .caption = ""});
    for (int i = 0; i < kFreeColumns; ++i) {
        const ColumnChoice& column = all[static_cast<std::size_t>(i)];
        session.choose(kPropertyList + std::to_string(i), column.property);
        session.paste(kCaptionField + std::to_string(kFirstCaptionField + i), column.caption);
    }
    session.click(kSaveConfiguration);
    refuseUnexpected(session.uncaughtExceptions(), since, "cannot save the columns");
}

void sortBy(host::Session& session, const BomTab& tab, const SortOrder& order) {
    const Ptr<TableCommandInput> table = session.table(tab.table);
    const BomColumn column =
        findColumn(sortableColumns(host::readTable(table)), order.column, "--sort " + order.column);
    const std::size_t since = session.uncaughtExceptions().size();
    session.choose(kSortOrder, order.descending ? "Descending" : "Ascending");
    host::click(table->getInputAtPosition(0, column.column));
    refuseUnexpected(session.uncaughtExceptions(), since, "cannot sort by \"" + column.key + "\"");
}

void expandTree(host::Session& session, const BomTab& tab, int levels) {
    const Ptr<TableCommandInput> table = session.table(tab.table);
    const int count = table->rowCount();
    for (int row = 1; row < count; ++row) {
        const int level = levelOf(table, row);
        if (level > 1 && level <= levels) {
            showRow(table, row);
        }
        if (level < levels) {
            expandRow(table, row);
        }
    }
}

void acceptChanges(host::Session& session, const BomTab& tab) {
    const std::size_t since = session.uncaughtExceptions().size();
    session.ok();
    refuseUnexpected(session.uncaughtExceptions(), since,
                     "cannot save the " + std::string(tab.name) + " tab");
}

}  // namespace workbench
