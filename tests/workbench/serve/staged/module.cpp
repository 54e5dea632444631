#include <Core/CoreAll.h>
#include <Core/OSMacros.h>
#include <Fusion/FusionAll.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

/// An add-in that does with its host what others seldom do, so that tests can look at its pages
/// meanwhile.
///
/// It waits for the host as long as the file is there that the environment variable STAGED_HOLD
/// names; in `run` too where there is a variable STAGED_WAITS_IN_RUN. `stop` writes the file that
/// STAGED_STOPPED names.
namespace {

using namespace adsk::core;
namespace fs = std::filesystem;

Ptr<Application> app;
Ptr<UserInterface> ui;

fs::path fileOf(const char* variable) {
    const char* const name = std::getenv(variable);
    return name == nullptr ? fs::path() : fs::path(name);
}

void hold(const Ptr<ProgressDialog>& progress = nullptr) {
    constexpr std::chrono::milliseconds kPause(5);
    while (fs::exists(fileOf("STAGED_HOLD")) && !(progress && progress->wasCancelled())) {
        adsk::doEvents();
        std::this_thread::sleep_for(kPause);
    }
}

Ptr<adsk::fusion::Component> rootComponent() {
    const Ptr<adsk::fusion::Design> design = app->activeProduct();
    return design->rootComponent();
}

class OnExecuteWait : public CommandEventHandler {
public:
    void notify(const Ptr<CommandEventArgs>& /*eventArgs*/) override {
        const Ptr<ProgressDialog> progress = ui->createProgressDialog();
        progress->isCancelButtonShown(true);
        progress->show("", "Holding", 0, 10);
        hold(progress);
    }
} onExecuteWait;

class OnPreview : public CommandEventHandler {
public:
    void notify(const Ptr<CommandEventArgs>& /*eventArgs*/) override {
        rootComponent()->partNumber("previewed");
    }
} onPreview;

class OnChanged : public InputChangedEventHandler {
public:
    void notify(const Ptr<InputChangedEventArgs>& eventArgs) override {
        const Ptr<CommandInput> input = eventArgs->input();
        if (input->id() == "ask") {
            ui->messageBox("Go on?");
            input->isEnabled(false);
        } else if (input->id() == "remove") {
            eventArgs->inputs()->itemById("list")->deleteMe();
            hold();
        }
    }
} onChanged;

constexpr const char* kLater = "StagedLater";
std::thread later;

/// Comes to the main thread when nobody asks the host for anything.
class OnLater : public CustomEventHandler {
public:
    void notify(const Ptr<CustomEventArgs>& /*eventArgs*/) override {
        rootComponent()->partNumber("later");
    }
} onLater;

class OnExecuteLater : public CommandEventHandler {
public:
    void notify(const Ptr<CommandEventArgs>& /*eventArgs*/) override {
        constexpr std::chrono::milliseconds kPause(300);
        later = std::thread([kPause] {
            std::this_thread::sleep_for(kPause);
            app->fireCustomEvent(kLater);
        });
    }
} onExecuteLater;

class OnExecuteSaveFile : public CommandEventHandler {
public:
    void notify(const Ptr<CommandEventArgs>& /*eventArgs*/) override {
        const Ptr<FileDialog> dialog = ui->createFileDialog();
        dialog->initialFilename("list.txt");
        const bool isPicked = dialog->showSave() == DialogOK;
        ui->messageBox(isPicked ? dialog->filename() : "nothing");
    }
} onExecuteSaveFile;

class OnExecutePickFolder : public CommandEventHandler {
public:
    void notify(const Ptr<CommandEventArgs>& /*eventArgs*/) override {
        const Ptr<FolderDialog> dialog = ui->createFolderDialog();
        const bool isPicked = dialog->showDialog() == DialogOK;
        ui->messageBox(isPicked ? dialog->folder() : "nothing");
    }
} onExecutePickFolder;

class OnCreatedSaveFile : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        eventArgs->command()->execute()->add(&onExecuteSaveFile);
    }
} onCreatedSaveFile;

class OnCreatedPickFolder : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        eventArgs->command()->execute()->add(&onExecutePickFolder);
    }
} onCreatedPickFolder;

class OnCreatedLater : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        eventArgs->command()->execute()->add(&onExecuteLater);
    }
} onCreatedLater;

class OnCreatedWait : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        eventArgs->command()->execute()->add(&onExecuteWait);
    }
} onCreatedWait;

class OnCreatedPreview : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        const Ptr<Command> command = eventArgs->command();
        command->commandInputs()->addStringValueInput("name", "Name");
        command->executePreview()->add(&onPreview);
    }
} onCreatedPreview;

class OnCreatedDialog : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        const Ptr<CommandInputs> inputs = eventArgs->command()->commandInputs();
        inputs->addStringValueInput("ask", "Ask");
        inputs->addBoolValueInput("remove", "Remove the list", /*isCheckBox=*/false);
        const Ptr<TableCommandInput> list = inputs->addTableCommandInput("list", "List", 1, "1");
        for (int row = 0; row < 3; ++row) {
            const std::string id = "row" + std::to_string(row);
            list->addCommandInput(inputs->addStringValueInput(id, "", id), row, 0);
        }
        eventArgs->command()->inputChanged()->add(&onChanged);
    }
} onCreatedDialog;

bool add(const char* id, CommandCreatedEventHandler& handler) {
    const Ptr<CommandDefinition> definition =
        ui->commandDefinitions()->addButtonDefinition(id, id, "");
    return definition && definition->commandCreated()->add(&handler);
}

}  // namespace

extern "C" XI_EXPORT bool run(const char* /*context*/) {
    app = Application::get();
    ui = app->userInterface();
    const bool isFine =
        add("StagedWait", onCreatedWait) && add("StagedPreview", onCreatedPreview) &&
        add("StagedDialog", onCreatedDialog) && add(kLater, onCreatedLater) &&
        add("StagedSaveFile", onCreatedSaveFile) && add("StagedPickFolder", onCreatedPickFolder) &&
        app->registerCustomEvent(kLater)->add(&onLater);
    if (!fileOf("STAGED_WAITS_IN_RUN").empty()) {
        hold();
    }
    return isFine;
}

extern "C" XI_EXPORT bool stop(const char* /*context*/) {
    constexpr std::chrono::milliseconds kPause(500);
    const fs::path file = fileOf("STAGED_STOPPED");
    if (!file.empty()) {
        std::this_thread::sleep_for(kPause);
        std::ofstream(file) << "stopped";
    }
    if (later.joinable()) {
        later.join();
    }
    app->unregisterCustomEvent(kLater);
    for (const char* const id : {"StagedWait", "StagedPreview", "StagedDialog", "StagedSaveFile",
                                 "StagedPickFolder", kLater}) {
        ui->commandDefinitions()->itemById(id)->deleteMe();
    }
    ui = nullptr;
    app = nullptr;
    return true;
}
