#include "workbench/dialogs/bom_dialog.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/bom_columns.h"
#include "workbench/dialogs/uncaught.h"

#include "host/session/table_view.h"
#include "host/session/user_actions.h"

#include <algorithm>
#include <string>
#include <utility>

namespace workbench {
namespace {

using namespace adsk::core;
using host::TableCell;

[[noreturn]] void refuse(const std::string& line) { throw Failure(ExitCode::BadUsage, line); }

std::vector<std::string> itemNames(const Ptr<DropDownCommandInput>& list) {
    std::vector<std::string> names;
    const Ptr<ListItems> items = list ? list->listItems() : nullptr;
    for (std::size_t i = 0; items && i < items->count(); ++i) {
        names.push_back(items->item(i)->name());
    }
    return names;
}

std::vector<std::string> offeredProperties(const host::Session& session) {
    std::vector<std::string> names = itemNames(session.input(std::string(kPropertyList) + "0"));
    std::erase_if(names, [](const std::string& name) { return name.starts_with(kHeading); });
    return names;
}

void checkProperties(const host::Session& session, const std::vector<ColumnWish>& columns) {
    const std::vector<std::string> offered = offeredProperties(session);
    for (const ColumnWish& column : columns) {
        if (std::ranges::find(offered, column.property) == offered.end()) {
            refuse("--column " + column.property + ": there is no such property, only " +
                   quoted(offered));
        }
    }
}

/// The headers that sort: those with a caption.
std::vector<ShownColumn> sortableColumns(const host::TableView& table) {
    std::vector<ShownColumn> columns;
    for (const ShownColumn& column : columnsOf(table)) {
        const auto header =
            std::ranges::find(table.rows.front().cells, column.column, &TableCell::column);
        if (!header->text.empty()) {
            columns.push_back(column);
        }
    }
    return columns;
}

bool isEditable(const TableCell& cell) {
    return cell.editable &&
           (cell.kind == TableCell::Kind::Text || cell.kind == TableCell::Kind::Choice);
}

std::string nameOf(const CellEdit& wish) {
    return "--set " + std::to_string(wish.row) + ":" + wish.column;
}

/// The cell that a wish means. Refuses what is not there, or cannot be edited.
TableCell findCell(const host::TableView& table, const CellEdit& wish) {
    const std::size_t rows = table.rows.size() - 1;  // without the captions
    const auto row = static_cast<std::size_t>(wish.row);
    if (row > rows) {
        refuse(nameOf(wish) + ": there is no such row, " +
               (rows == 0 ? "the table has none" : "only 1 to " + std::to_string(rows)));
    }
    const std::vector<TableCell>& cells = table.rows[row].cells;
    std::vector<ShownColumn> columns = columnsOf(table);
    std::erase_if(columns, [&](const ShownColumn& column) {
        return !isEditable(*std::ranges::find(cells, column.column, &TableCell::column));
    });
    const int column = findColumn(columns, wish.column, nameOf(wish)).column;
    return *std::ranges::find(cells, column, &TableCell::column);
}

/// An edit that was looked up.
struct Edit {
    Ptr<CommandInput> input;
    const CellEdit* wish;
};

Edit lookUp(const Ptr<TableCommandInput>& table, const host::TableView& view,
            const CellEdit& wish) {
    const TableCell cell = findCell(view, wish);
    const int row = view.rows[static_cast<std::size_t>(wish.row)].row;
    const Ptr<CommandInput> input = table->getInputAtPosition(row, cell.column);
    if (cell.kind == TableCell::Kind::Choice) {
        const std::vector<std::string> names = itemNames(input);
        if (std::ranges::find(names, wish.value) == names.end()) {
            refuse(nameOf(wish) + "=" + wish.value + ": there is no such choice, only " +
                   quoted(names));
        }
    }
    return {input, &wish};
}

void make(const Edit& edit) {
    try {
        if (const Ptr<DropDownCommandInput> list = edit.input) {
            host::chooseItem(edit.input, edit.wish->value);
        } else {
            host::pasteText(edit.input, edit.wish->value);
        }
    } catch (const host::MisuseError& obstacle) {
        refuse(nameOf(*edit.wish) + ": " + obstacle.what());
    }
}

}  // namespace

void saveColumns(host::Session& session, const std::vector<ColumnWish>& columns) {
    session.activateTab(kConfigurationTab);
    checkProperties(session, columns);
    const std::size_t since = session.uncaughtExceptions().size();
    for (int i = 0; i < kFreeColumns; ++i) {
        const bool used = static_cast<std::size_t>(i) < columns.size();
        const ColumnWish wish =
            used ? columns[static_cast<std::size_t>(i)] : ColumnWish{kNoProperty, ""};
        session.choose(kPropertyList + std::to_string(i), wish.property);
        session.paste(kCaptionField + std::to_string(kFirstCaptionField + i), wish.caption);
    }
    session.click(kSaveConfiguration);
    refuseThrown(session, since, "cannot save the columns");
}

void sortBy(host::Session& session, const BomTab& tab, const SortWish& wish) {
    const Ptr<TableCommandInput> table = session.table(tab.table);
    const ShownColumn column =
        findColumn(sortableColumns(host::readTable(table)), wish.column, "--sort " + wish.column);
    const std::size_t since = session.uncaughtExceptions().size();
    session.choose(kSortOrder, wish.descending ? "Descending" : "Ascending");
    host::click(table->getInputAtPosition(0, column.column));
    refuseThrown(session, since, "cannot sort by \"" + column.key + "\"");
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
    refuseThrown(session, since, "cannot expand the tree");
}

void editCells(host::Session& session, const BomTab& tab, const std::vector<CellEdit>& cells) {
    const Ptr<TableCommandInput> table = session.table(tab.table);
    const host::TableView view = host::readTable(table);
    std::vector<Edit> edits;
    for (const CellEdit& cell : cells) {
        edits.push_back(lookUp(table, view, cell));
    }
    for (const Edit& edit : edits) {
        const std::size_t since = session.uncaughtExceptions().size();
        make(edit);
        refuseThrown(session, since, nameOf(*edit.wish));
    }
}

void acceptChanges(host::Session& session, const BomTab& tab) {
    const std::size_t since = session.uncaughtExceptions().size();
    session.ok();
    refuseThrown(session, since, "cannot save the tab " + std::string(tab.name));
}

}  // namespace workbench
