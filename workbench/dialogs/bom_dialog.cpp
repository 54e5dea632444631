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

void checkProperties(const host::Session& session, const std::vector<ColumnChoice>& columns) {
    const std::vector<std::string> offered = offeredProperties(session);
    for (const ColumnChoice& column : columns) {
        if (std::ranges::find(offered, column.property) == offered.end()) {
            refuse("--column " + column.property +
                   ": no such property; available: " + quoted(offered));
        }
    }
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

}  // namespace

void saveColumns(host::Session& session, const std::vector<ColumnChoice>& columns) {
    session.activateTab(kConfigurationTab);
    checkProperties(session, columns);
    const std::size_t since = session.uncaughtExceptions().size();
    std::vector<ColumnChoice> all = columns;
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
    constexpr int kToggleColumn = 0;
    constexpr int kPositionColumn = 1;
    const Ptr<TableCommandInput> table = session.table(tab.table);
    const std::size_t since = session.uncaughtExceptions().size();
    const int count = table->rowCount();
    for (int row = 1; row < count; ++row) {
        const TableCell toggle = host::readCell(table, row, kToggleColumn);
        const std::string position = host::readCell(table, row, kPositionColumn).text;
        const auto level = 1 + std::ranges::count(position, '.');
        const Ptr<CommandInput> button = table->getInputAtPosition(row, kToggleColumn);
        const bool isAssembly = toggle.picture.find("Asm") != std::string::npos;
        if (level < levels && isAssembly && button->isVisible()) {
            host::click(button);
        }
    }
    refuseUnexpected(session.uncaughtExceptions(), since, "cannot expand the tree");
}

void acceptChanges(host::Session& session, const BomTab& tab) {
    const std::size_t since = session.uncaughtExceptions().size();
    session.ok();
    refuseUnexpected(session.uncaughtExceptions(), since,
                     "cannot save the " + std::string(tab.name) + " tab");
}

}  // namespace workbench
