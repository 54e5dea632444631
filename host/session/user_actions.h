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

/// What the user does at the host that runs.
///
/// Each of these is one action: the handlers of the module are notified, and the commands that were
/// requested meanwhile have started before it returns. An action that the screen does not offer
/// throws a `MisuseError` and changes nothing: an input that is hidden, disabled, or in
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

/// The command whose dialog is open, null for none.
adsk::core::Ptr<adsk::core::Command> openDialog();

/// The size of the open dialog, 0 by 0 where nothing determines it: what the user gave it at
/// the last opening, else what the command asked for.
ui::DialogSize dialogSize();

/// Changes the size of the open dialog; the next opening of the command has it too.
void resizeDialog(int width, int height);

/// Accepts the dialog.
void pressOk();

/// Accepts the dialog although the host refuses OK, which the user cannot do: for tests of what a
/// module does in a host that refuses less.
void acceptAnyway();

/// Closes the dialog without accepting it, as the Esc key does too.
void pressCancel();

/// Starts the commands that a module requested outside of user actions, for instance in its `run`.
void drainRequests();
/// @}

/// @name Inputs of the open dialog
/// @{

/// Clicks a button or check box, which changes its value and is reported. A click on anything else
/// selects the row of the table that the input is in, moves the focus to a selection input, unfolds
/// or folds a group, and shows a tab.
void click(const adsk::core::Ptr<adsk::core::CommandInput>& input);

/// Types a string, which replaces what the input held. The change is reported after each character;
/// once for an empty string.
void typeText(const adsk::core::Ptr<adsk::core::CommandInput>& input, const std::string& text);

/// Pastes a string, which replaces what the input held; reported once.
void pasteText(const adsk::core::Ptr<adsk::core::CommandInput>& input, const std::string& text);

/// Chooses an item, which is reported; where several can be selected it unselects a selected one.
/// Nothing happens for the item that is chosen already.
void chooseItem(const adsk::core::Ptr<adsk::core::CommandInput>& input, const std::string& item);
void chooseItem(const adsk::core::Ptr<adsk::core::CommandInput>& input, std::size_t index);

/// Shows a tab; reported as a change of the input "APITabBar". Nothing happens for the tab that
/// shows.
void activateTab(const adsk::core::Ptr<adsk::core::TabCommandInput>& tab);

/// Selects a row of a table, which is not reported.
void selectRow(const adsk::core::Ptr<adsk::core::TableCommandInput>& table, int row);

/// Picks an entity in the model. With a dialog it goes to the selection that has the focus, which
/// is reported; an entity that is picked there already is taken out. Without one it replaces the
/// selection.
void pick(const adsk::core::Ptr<adsk::core::Base>& entity);

/// Selects entities in the model, and nothing else. Only without a dialog.
void selectInModel(const std::vector<adsk::core::Ptr<adsk::core::Base>>& entities);

/// Notifies the handlers that an input changed, although the user could not have changed it.
void reportChange(const adsk::core::Ptr<adsk::core::CommandInput>& input);
/// @}

/// @name The host around the dialogs
/// @{

/// Shows a workspace. A running command is cancelled. Nothing happens for the one that shows.
void activateWorkspace(const std::string& id);

/// Closes a palette with the button in its corner, which hides it.
void closePalette(const std::string& id);

/// Opens the context menu and returns the ids of the commands in its list; an empty list
/// does not show.
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

/// Why the user cannot use an input; empty where they can.
std::string whyUnusable(const adsk::core::Ptr<adsk::core::CommandInput>& input);
/// @}

}  // namespace host
