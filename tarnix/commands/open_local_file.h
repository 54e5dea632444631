#pragma once

#include "tarnix/commands/command_without_dialog.h"
#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

#include <cstdint>
#include <string>
#include <vector>

namespace tarnix {

inline constexpr CommandTexts kOpenLocalFileCommand = {
    .id = "QEMA_OpenLocalCmd_QAT",
    .name = "Open local file",
    .tooltip = "Open / Import file from local storage",
    .resourceFolder = "././Resources/OpenLocalFile"};

/// Carries out "Open local file": asks the user for files and brings them into the host, one after
/// the other.
///
/// What the host's import manager reads becomes a new document at once. Everything else is uploaded
/// into the root folder of the active project and opened from there as soon as the host has
/// converted it. Both waits let the host deliver further events, a second press of this command
/// among them.
class OpenLocalFileCmdExecuteHandler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;

private:
    /// Asks the user for `fileNames`; they stay as they were where the user cancels.
    void pickFiles();

    /// Opens a file of a format that the host imports; false for every other one.
    bool importFile(const std::string& fileName);

    /// Uploads a file and opens it when it is converted. Without an active project it throws.
    void uploadAndOpenFile(const std::string& fileName);

    /// Waits for the end of an upload; true when the file has arrived. The user is shown a
    /// failure, and what becomes of an upload that is no longer waited for.
    bool awaitUpload(const adsk::core::Ptr<adsk::core::DataFileFuture>& upload,
                     const adsk::core::Ptr<adsk::core::ProgressDialog>& progress);

    /// Tries to open a file, once a second, until the host has converted it or the user cancels.
    void openWhenConverted(const adsk::core::Ptr<adsk::core::DataFile>& file,
                           const adsk::core::Ptr<adsk::core::ProgressDialog>& progress);

    adsk::core::Ptr<adsk::core::Application> app;
    adsk::core::Ptr<adsk::core::UserInterface> ui;

    /// What the user picked last, in the host's order. A cancelled pick repeats it.
    std::vector<std::string> fileNames;

    const std::int32_t maxUploadSeconds = 1000;
};

/// Answers the start of the command "Open local file", which has no dialog of its own.
class OpenLocalFileCmdCreateHandler final
    : public CommandWithoutDialog<OpenLocalFileCmdExecuteHandler> {};

}  // namespace tarnix
