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
    const Ptr<adsk::fusion::Design> design = Application::get()->activeProduct();
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
    ui = Application::get()->userInterface();
    const bool isFine = add("StagedWait", onCreatedWait) &&
                        add("StagedPreview", onCreatedPreview) &&
                        add("StagedDialog", onCreatedDialog);
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
    for (const char* const id : {"StagedWait", "StagedPreview", "StagedDialog"}) {
        ui->commandDefinitions()->itemById(id)->deleteMe();
    }
    ui = nullptr;
    return true;
}
