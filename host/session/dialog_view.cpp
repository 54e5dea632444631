#include "host/session/dialog_view.h"

#include "host/session/input_actions.h"
#include "host/session/screen_view.h"
#include "host/session/user_action.h"
#include "host/session/user_actions.h"
#include "host/ui/inputs/command_inputs_object.h"
#include "host/ui/inputs/list_state.h"
#include "host/ui/inputs/number_state.h"
#include "host/ui/inputs/selection_command_input_object.h"
#include "host/ui/inputs/slider_state.h"
#include "host/ui/inputs/table_command_input_object.h"

#include <Fusion/FusionAll.h>

#include <algorithm>
#include <cstddef>

namespace host {
namespace {

using core::Ptr;
using ui::InputState;

InputView readInput(const Ptr<core::CommandInput>& input, TableRows rows);

std::string flagText(bool value) { return value ? "true" : "false"; }

void addWord(std::string& words, const std::string& word) {
    words += (words.empty() ? "" : ", ") + word;
}

std::string nameOf(const Ptr<core::Base>& entity) {
    if (const Ptr<fusion::Occurrence> occurrence = entity) {
        return occurrence->fullPathName();
    }
    const Ptr<fusion::Component> component = entity;
    return component ? component->name() : entity ? entity->objectType() : "";
}

void readItems(InputView& view, const Ptr<core::ListItems>& items) {
    for (std::size_t i = 0; i < items->count(); ++i) {
        const Ptr<core::ListItem> item = items->item(i);
        view.items.push_back(
            {.name = item->name(), .icon = item->icon(), .selected = item->isSelected()});
        if (item->isSelected()) {
            addWord(view.value, item->name());
        }
    }
}

/// The inputs of a collection but for those that are in a table, which shows them.
std::vector<InputView> readInputs(const Ptr<core::CommandInputs>& inputs, TableRows rows) {
    std::vector<InputView> views;
    for (InputState* each : static_cast<const ui::CommandInputsObject&>(*inputs).outsideTables()) {
        const bool hasLeftItsTable = each->inColumn >= 0;
        if (rows == TableRows::Read || !hasLeftItsTable) {
            views.push_back(readInput(Ptr<core::CommandInput>(each->api()), rows));
        }
    }
    return views;
}

RowView readRow(const ui::TableLine& line, int row) {
    RowView view{.row = row, .shown = false, .selected = false, .cells = {}};
    view.cells.reserve(line.cells.size());
    for (InputState* cell : line.cells) {
        if (cell != nullptr) {
            view.cells.push_back(readInput(Ptr<core::CommandInput>(cell->api()), TableRows::Skip));
            view.cells.back().column = cell->inColumn;
            view.cells.back().columnSpan = cell->extras().columnSpan;
        }
    }
    return view;
}

const ui::TableCommandInputObject& stateOf(const Ptr<core::TableCommandInput>& table) {
    return static_cast<const ui::TableCommandInputObject&>(*InputState::of(table));
}

std::vector<RowView> readAllRows(const ui::TableCommandInputObject& state,
                                 const TableContents& contents) {
    std::vector<RowView> rows;
    rows.reserve(state.lines().count());
    for (std::size_t row = 0; row < state.lines().count(); ++row) {
        rows.push_back(readRow(state.lines().at(row), static_cast<int>(row)));
    }
    for (const int row : contents.shownRows) {
        rows[static_cast<std::size_t>(row)].shown = true;
    }
    if (contents.selectedRow >= 0) {
        rows[static_cast<std::size_t>(contents.selectedRow)].selected = true;
    }
    return rows;
}

TableContents readContents(const Ptr<core::TableCommandInput>& table, TableRows rows) {
    const ui::TableCommandInputObject& state = stateOf(table);
    TableContents contents{.columns = table->numberOfColumns(),
                           .rowCount = static_cast<int>(state.lines().count()),
                           .minimumRows = table->minimumVisibleRows(),
                           .maximumRows = table->maximumVisibleRows(),
                           .selectedRow = table->selectedRow(),
                           .ratio = table->columnRatio(),
                           .shownColumns = shownColumns(table),
                           .shownRows = shownRows(table),
                           .rows = {},
                           .toolbar = {}};
    if (rows == TableRows::Read) {
        contents.rows = readAllRows(state, contents);
    }
    for (const Ptr<core::CommandInput>& each : toolbarOf(table)) {
        contents.toolbar.push_back(readInput(each, TableRows::Skip));
    }
    return contents;
}

void read(InputView& view, const Ptr<core::BoolValueCommandInput>& button) {
    view.kind = button->isCheckBox() ? "CheckBox" : "Button";
    view.value = flagText(button->value());
    view.text = button->text();
    view.picture = button->resourceFolder();
}

void read(InputView& view, const Ptr<core::StringValueCommandInput>& line) {
    view.kind = "StringValue";
    view.value = line->value();
    view.readOnly = line->isReadOnly();
}

void read(InputView& view, const Ptr<core::TextBoxCommandInput>& box) {
    view.kind = "TextBox";
    view.value = box->text();
    view.formatted = box->formattedText();
    view.lines = box->numRows();
    view.readOnly = box->isReadOnly();
}

void read(InputView& view, const Ptr<core::ImageCommandInput>& image) {
    view.kind = "Image";
    view.picture = image->imageFile();
}

void read(InputView& view, const Ptr<core::DropDownCommandInput>& list) {
    view.kind = "DropDown";
    view.multiple = static_cast<const ui::ListState&>(*InputState::of(list)).isMultiSelect();
    readItems(view, list->listItems());
}

void read(InputView& view, const Ptr<core::ButtonRowCommandInput>& row) {
    view.kind = "ButtonRow";
    view.multiple = static_cast<const ui::ListState&>(*InputState::of(row)).isMultiSelect();
    readItems(view, row->listItems());
}

void read(InputView& view, const Ptr<core::RadioButtonGroupCommandInput>& group) {
    view.kind = "RadioButtonGroup";
    readItems(view, group->listItems());
}

void read(InputView& view, const Ptr<core::SelectionCommandInput>& selection) {
    view.kind = "Selection";
    view.active = selection->hasFocus();
    const ui::SelectionInputState& wanted = ui::selectionOf(InputState::of(selection)).state();
    view.selection = {.prompt = wanted.prompt,
                      .picked = {},
                      .minimum = wanted.minimum,
                      .maximum = wanted.maximum};
    for (std::size_t i = 0; i < selection->selectionCount(); ++i) {
        const Ptr<core::Base> entity = selection->selection(i)->entity();
        addWord(view.value, nameOf(entity));
        view.selection.picked.push_back(pathInBrowserTree(entity));
    }
}

void read(InputView& view, const Ptr<core::TabCommandInput>& tab, TableRows rows) {
    view.kind = "Tab";
    view.active = tab->isActive();
    view.picture = tab->resourceFolder();
    view.inputs = readInputs(tab->children(), rows);
}

void read(InputView& view, const Ptr<core::GroupCommandInput>& group, TableRows rows) {
    view.kind = "Group";
    view.active = group->isExpanded();
    view.inputs = readInputs(group->children(), rows);
}

void read(InputView& view, const Ptr<core::TableCommandInput>& table, TableRows rows) {
    view.kind = "Table";
    view.table = readContents(table, rows);
}

/// A number shows the expression that was typed.
template <class Number>
void readNumber(InputView& view, const Ptr<Number>& number) {
    view.kind = "StringValue";
    view.value = ui::numberOf(InputState::of(number)).field().expression();
}

void read(InputView& view, const Ptr<core::ValueCommandInput>& input) { readNumber(view, input); }
void read(InputView& view, const Ptr<core::DistanceValueCommandInput>& input) {
    readNumber(view, input);
}
void read(InputView& view, const Ptr<core::AngleValueCommandInput>& input) {
    readNumber(view, input);
}
void read(InputView& view, const Ptr<core::IntegerSpinnerCommandInput>& input) {
    readNumber(view, input);
}
void read(InputView& view, const Ptr<core::FloatSpinnerCommandInput>& input) {
    readNumber(view, input);
}

/// A slider shows what its fields do.
void readSlider(InputView& view, const Ptr<core::CommandInput>& slider) {
    view.kind = "StringValue";
    view.value = ui::sliderOf(InputState::of(slider)).shown();
}

void read(InputView& view, const Ptr<core::IntegerSliderCommandInput>& input) {
    readSlider(view, input);
}
void read(InputView& view, const Ptr<core::FloatSliderCommandInput>& input) {
    readSlider(view, input);
}

/// Reads it as the first of these interfaces that it has.
template <class... Interfaces>
void readAs(InputView& view, const Ptr<core::CommandInput>& input, TableRows rows) {
    const auto tryOne = [&](const auto& typed) {
        if (!typed) return false;
        if constexpr (requires { read(view, typed, rows); }) {
            read(view, typed, rows);
        } else {
            read(view, typed);
        }
        return true;
    };
    static_cast<void>((tryOne(Ptr<Interfaces>(input)) || ...));
}

InputView readInput(const Ptr<core::CommandInput>& input, TableRows rows) {
    // A selection's `isEnabled` is its focus, so the state is asked.
    const InputState& state = *InputState::of(input);
    InputView view;
    view.key = state.serial;
    view.id = state.id();
    view.fullWidth = state.fullWidth;
    view.caption = state.name();
    view.tooltip = state.extras().tooltip;
    view.visible = state.visible;
    view.enabled = state.enabled;
    readAs<core::BoolValueCommandInput, core::StringValueCommandInput, core::TextBoxCommandInput,
           core::DropDownCommandInput, core::ImageCommandInput, core::RadioButtonGroupCommandInput,
           core::ButtonRowCommandInput, core::SelectionCommandInput, core::TabCommandInput,
           core::GroupCommandInput, core::TableCommandInput, core::ValueCommandInput,
           core::DistanceValueCommandInput, core::AngleValueCommandInput,
           core::IntegerSpinnerCommandInput, core::FloatSpinnerCommandInput,
           core::IntegerSliderCommandInput, core::FloatSliderCommandInput>(view, input, rows);
    return view;
}

/// The input in a collection, or in its tabs and groups.
InputState* withKey(const ui::CommandInputsObject& inputs, std::uint32_t key) {
    InputState* found = inputs.withSerial(key);
    for (const InputState* each : inputs.containers()) {
        found = found == nullptr ? withKey(*each->inside(), key) : found;
    }
    return found;
}

}  // namespace

DialogView readDialog(TableRows rows) {
    const ui::CommandObject& dialog = shownDialog();
    const ui::DialogSize size = dialogSize();
    return {.command = dialog.definition()->state().id,
            .caption = dialog.definition()->state().name,
            .width = size.width,
            .height = size.height,
            .okText = dialog.state().okText,
            .cancelText = dialog.state().cancelCaption(),
            .okVisible = dialog.state().okVisible,
            .whyOkRefused = runningApplication().ui().runner().whyOkRefused(),
            .inputs = readInputs(dialog.commandInputs(), rows)};
}

std::vector<RowView> readRows(const Ptr<core::TableCommandInput>& table,
                              const std::vector<int>& rows) {
    if (!table) {
        return {};
    }
    const ui::TableCommandInputObject& state = stateOf(table);
    const std::vector<int> columns = state.shownColumns();
    std::vector<RowView> views;
    views.reserve(rows.size());
    for (const int row : rows) {
        if (row >= 0 && static_cast<std::size_t>(row) < state.lines().count()) {
            const ui::TableLine& line = state.lines().at(static_cast<std::size_t>(row));
            views.push_back(readRow(line, row));
            views.back().shown = state.isShown(line, columns);
            views.back().selected = state.lines().selected() == &line;
        }
    }
    return views;
}

Ptr<core::CommandInput> inputOfKey(std::uint32_t key) {
    const Ptr<ui::CommandObject> dialog = openDialog();
    InputState* const found = dialog ? withKey(dialog->inputs(), key) : nullptr;
    return found == nullptr ? nullptr : Ptr<core::CommandInput>(found->api());
}

std::uint32_t keyOf(const Ptr<core::CommandInput>& input) {
    const InputState* const state = InputState::of(input);
    return state == nullptr ? 0 : state->serial;
}

}  // namespace host
