#include "host/session/input_actions.h"

#include "host/base/documented_points.h"
#include "host/session/user_action.h"
#include "host/session/user_actions.h"
#include "host/ui/inputs/bool_value_command_input_object.h"
#include "host/ui/inputs/group_command_input_object.h"
#include "host/ui/inputs/list_state.h"
#include "host/ui/inputs/number_state.h"
#include "host/ui/inputs/reachability.h"
#include "host/ui/inputs/selection_command_input_object.h"
#include "host/ui/inputs/slider_state.h"
#include "host/ui/inputs/string_value_command_input_object.h"
#include "host/ui/inputs/table_command_input_object.h"
#include "host/ui/inputs/text_box_command_input_object.h"

#include <algorithm>

namespace host {
namespace {

using core::Ptr;
using ui::InputKind;
using ui::InputState;

/// The state of an input that the user can use now; throws a `MisuseError` that begins with
/// `action` where there is none.
InputState& usable(const Ptr<core::CommandInput>& input, const std::string& action) {
    InputState* state = InputState::of(input);
    if (state == nullptr) {
        throw MisuseError("cannot " + action + ": no such input");
    }
    const std::string why = whyUnusable(input);
    if (!why.empty()) {
        throw MisuseError("cannot " + action + " " + ui::describe(*state) + ": " + why);
    }
    return *state;
}

/// An action on a cell selects its row: before it is reported, or after that where the host is so
/// documented.
class RowSelection {
public:
    explicit RowSelection(InputState& input)
        : input_(input), late_(documentedPoints().lateSelectedRow ? input.api() : nullptr) {
        if (!late_) select();
    }

    /// To be called when the action was reported.
    void finish() const {
        if (late_ && late_->isValid()) select();
    }

private:
    void select() const {
        if (input_.inLine != nullptr && !input_.inLine->table->isToolbar(*input_.inLine)) {
            input_.inLine->table->select(*input_.inLine);
        }
    }

