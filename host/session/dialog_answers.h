#pragma once

#include "host/ui/dialogs/file_dialog_object.h"
#include "host/ui/dialogs/messages.h"
#include "host/ui/dialogs/progress_dialog_object.h"

#include <functional>
#include <optional>
#include <vector>

/// How the user answers what a module shows beside its commands: messages, file dialogs, progress.
///
/// A module waits inside the call that shows a message or a file dialog. So its answer is given
/// before, or by a function that is asked meanwhile. Everything here works on the host that lives,
/// and throws a `MisuseError` without one, except `progressDialog`.
namespace host {

/// @name Messages
/// @{

/// What was shown since the host started or since `clearMessages`, oldest first.
const std::vector<Message>& messages();
void clearMessages();

/// Answers the next message that has no answer yet; an answer that it has no button for is listed
/// as a misuse, and its first button is pressed.
void answerNextMessage(adsk::core::DialogResults answer);

/// Asks `ask` for the answer of each message for which none waits; null presses the first button.
/// `ask` runs while the module waits.
void askForAnswers(std::function<adsk::core::DialogResults(const Message&)> ask);
/// @}

/// @name File dialogs
/// @{

/// What was shown since the host started, oldest first.
const std::vector<FileDialogShown>& fileDialogs();

/// Answers the next file dialog that has no answer yet. Several files for a dialog that takes one
/// are listed as a misuse, and the first is picked.
void answerNextFileDialog(PickedFiles files);

/// Asks `ask` for the answer of each dialog for which none waits; null closes the dialog without a
/// file. `ask` runs while the module waits.
void askForFiles(std::function<PickedFiles(const FileDialogShown&)> ask);
/// @}

/// @name Progress
/// @{

/// The newest progress dialog that a module holds and has not hidden; nothing without one.
std::optional<Progress> progressDialog();

/// Presses the cancel button of the newest progress dialog. Throws a `MisuseError` where there is
/// no dialog or no button.
void cancelProgress();
/// @}

}  // namespace host
