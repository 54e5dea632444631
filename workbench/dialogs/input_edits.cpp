#include "workbench/dialogs/input_edits.h"

#include "workbench/cli/exit_code.h"
#include "workbench/output/display_text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace workbench {
namespace {

using namespace adsk::core;

std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size() && number >= 0;
    return whole ? std::optional(number) : std::nullopt;
}

[[noreturn]] void refuseValue(const InputEdit& edit, const std::string& expected) {
    refuse("--set " + edit.input + "=" + edit.value + ": expected " + expected);
}

/// The row and the column between brackets.
std::optional<InputEdit::Cell> parseCell(std::string_view text) {
    const std::size_t comma = text.find(',');
    if (comma == std::string_view::npos) {
        return std::nullopt;
    }
    const std::optional<int> row = wholeNumber(text.substr(0, comma));
    const std::optional<int> column = wholeNumber(text.substr(comma + 1));
    return row && column ? std::optional(InputEdit::Cell{.row = *row, .column = *column})
                         : std::nullopt;
}

/// The rows and columns of a table, hidden ones counted, as the numbers that name them.
std::string sizeOf(const Ptr<TableCommandInput>& table) {
    if (table->rowCount() == 0) {
        return "it has no rows";
    }
    return "its rows are 0 to " + std::to_string(table->rowCount() - 1) + ", its columns 0 to " +
           std::to_string(table->numberOfColumns() - 1) + ", and places may be empty";
}

Ptr<CommandInput> findEdited(const host::Session& session, const InputEdit& edit) {
    if (!edit.cell) {
        return session.input(edit.input);
    }
    const Ptr<TableCommandInput> table = session.table(edit.input);
    Ptr<CommandInput> cell = table->getInputAtPosition(edit.cell->row, edit.cell->column);
    if (!cell) {
        throw host::SessionError("the table \"" + edit.input + "\" has no cell in row " +
                                 std::to_string(edit.cell->row) + ", column " +
                                 std::to_string(edit.cell->column) + ": " + sizeOf(table));
    }
    return cell;
}

void setFlag(const Ptr<CommandInput>& input, bool before, const InputEdit& edit,
             const std::pair<const char*, const char*>& onAndOff) {
    if (edit.value != onAndOff.first && edit.value != onAndOff.second) {
        refuseValue(edit, std::string("\"") + onAndOff.first + "\" or \"" + onAndOff.second + "\"");
    }
    if (before != (edit.value == onAndOff.first)) {
        host::click(input);
    }
}

void press(const Ptr<BoolValueCommandInput>& button, const InputEdit& edit) {
    if (button->isCheckBox()) {
        setFlag(button, button->value(), edit, {"true", "false"});
        return;
    }
    if (edit.value != "click") {
        refuseValue(edit, "\"click\" for a button");
    }
    host::click(button);
}

void activate(const Ptr<TabCommandInput>& tab, const InputEdit& edit) {
    if (edit.value != "active") {
        refuseValue(edit, "\"active\" for a tab, which shows it");
    }
    host::activateTab(tab);
}

void selectRow(const Ptr<TableCommandInput>& table, const InputEdit& edit) {
    const std::optional<int> row = wholeNumber(edit.value);
    if (!row) {
        refuseValue(edit,
                    "the number of a row, or " + edit.input + "[ROW,COLUMN]=VALUE for a cell");
    }
    host::selectRow(table, *row);
}

/// Whether an item of that name is selected already: choosing it again could unselect it.
bool isSelected(const Ptr<CommandInput>& input, const std::string& item) {
    const Ptr<ButtonRowCommandInput> row = input;
    const Ptr<ListItems> items = row ? row->listItems() : nullptr;
    for (std::size_t i = 0; items && i < items->count(); ++i) {
        if (items->item(i)->name() == item && items->item(i)->isSelected()) {
            return true;
        }
    }
    return false;
}

bool isList(const Ptr<CommandInput>& input) {
    return Ptr<DropDownCommandInput>(input) || Ptr<ButtonRowCommandInput>(input) ||
           Ptr<RadioButtonGroupCommandInput>(input);
}

/// Does it for the kinds that hold no text; false for the others.
bool editWithoutText(host::Session& session, const Ptr<CommandInput>& input,
                     const InputEdit& edit) {
    if (const Ptr<BoolValueCommandInput> button = input) {
        press(button, edit);
    } else if (const Ptr<SelectionCommandInput> selection = input) {
        host::click(selection);  // picks go to the selection that has the focus
        session.pick(edit.value);
    } else if (const Ptr<GroupCommandInput> group = input) {
        setFlag(group, group->isExpanded(), edit, {"expanded", "collapsed"});
    } else if (const Ptr<TableCommandInput> table = input) {
        selectRow(table, edit);
    } else if (const Ptr<TabCommandInput> tab = input) {
        activate(tab, edit);
    } else {
        return false;
    }
    return true;
}

}  // namespace

InputEdit parseInputEdit(const std::string& text) {
    const std::size_t end = text.find('=');
    InputEdit edit{.input = text.substr(0, end), .cell = {}, .value = {}};
    if (end == std::string::npos || end == 0) {
        refuse("--set " + text + ": expected INPUT=VALUE");
    }
    edit.value = text.substr(end + 1);
    const std::size_t bracket = edit.input.find('[');
    if (bracket != std::string::npos) {
        if (edit.input.ends_with(']')) {
            edit.cell = parseCell(
                std::string_view(edit.input).substr(bracket + 1, edit.input.size() - bracket - 2));
        }
        if (!edit.cell || bracket == 0) {
            refuse("--set " + text + ": expected TABLE[ROW,COLUMN]=VALUE");
        }
        edit.input.resize(bracket);
    }
    return edit;
}

void editInput(host::Session& session, const InputEdit& edit) {
    const Ptr<CommandInput> input = findEdited(session, edit);
    if (editWithoutText(session, input, edit)) {
        return;
    }
    if (!isList(input)) {
        host::pasteText(input, edit.value);
    } else if (!isSelected(input, edit.value)) {
        host::chooseItem(input, edit.value);
    }
}

void showTab(host::Session& session, const std::string& idOrCaption) {
    const Ptr<CommandInputs> inputs = session.dialog()->commandInputs();
    std::vector<std::string> ids;
    for (std::size_t i = 0; i < inputs->count(); ++i) {
        const Ptr<TabCommandInput> tab = inputs->item(i);
        if (tab && (tab->id() == idOrCaption || tab->name() == idOrCaption)) {
            host::activateTab(tab);
            return;
        }
        if (tab) {
            ids.push_back(tab->id());
        }
    }
    refuse("--tab " + idOrCaption + ": no such tab; available: " + quoted(ids));
}

}  // namespace workbench
