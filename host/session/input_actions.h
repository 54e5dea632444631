#pragma once

#include "host/base/api_names.h"
#include "host/base/misuse.h"
#include "host/ui/inputs/slider_knob.h"

#include <Core/CommandInputs.h>

#include <array>
#include <cstddef>
#include <string>
#include <vector>

/// What the user does with the inputs of the open dialog and with the model, and what they see.
///
/// Each of these is one action, as in user_actions.h. It throws a `MisuseError` and changes nothing
/// for an input that is hidden, disabled or in another tab, for a text that is read-only, and for
/// an item that the list does not have.
namespace host {

/// @name Inputs of the open dialog
/// @{

/// Clicks a button or check box, which changes its value and is reported. A click on anything else
/// selects the row of the table that it is in, gives a selection input the focus, expands or
/// collapses a group, and shows a tab.
void click(const core::Ptr<core::CommandInput>& input);

/// Replaces the text by typing. Reported once for each character, after the value has grown by it;
/// once for an empty string.
void typeText(const core::Ptr<core::CommandInput>& input, const std::string& text);

/// Replaces the text by pasting; reported once.
void pasteText(const core::Ptr<core::CommandInput>& input, const std::string& text);

/// Clicks an arrow of a spinner so many times, the one that counts down for a negative number; the
/// value stops at the limits. For a slider, beside the field of its first knob, where a list goes
/// to its next value. Reported once.
void spin(const core::Ptr<core::CommandInput>& input, int steps);

/// Drags a knob of a slider to the place of a value, in the host's units: as near as the slider
/// goes, and not past the other knob. Reported once. Into a slider with two knobs the user types
/// both values as "10 mm to 20 mm".
void slide(const core::Ptr<core::CommandInput>& input, double value,
           ui::SliderKnob knob = ui::SliderKnob::First);

/// Chooses an item, which is reported; where several can be selected it unselects a selected one.
/// Nothing happens for an item that is already chosen.
void chooseItem(const core::Ptr<core::CommandInput>& input, const std::string& item);
void chooseItem(const core::Ptr<core::CommandInput>& input, std::size_t index);

/// Shows a tab; reported as a change of the input "APITabBar". Nothing happens for the active tab.
void activateTab(const core::Ptr<core::TabCommandInput>& tab);

/// Selects a row of a table, which is not reported.
void selectRow(const core::Ptr<core::TableCommandInput>& table, int row);

/// Picks an entity in the model, at a place of it in cm; the browser tree has no places. With a
/// dialog it goes to the selection that has the focus, which is reported; an entity that is already
/// picked there is removed. Without one it becomes all that is selected.
void pick(const core::Ptr<core::Base>& entity, const std::array<double, 3>& place = {});

/// Takes all that is picked out of a selection, which is reported, and gives it the focus.
void clearPicks(const core::Ptr<core::CommandInput>& input);

/// Selects entities in the model, in place of those that are selected. Only without a dialog.
void selectInModel(const std::vector<core::Ptr<core::Base>>& entities);

/// Reports a change of an input to the handlers although the user could not have made it.
void reportChange(const core::Ptr<core::CommandInput>& input);
/// @}

/// @name What the screen shows
/// @{

/// The rows of a table that show: those with a visible cell in a column that shows.
std::vector<int> shownRows(const core::Ptr<core::TableCommandInput>& table);

/// The columns of a table that have a width, from 0 to `numberOfColumns`.
std::vector<int> shownColumns(const core::Ptr<core::TableCommandInput>& table);

/// The inputs below a table, in the order they were added.
std::vector<core::Ptr<core::CommandInput>> toolbarOf(
    const core::Ptr<core::TableCommandInput>& table);

/// Why the user cannot use an input; empty where they can.
std::string whyUnusable(const core::Ptr<core::CommandInput>& input);
/// @}

}  // namespace host
