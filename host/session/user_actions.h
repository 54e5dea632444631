#pragma once

#include "host/base/misuse.h"
#include "host/ui/commands/command.h"
#include "host/ui/host_setup.h"

#include <Core/CommandDefinitions.h>
#include <Core/CommandInputs.h>
#include <Core/Commands.h>

#include <cstddef>
#include <string>
#include <vector>

/// What a person does at the host that runs.
///
/// Each of these is one action: the handlers of the module are told, and whatever commands were
/// asked for meanwhile have started before it returns. An action that the screen does not offer
/// throws a `MisuseError` and changes nothing: an input that is hidden, disabled, or stands in
/// another tab, an item that the list does not hold, OK while the host refuses it.
///
/// What handlers throw is recorded by the dispatcher, under "OnInputChanged" with the id of the
/// changed input, "OnExecute", "OnCommandCreated", "OnCommandStarting", "OnCommandTerminated",
/// "OnActivate", "OnDeactivate", "OnDestroy", "OnValidateInputs", "OnExecutePreview",
/// "OnWorkspaceActivated" or "OnMarkingMenuDisplaying".
namespace host {

/// @name Commands and dialogs
/// @{

/// Presses the button of a command. It needs no control in the active workspace; where it has some,
/// one of them has to be visible.
void pressCommand(const adsk::core::Ptr<adsk::core::CommandDefinition>& definition);
void pressCommand(const std::string& id);

/// The command whose dialog stands on the screen, null for none.
adsk::core::Ptr<adsk::core::Command> openDialog();

/// The size of the open dialog, 0 by 0 where nothing gives it one: what the person made of it at
/// the last opening, else what the command asked for.
ui::DialogSize dialogSize();

/// Changes the size of the open dialog; the next opening of the command has it too.
void resizeDialog(int width, int height);

/// Accepts the dialog.
void pressOk();

/// Accepts the dialog although the host refuses OK, which no person can do: a host that differs in
/// what it refuses may.
void acceptAnyway();

/// Closes the dialog without accepting it, as the Esc key does too.
void pressCancel();

/// Starts the commands that a module asked for while nobody acted, for instance in its `run`.
void drainRequests();
/// @}

/// @name Inputs of the open dialog
/// @{

/// Clicks a button or check box, which changes its value and is told. A click on anything else
/// selects the row of the table that it stands in, gives a selection input the focus, unfolds or
/// folds a group, and shows a tab.
void click(const adsk::core::Ptr<adsk::core::CommandInput>& input);

/// Types a text in the place of the one that is there. Told once for each character, the value
/// having grown by it; once for an empty text.
void typeText(const adsk::core::Ptr<adsk::core::CommandInput>& input, const std::string& text);

/// Puts a text in the place of the one that is there; told once.
void pasteText(const adsk::core::Ptr<adsk::core::CommandInput>& input, const std::string& text);

/// Chooses an item, which is told; where several can be selected it unselects a selected one.
/// Nothing happens for the item that is chosen already.
void chooseItem(const adsk::core::Ptr<adsk::core::CommandInput>& input, const std::string& item);
void chooseItem(const adsk::core::Ptr<adsk::core::CommandInput>& input, std::size_t index);

/// Shows a tab; told as a change of the input "APITabBar". Nothing happens for the tab that shows.
void activateTab(const adsk::core::Ptr<adsk::core::TabCommandInput>& tab);

/// Selects a row of a table, which nobody is told.
void selectRow(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int row);

/// Picks an entity in the model. With a dialog it goes to the selection that has the focus, which
/// is told; an entity that is picked there already is taken out. Without one it is all that is
/// selected.
void pick(const adsk::core::Ptr<adsk::core::Base>& entity);

/// Selects entities in the model, in the place of those that are selected. Only without a dialog.
void selectInModel(const std::vector<adsk::core::Ptr<adsk::core::Base>>& entities);

/// Tells the handlers that an input changed although nobody could have changed it.
void reportChange(const adsk::core::Ptr<adsk::core::CommandInput>& input);
/// @}

/// @name The host around the dialogs
/// @{

/// Shows a workspace. A running command is cancelled. Nothing happens for the one that shows.
void activateWorkspace(const std::string& id);

/// Closes a palette with the button in its corner, which hides it.
void closePalette(const std::string& id);

/// Opens the context menu and returns the ids of the commands in its list; none where it is empty,
/// and so does not show.
std::vector<std::string> showMarkingMenu();
/// @}

/// @name What the screen shows
/// @{

/// The rows of a table that show: those with a visible cell in a column that shows.
std::vector<int> shownRows(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// The columns of a table that have a width, from 0 to `numberOfColumns`.
std::vector<int> shownColumns(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// The inputs below a table, in the order they were added.
std::vector<adsk::core::Ptr<adsk::core::CommandInput>> toolbarOf(
    const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// Why a person cannot use an input; empty where they can.
std::string whyUnusable(const adsk::core::Ptr<adsk::core::CommandInput>& input);
/// @}

}  // namespace host
