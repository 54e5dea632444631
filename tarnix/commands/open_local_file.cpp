#include "tarnix/commands/open_local_file.h"

#include "tarnix/commands/import_formats.h"
#include "tarnix/platform/locale.h"
#include "tarnix/platform/sleep.h"

#include <exception>

namespace tarnix {
namespace {

using namespace adsk::core;

constexpr int kPollMilliseconds = 1000;

constexpr const char* kStillUploading =
    "Your file is still uploading to Fusion Team. You can find it in the data panel in the current "
    "project's root folder when it completes";
constexpr const char* kStillConverting =
    "File still uploaded, open from data panel after conversion completes";

/// A progress dialog that is kept up to date and never brought on screen.
Ptr<ProgressDialog> makeProgress(const Ptr<UserInterface>& ui) {
    Ptr<ProgressDialog> progress = ui->createProgressDialog();
    progress->cancelButtonText("Upload in Backround");
    progress->isBackgroundTranslucent(false);
    progress->isCancelButtonShown(true);
    progress->message("Uploading: %v secs");
    return progress;
}

}  // namespace

void OpenLocalFileCmdExecuteHandler::notify(const Ptr<CommandEventArgs>& /*eventArgs*/) {
    pickFiles();
    // A second press during one of the waits replaces the list; this run goes on with its own.
    for (const std::string& fileName : std::vector<std::string>(fileNames)) {
        platform::useCzechLocale();
        const std::string lowered = platform::lowerCase(fileName);
        if (!importFile(lowered)) {
            uploadAndOpenFile(lowered);
        }
    }
}

void OpenLocalFileCmdExecuteHandler::pickFiles() {
    app = Application::get();
    if (app) {
        ui = app->userInterface();
    }
    if (!app || !ui) {
        return;
    }
    const Ptr<FileDialog> dialog = ui->createFileDialog();
    dialog->isMultiSelectEnabled(true);
    dialog->title("Select local file to open/import");
    dialog->filter(supportedFilesFilter);
    dialog->filterIndex(0);
    if (dialog->showOpen() != DialogOK) {
        ui->terminateActiveCommand();
        return;
    }
    fileNames = dialog->filenames();
}

bool OpenLocalFileCmdExecuteHandler::importFile(const std::string& fileName) {
    const ImportOptionsFactory factory = importOptionsFactory(extensionOf(fileName));
    if (factory == nullptr) {
        return false;
    }
    const Ptr<ImportManager> manager = app->importManager();
    manager->importToNewDocument(factory(manager, fileName));
    return true;
}

void OpenLocalFileCmdExecuteHandler::uploadAndOpenFile(const std::string& fileName) {
    const Ptr<DataFolder> folder = app->data()->activeProject()->rootFolder();
    const Ptr<ProgressDialog> progress = makeProgress(ui);
    if (fileName.empty()) {
        ui->messageBox("Something is wrong with the file");
        return;
    }
    const Ptr<DataFileFuture> upload = folder->uploadFile(fileName);
    adsk::doEvents();
    if (awaitUpload(upload, progress)) {
        openWhenConverted(upload->dataFile(), progress);
    }
}

bool OpenLocalFileCmdExecuteHandler::awaitUpload(const Ptr<DataFileFuture>& upload,
                                                 const Ptr<ProgressDialog>& progress) {
    for (std::int32_t i = 0; upload->uploadState() == UploadProcessing && i <= maxUploadSeconds;
         ++i) {
        if (progress->wasCancelled()) {
            ui->messageBox(kStillUploading);
            return false;
        }
        adsk::doEvents();
        progress->progressValue(i);
        platform::sleep(kPollMilliseconds);
    }
    const UploadStates state = upload->uploadState();
    if (state == UploadFailed) {
        ui->messageBox("Failed");
    }
    return state == UploadFinished;
}

void OpenLocalFileCmdExecuteHandler::openWhenConverted(const Ptr<DataFile>& file,
                                                       const Ptr<ProgressDialog>& progress) {
    adsk::doEvents();
    progress->progressValue(0);
    progress->message("Converting: %v secs");
    Ptr<Document> document;
    std::int32_t j = 0;
    while (!document) {
        try {
            document = app->documents()->open(file, /*visible=*/true);
        } catch (const std::exception&) {
            // Not a second of the wait: the next try follows at once.
            continue;
        }
        adsk::doEvents();
        progress->progressValue(j);
        if (progress->wasCancelled()) {
            ui->messageBox(kStillConverting);
            return;
        }
        platform::sleep(kPollMilliseconds);
        ++j;
    }
    progress->hide();
}

}  // namespace tarnix
