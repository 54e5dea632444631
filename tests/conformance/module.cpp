#include "tests/conformance/idioms.h"
#include "tests/conformance/operations.h"

#include <Core/Application/Application.h>
#include <Core/OSMacros.h>
#include <Core/UserInterface/Command.h>
#include <Core/UserInterface/CommandCreatedEvent.h>
#include <Core/UserInterface/CommandCreatedEventArgs.h>
#include <Core/UserInterface/CommandCreatedEventHandler.h>
#include <Core/UserInterface/CommandDefinition.h>
#include <Core/UserInterface/CommandDefinitions.h>
#include <Core/UserInterface/CommandEvent.h>
#include <Core/UserInterface/CommandEventArgs.h>
#include <Core/UserInterface/CommandEventHandler.h>
#include <Core/UserInterface/UserInterface.h>
#include <Core/Utils.h>

using namespace adsk::core;

/// A script as the vendor's manual has them: headers one by one, globals, handlers that override
/// `notify`.
namespace {

Ptr<Application> app;
Ptr<UserInterface> ui;

class OnExecute : public CommandEventHandler {
public:
    void notify(const Ptr<CommandEventArgs>& /*eventArgs*/) override {
        adsk::terminate();
        app->log("asked to terminate");
    }
} onExecute;

class OnCreated : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        Ptr<Command> command = eventArgs->command();
        if (!command) return;
        Ptr<CommandEvent> event = command->execute();
        if (!event) return;
        event->add(&onExecute);
    }
} onCreated;

class OnExecuteOperations : public CommandEventHandler {
public:
    void notify(const Ptr<CommandEventArgs>& /*eventArgs*/) override {
        app->log(operations::callAll(app));
    }
} onExecuteOperations;

class OnCreatedOperations : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        Ptr<Command> command = eventArgs->command();
        command->execute()->add(&onExecuteOperations);
        operations::addInputs(command);
        operations::subscribe(app);
    }
} onCreatedOperations;

bool addOperations() {
    Ptr<CommandDefinition> definition = ui->commandDefinitions()->addButtonDefinition(
        "ConformanceOperations", "Operations", "Calls what add-ins ask most");
    return definition && definition->commandCreated()->add(&onCreatedOperations);
}

bool addTerminate() {
    Ptr<CommandDefinition> definition = ui->commandDefinitions()->addButtonDefinition(
        "ConformanceTerminate", "Terminate", "Ends this script");
    return definition && definition->commandCreated()->add(&onCreated);
}

}  // namespace

extern "C" XI_EXPORT bool run(const char* /*context*/) {
    app = Application::get();
    if (!app) return false;
    ui = app->userInterface();
    if (!ui) return false;
    adsk::autoTerminate(false);
    const std::vector<std::string> wrong = idioms_cpp17::wrongIdioms(app);
    app->log(wrong.empty() ? "no idiom came out wrong" : "came out wrong: " + wrong.front());
    return addTerminate() && addOperations();
}

extern "C" XI_EXPORT bool stop(const char* /*context*/) {
    app->log("stopped", WarningLogLevel, ConsoleLogType);
    operations::unsubscribe(app);
    ui = nullptr;
    app = NULL;  // NOLINT(modernize-use-nullptr): as scripts have it
    return true;
}
