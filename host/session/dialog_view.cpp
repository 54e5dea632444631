#include "host/session/dialog_view.h"

#include "host/session/input_actions.h"
#include "host/session/user_action.h"
#include "host/session/user_actions.h"
#include "host/ui/inputs/table_command_input_object.h"

#include <Fusion/FusionAll.h>

#include <algorithm>
#include <cstddef>

namespace host {
namespace {

using core::Ptr;
using ui::InputState;

InputView readInput(const Ptr<core::CommandInput>& input);

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
std::vector<InputView> readInputs(const Ptr<core::CommandInputs>& inputs) {
    std::vector<InputView> views;
    for (std::size_t i = 0; i < inputs->count(); ++i) {
        const Ptr<core::CommandInput> input = inputs->item(i);
        if (InputState::of(input)->inLine == nullptr) {
            views.push_back(readInput(input));
        }
    }
    return views;
}

RowView readRow(const ui::TableLine& line, int row) {
    RowView view{.row = row, .shown = false, .selected = false, .cells = {}};
    view.cells.reserve(line.cells.size());
    for (InputState* cell : line.cells) {
        if (cell != nullptr) {
            view.cells.push_back(readInput(Ptr<core::CommandInput>(cell->api())));
            view.cells.back().column = cell->inColumn;
        }
    }
    return view;
}

TableContents readContents(const Ptr<core::TableCommandInput>& table) {
    const auto& state = static_cast<const ui::TableCommandInputObject&>(*InputState::of(table));
    TableContents contents{.columns = table->numberOfColumns(),
                           .ratio = table->columnRatio(),
                           .shownColumns = shownColumns(table),
                           .rows = {},
                           .toolbar = {}};
    contents.rows.reserve(state.lines().count());
    for (std::size_t row = 0; row < state.lines().count(); ++row) {
        contents.rows.push_back(readRow(state.lines().at(row), static_cast<int>(row)));
    }
    for (const int row : shownRows(table)) {
        contents.rows[static_cast<std::size_t>(row)].shown = true;
    }
    const int selected = table->selectedRow();
    if (selected >= 0) {
        contents.rows[static_cast<std::size_t>(selected)].selected = true;
    }
    for (const Ptr<core::CommandInput>& each : toolbarOf(table)) {
        contents.toolbar.push_back(readInput(each));
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
    view.readOnly = box->isReadOnly();
}

void read(InputView& view, const Ptr<core::ImageCommandInput>& image) {
    view.kind = "Image";
    view.picture = image->imageFile();
}

void read(InputView& view, const Ptr<core::DropDownCommandInput>& list) {
    view.kind = "DropDown";
    readItems(view, list->listItems());
}

void read(InputView& view, const Ptr<core::ButtonRowCommandInput>& row) {
    view.kind = "ButtonRow";
    readItems(view, row->listItems());
}

void read(InputView& view, const Ptr<core::RadioButtonGroupCommandInput>& group) {
    view.kind = "RadioButtonGroup";
    readItems(view, group->listItems());
}

void read(InputView& view, const Ptr<core::SelectionCommandInput>& selection) {
    view.kind = "Selection";
    view.active = selection->hasFocus();
    for (std::size_t i = 0; i < selection->selectionCount(); ++i) {
        addWord(view.value, nameOf(selection->selection(i)->entity()));
    }
}

void read(InputView& view, const Ptr<core::TabCommandInput>& tab) {
    view.kind = "Tab";
    view.active = tab->isActive();
    view.picture = tab->resourceFolder();
    view.inputs = readInputs(tab->children());
}

void read(InputView& view, const Ptr<core::GroupCommandInput>& group) {
    view.kind = "Group";
    view.active = group->isExpanded();
    view.inputs = readInputs(group->children());
}

void read(InputView& view, const Ptr<core::TableCommandInput>& table) {
    view.kind = "Table";
    view.table = readContents(table);
}

/// Reads it as the first of these interfaces that it has.
template <class... Interfaces>
void readAs(InputView& view, const Ptr<core::CommandInput>& input) {
    const auto tryOne = [&](const auto& typed) {
        if (typed) read(view, typed);
        return static_cast<bool>(typed);
    };
    static_cast<void>((tryOne(Ptr<Interfaces>(input)) || ...));
}

InputView readInput(const Ptr<core::CommandInput>& input) {
    // A selection's `isEnabled` is its focus, so the state is asked.
    const InputState& state = *InputState::of(input);
    InputView view;
    view.id = state.id();
    view.caption = state.name();
    view.tooltip = state.extras().tooltip;
    view.visible = state.visible;
    view.enabled = state.enabled;
    readAs<core::BoolValueCommandInput, core::StringValueCommandInput, core::TextBoxCommandInput,
           core::DropDownCommandInput, core::ImageCommandInput, core::RadioButtonGroupCommandInput,
           core::ButtonRowCommandInput, core::SelectionCommandInput, core::TabCommandInput,
           core::GroupCommandInput, core::TableCommandInput>(view, input);
    return view;
}

}  // namespace

DialogView readDialog() {
    const ui::CommandObject& dialog = shownDialog();
    const ui::DialogSize size = dialogSize();
    return {.command = dialog.definition()->state().id,
            .caption = dialog.definition()->state().name,
            .width = size.width,
            .height = size.height,
            .okText = dialog.state().okText,
            .cancelText = dialog.state().cancelText,
            .okVisible = dialog.state().okVisible,
            .whyOkRefused = runningApplication().ui().runner().whyOkRefused(),
            .inputs = readInputs(dialog.commandInputs())};
}

}  // namespace host
