#include "tarnix/bom/behaviour/bom_export.h"

#include "tarnix/bom/behaviour/open_dialog.h"
#include "tarnix/bom/tabs/table_layout.h"
#include "tarnix/platform/files.h"
#include "tarnix/platform/module_path.h"
#include "tarnix/platform/shell.h"
#include "tarnix/platform/text_file.h"

#include <algorithm>
#include <cstddef>

namespace tarnix {

using namespace adsk::core;

namespace {

/// The text file's path: the module's, with its file name replaced. Of a file name longer than 30
/// characters the rest stays after the new one.
std::string csvPath() {
    constexpr std::size_t kReplaced = 31;
    std::string path = platform::modulePath();
    const std::string fileName = path.substr(path.find_last_of('\\'));
    path.replace(path.find(fileName), kReplaced, "\\TarnixBOM.csv");
    return path;
}

/// The workbook's path. The first "csv" of the whole path makes way, also in a folder's name.
std::string workbookPath(std::string path) {
    constexpr std::size_t kExtension = 3;
    path.replace(path.find("csv"), kExtension, "xlsm");
    return path;
}

std::string selectedName(const Ptr<DropDownCommandInput>& dropDown) {
    const Ptr<ListItem> item = firstSelected(dropDown->listItems());
    return item ? item->name() : "n/a";
}

/// Adds the field of a cell with its separator. An input is of one kind only, so the most frequent
/// kind is asked first; a cell of another kind, or none, adds nothing at all.
void appendField(std::string& line, const Ptr<CommandInput>& cell) {
    if (const Ptr<StringValueCommandInput> text = cell) {
        line += text->value();
    } else if (const Ptr<DropDownCommandInput> dropDown = cell) {
        line += selectedName(dropDown);
    } else if (const Ptr<BoolValueCommandInput> button = cell) {
        line += button->name();
    } else if (const Ptr<TextBoxCommandInput> textBox = cell) {
        std::string field = textBox->text();
        std::replace(field.begin(), field.end(), '_', ' ');
        line += field;
    } else {
        return;
    }
    line += ';';
}

/// Puts a row's fields into `line`, whose storage serves all rows. The toggle and the graph column
/// are left out; the position is in the column between them.
void readRow(std::string& line, const Ptr<TableCommandInput>& table, int row, int lastColumn) {
    line.clear();
    for (int column = kPositionColumn; column <= lastColumn; ++column) {
        if (column != kGraphColumn) {
            appendField(line, table->getInputAtPosition(row, column));
        }
    }
}

}  // namespace

bool exportBom(Ptr<InputChangedEventArgs> eventArgs) {
    const Ptr<CommandInputs> inputs = eventArgs->inputs();
    if (!inputs) {
        return false;
    }
    Ptr<TableCommandInput> table = inputs->itemById(kModelRows.tableId);
    if (!table) {
        table = inputs->itemById(kStructureRows.tableId);
    }
    if (!table || table->rowCount() < 2) {
        return false;
    }
    const std::string path = csvPath();
    // A file that stays gets the new lines after the old ones.
    static_cast<void>(platform::deleteFile(path));
    writeBomCsv(path, table);
    // A shell that has no program for it has no consequence.
    static_cast<void>(platform::openWithShell(workbookPath(path)));
    return true;
}

void writeBomCsv(std::string path, Ptr<TableCommandInput> table) {
    platform::TextFile file;
    file.openToAppend(path);
    const int rowCount = table->rowCount();
    const int lastColumn = table->numberOfColumns();
    std::string line;
    for (int row = 0; row < rowCount; ++row) {
        const Ptr<CommandInput> first = table->getInputAtPosition(row, kIconColumn);
        if (first && first->isVisible()) {
            readRow(line, table, row, lastColumn);
            file.write(line);
            // Line by line, at the cost of speed: a host that dies leaves whole lines.
            file.endLine();
        }
    }
    file.endLine();
    const Ptr<StringValueCommandInput> totalMass =
        table->parentCommandInput()->commandInputs()->itemById(idAllMass);
    file.write(";Total mass of structure BOM [kg]: ;" + totalMass->value());
    file.endLine();
}

}  // namespace tarnix
