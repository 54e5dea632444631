#pragma once

#include "host/base/api_names.h"
#include "host/base/misuse.h"
#include "host/ui/commands/dialog_size.h"
#include "host/ui/dialogs/page_message.h"

#include <Core/CommandDefinitions.h>
#include <Core/Commands.h>

#include <functional>
#include <string>
#include <vector>

/// What the user does with commands, dialogs, workspaces and palettes of the running host.
///
/// Each of these is one action: the handlers of the module are notified, and the commands that were
/// requested meanwhile have started before it returns. An action that the screen does not offer
/// throws a `MisuseError` and changes nothing: a button that is not visible, OK while the host
/// refuses it.
///
/// What handlers throw is recorded by the dispatcher, under "OnInputChanged" with the id of the
/// changed input, "OnExecute", "OnCommandCreated", "OnCommandStarting", "OnCommandTerminated",
/// "OnActivate", "OnDeactivate", "OnDestroy", "OnValidateInputs", "OnExecutePreview",
/// "OnWorkspaceActivated", "OnMarkingMenuDisplaying", "OnIncomingFromHTML" or the id of a custom
/// event.
namespace host {

/// @name Commands and dialogs
/// @{

/// Presses the button of a command. It needs no control in the active workspace; where it has some,
/// one of them has to be visible.
void pressCommand(const core::Ptr<core::CommandDefinition>& definition);
void pressCommand(const std::string& id);

/// The command whose dialog is on the screen, null for none.
core::Ptr<core::Command> openDialog();

/// Whether the design has changes that OK would make and Cancel takes back: the open dialog's
/// preview.
bool showsPreview();

/// The size of the open dialog, 0 by 0 where nothing gives it one: the size that the user gave it
/// at the last opening, else the one that the command asked for.
ui::DialogSize dialogSize();

/// Changes the size of the open dialog; the next opening of the command has it too.
void resizeDialog(int width, int height);

/// Accepts the dialog.
void pressOk();

/// Accepts the dialog although the host refuses OK, which the user cannot do: another host may
/// refuse less.
void acceptAnyway();

/// Closes the dialog without accepting it, as the Esc key does too.
void pressCancel();

/// Starts the commands that a module requested outside of any user action, for instance in `run`.
void drainRequests();
/// @}

/// @name The host around the dialogs
/// @{

/// Shows a workspace. A running command is cancelled. Nothing happens for the active one.
void activateWorkspace(const std::string& id);

/// Closes a palette with the button in its corner, which hides it.
void closePalette(const std::string& id);

/// The page of a palette sends something to the module, as by `adsk.fusionSendData`; the answer of
/// its handlers. It may be hidden: its page stays loaded.
std::string sendFromPage(const std::string& paletteId, const std::string& action,
                         const std::string& data);

/// Answers from now on what the module sends to the page of a palette, which this host does not
/// run; null for no answer.
void answerAsPage(const std::string& paletteId,
                  std::function<std::string(const ui::PageMessage&)> page);

/// What the module sent to the page of a palette, oldest first.
std::vector<ui::PageMessage> sentToPage(const std::string& paletteId);

/// Opens the context menu and returns the ids of the commands in its list; empty where the menu is
/// empty and so is not shown.
std::vector<std::string> showMarkingMenu();
/// @}

}  // namespace host