    InputState& input_;
    Ptr<core::CommandInput> late_;  ///< null where its row is selected at once
};

/// The string after each typed character: all its starts that end with a whole UTF-8 character; one
/// empty string for an empty one.
std::vector<std::string> prefixes(const std::string& text) {
    std::vector<std::string> all;
    for (std::size_t end = 1; end <= text.size(); ++end) {
        const bool inside =
            end < text.size() && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80;
        if (!inside) {
            all.push_back(text.substr(0, end));
        }
    }
    if (all.empty()) {
        all.emplace_back();
    }
    return all;
}

bool isNumeric(const InputState& input) {
    return input.kind == InputKind::Number || input.kind == InputKind::Slider;
}

bool isReadOnly(const InputState& input) {
    if (isNumeric(input)) return false;
    if (input.kind == InputKind::String) {
        return static_cast<const ui::StringValueCommandInputObject&>(input).refusesUser();
    }
    return static_cast<const ui::TextBoxCommandInputObject&>(input).state().readOnly;
}

/// A text that the user can change.
InputState& writable(const Ptr<core::CommandInput>& input) {
    InputState& state = usable(input, "type into");
    if (state.kind != InputKind::String && state.kind != InputKind::TextBox && !isNumeric(state)) {
        throw MisuseError("cannot type into " + ui::describe(state) + ": it holds no text");
    }
    if (isReadOnly(state)) {
        throw MisuseError("cannot type into " + ui::describe(state) + ": it is read-only");
    }
    return state;
}

void enter(InputState& input, const std::string& text) {
    if (input.kind == InputKind::String) {
        static_cast<ui::StringValueCommandInputObject&>(input).enter(text);
    } else if (input.kind == InputKind::Number) {
        ui::numberOf(&input).field().enter(text);
    } else if (input.kind == InputKind::Slider) {
        ui::sliderOf(&input).enter(text);
    } else {
        static_cast<ui::TextBoxCommandInputObject&>(input).enter(text);
    }
}

/// The field whose arrows the user clicks: of a slider, that of the first knob. Null for none.
const ui::NumberField* fieldWithArrows(InputState& input) {
    if (input.kind == InputKind::Slider) return &ui::sliderOf(&input).first();
    if (input.kind != InputKind::Number) return nullptr;
    const ui::NumberField& field = ui::numberOf(&input).field();
    return field.limits() ? &field : nullptr;
}

void setByArrows(InputState& input, double value) {
    if (input.kind == InputKind::Slider) {
        ui::sliderOf(&input).drag(ui::SliderKnob::First, value);
    } else {
        ui::numberOf(&input).setValue(value);
    }
}

bool isList(InputKind kind) {
    return kind == InputKind::DropDown || kind == InputKind::ButtonRow ||
           kind == InputKind::RadioGroup;
}

ui::ListState& listAt(const Ptr<core::CommandInput>& input) {
    InputState& state = usable(input, "choose from");
    if (!isList(state.kind)) {
        throw MisuseError("cannot choose from " + ui::describe(state) + ": it has no items");
    }
    return static_cast<ui::ListState&>(state);
}

std::string itemNames(const ui::ListState& list) {
    std::string names;
    for (const ui::ListState::Entry& each : list.entries()) {
        names += (names.empty() ? "\"" : ", \"") + *each.name + "\"";
    }
    return names.empty() ? "it has none" : "it has " + names;
}

/// The rows that can be selected, such as "0 to 3, 5".
std::string rowNumbers(const std::vector<int>& rows) {
    std::string text;
    for (std::size_t i = 0, end = 0; i < rows.size(); i = end) {
        end = i + 1;
        while (end < rows.size() && rows[end] == rows[end - 1] + 1) ++end;
        text += (text.empty() ? "" : ", ") + std::to_string(rows[i]);
        text += end - i > 1 ? " to " + std::to_string(rows[end - 1]) : "";
    }
    return text.empty() ? "no row shows" : "the rows that show are " + text;
}

void choose(UserAction& acting, ui::ListState& list, std::size_t index) {
    const RowSelection row(list);
    const bool unselects = list.isMultiSelect() && list.isSelected(index);
    if (list.select(index, !unselects)) {
        acting.changed(list);
    }
    row.finish();
    acting.finish();
}

void showTab(UserAction& acting, InputState& tab) {
    ui::CommandObject& dialog = shownDialog();
    if (dialog.activeTab() != &tab) {
        dialog.activeTab(&tab);
        acting.tabChanged();
    }
    acting.finish();
}

void toggle(ui::GroupCommandInputObject& group) {
    if (group.state().expanded && !group.canCollapse()) {
        throw MisuseError("cannot click " + ui::describe(group) +
                          ": a group within a group without a check box cannot be collapsed");
    }
    group.toggle();
}

/// What a click does besides selecting a row; true where it has to be reported.
bool clicked(InputState& input) {
    switch (input.kind) {
        case InputKind::Bool:
            static_cast<ui::BoolValueCommandInputObject&>(input).toggle();
            return true;
        case InputKind::Group:
            toggle(static_cast<ui::GroupCommandInputObject&>(input));
            return false;
        case InputKind::Selection:
            shownDialog().focus(&input);
            return false;
        default:
            return false;
    }
}

/// The selection that a pick goes to.
ui::SelectionCommandInputObject& pickTarget(const ui::CommandObject& dialog) {
    InputState* focus = dialog.focus();
    if (focus == nullptr) {
        throw MisuseError("cannot pick: no selection of the dialog has the focus");
    }
    const std::string why = ui::whyUnreachable(*focus);
    if (!why.empty()) {
        throw MisuseError("cannot pick for " + ui::describe(*focus) + ": " + why);
    }
    return static_cast<ui::SelectionCommandInputObject&>(*focus);
}

/// Once a selection is full, the next one that is not gets the focus.
void passFocus(ui::CommandObject& dialog, const ui::SelectionCommandInputObject& full) {
    if (!full.isFull()) return;
    for (InputState* each : dialog.inputs().ofKind(InputKind::Selection)) {
        if (!ui::selectionOf(each).isFull() && ui::whyUnreachable(*each).empty()) {
            dialog.focus(each);
            return;
        }
    }
}

void pickInDialog(UserAction& acting, const Ptr<core::Base>& entity, const ui::Place& place) {
    ui::CommandObject& dialog = shownDialog();
    ui::SelectionCommandInputObject& target = pickTarget(dialog);
    if (target.picks().holds(entity)) {
        target.drop(entity);
    } else {
        if (!target.accepts(entity)) {
            throw MisuseError("cannot pick for " + ui::describe(target) +
                              ": its filters exclude the entity");
        }
        if (target.isFull() && target.maximum() > 1) {
            throw MisuseError("cannot pick for " + ui::describe(target) + ": it takes " +
                              std::to_string(target.maximum()) + " at most");
        }
        if (target.isFull()) {
            target.dropAll();
        }
        target.take(entity, place);
    }
    const Ptr<core::CommandInput> kept(target.api());
    acting.changed(target);
    if (openDialog().get() == &dialog && kept->isValid()) {
        passFocus(dialog, target);
    }
}

}  // namespace

void click(const Ptr<core::CommandInput>& input) {
    UserAction acting;
    InputState* tab = InputState::of(input);
    if (tab != nullptr && tab->kind == InputKind::Tab) {
        activateTab(input);
        return;
    }
    InputState& state = usable(input, "click");
    const RowSelection row(state);
    if (clicked(state)) {
        acting.changed(state);
    }
    row.finish();
    acting.finish();
}

void typeText(const Ptr<core::CommandInput>& input, const std::string& text) {
    for (const std::string& grown : prefixes(text)) {
        pasteText(input, grown);
    }
}

void pasteText(const Ptr<core::CommandInput>& input, const std::string& text) {
    UserAction acting;
    InputState& state = writable(input);
    const RowSelection row(state);
    enter(state, text);
    acting.changed(state);
    row.finish();
    acting.finish();
}

void spin(const Ptr<core::CommandInput>& input, int steps) {
    UserAction acting;
    InputState& state = usable(input, "spin");
    const ui::NumberField* const field = fieldWithArrows(state);
    if (field == nullptr) {
        throw MisuseError("cannot spin " + ui::describe(state) + ": it has no arrows");
    }
    const RowSelection row(state);
    setByArrows(state, field->spun(steps));
    acting.changed(state);
    row.finish();
    acting.finish();
}

void slide(const Ptr<core::CommandInput>& input, double value, ui::SliderKnob knob) {
    UserAction acting;
    InputState& state = usable(input, "slide");
    if (state.kind != InputKind::Slider) {
        throw MisuseError("cannot slide " + ui::describe(state) + ": it is no slider");
    }
    ui::SliderState& slider = ui::sliderOf(&state);
    if (knob == ui::SliderKnob::Second && !slider.hasTwoKnobs()) {
        throw MisuseError("cannot slide " + ui::describe(state) + ": it has one knob");
    }
    const RowSelection row(state);
    slider.drag(knob, value);
    acting.changed(state);
    row.finish();
    acting.finish();
}

void chooseItem(const Ptr<core::CommandInput>& input, const std::string& item) {
    UserAction acting;
    ui::ListState& list = listAt(input);
    const int index = list.indexOf(item);
    if (index < 0) {
        throw MisuseError("cannot choose \"" + item + "\" from " + ui::describe(list) + ": " +
                          itemNames(list));
    }
    choose(acting, list, static_cast<std::size_t>(index));
}

void chooseItem(const Ptr<core::CommandInput>& input, std::size_t index) {
    UserAction acting;
    ui::ListState& list = listAt(input);
    if (index >= list.entries().size()) {
        throw MisuseError("cannot choose item " + std::to_string(index) + " from " +
                          ui::describe(list) + ": " + itemNames(list));
    }
    choose(acting, list, index);
}

void activateTab(const Ptr<core::TabCommandInput>& tab) {
    UserAction acting;
    InputState* state = InputState::of(tab);
    if (state == nullptr || state->command() != &shownDialog()) {
        throw MisuseError("cannot show a tab that the open dialog does not have");
    }
    if (!state->visible) {
        throw MisuseError("cannot show " + ui::describe(*state) + ": it is not visible");
    }
    showTab(acting, *state);
}

void selectRow(const Ptr<core::TableCommandInput>& table, int row) {
    const UserAction acting;
    auto& state = static_cast<ui::TableCommandInputObject&>(usable(table, "select a row of"));
    const std::vector<int> shown = shownRows(table);
    if (std::find(shown.begin(), shown.end(), row) == shown.end()) {
        throw MisuseError("cannot select row " + std::to_string(row) + " of " +
                          ui::describe(state) + ": " + rowNumbers(shown));
    }
    state.select(state.lines().at(static_cast<std::size_t>(row)));
}

void pick(const Ptr<core::Base>& entity, const ui::Place& place) {
    UserAction acting;
    if (!entity || !entity->isValid()) {
        throw MisuseError("cannot pick: no such entity");
    }
    if (openDialog()) {
        pickInDialog(acting, entity, place);
    } else {
        acting.ui().state().selections->list.clear();
        acting.ui().state().selections->list.add(entity, place);
    }
    acting.finish();
}

void clearPicks(const Ptr<core::CommandInput>& input) {
    UserAction acting;
    InputState& state = usable(input, "clear");
    if (state.kind != InputKind::Selection) {
        throw MisuseError("cannot clear " + ui::describe(state) + ": it is not a selection");
    }
    shownDialog().focus(&state);
    ui::SelectionCommandInputObject& selection = ui::selectionOf(&state);
    if (selection.picks().count() > 0) {
        selection.dropAll();
        acting.changed(state);
    }
    acting.finish();
}

void selectInModel(const std::vector<Ptr<core::Base>>& entities) {
    const UserAction acting;
    if (openDialog()) {
        throw MisuseError("cannot select in the model: a dialog is open, pick for it");
    }
    acting.ui().state().selections->list.clear();
    for (const Ptr<core::Base>& each : entities) {
        if (each && each->isValid()) {
            acting.ui().state().selections->list.add(each);
        }
    }
}

void reportChange(const Ptr<core::CommandInput>& input) {
    UserAction acting;
    InputState* state = InputState::of(input);
    if (state == nullptr || state->command() != &shownDialog()) {
        throw MisuseError("cannot report a change of an input that the open dialog does not have");
    }
    acting.changed(*state);
    acting.finish();
}

std::vector<int> shownRows(const Ptr<core::TableCommandInput>& table) {
    const auto* state = static_cast<const ui::TableCommandInputObject*>(InputState::of(table));
    if (state == nullptr) return {};
    const std::vector<int> columns = state->shownColumns();
    std::vector<int> shown;
    for (std::size_t row = 0; row < state->lines().count(); ++row) {
        if (state->isShown(state->lines().at(row), columns)) {
            shown.push_back(static_cast<int>(row));
        }
    }
    return shown;
}

std::vector<int> shownColumns(const Ptr<core::TableCommandInput>& table) {
    const auto* state = static_cast<const ui::TableCommandInputObject*>(InputState::of(table));
    return state == nullptr ? std::vector<int>() : state->shownColumns();
}

std::vector<Ptr<core::CommandInput>> toolbarOf(const Ptr<core::TableCommandInput>& table) {
    const auto* state = static_cast<const ui::TableCommandInputObject*>(InputState::of(table));
    std::vector<Ptr<core::CommandInput>> inputs;
    if (state == nullptr) return inputs;
    for (InputState* each : state->toolbar()) {
        inputs.emplace_back(each->api());
    }
    return inputs;
}

std::string whyUnusable(const Ptr<core::CommandInput>& input) {
    const InputState* state = InputState::of(input);
    if (state == nullptr) return "no such input";
    const std::string why = ui::whyUnreachable(*state);
    return why.empty() && !state->enabled ? "it is not enabled" : why;
}

}  // namespace host
