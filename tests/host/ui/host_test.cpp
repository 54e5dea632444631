#include "tests/host/ui/host_test.h"

#include "host/design/document.h"
#include "host/design/outline.h"

namespace host {

using namespace adsk::core;

Ptr<CommandDefinition> HostTest::define(const std::string& id, const Build& build) {
    Ptr<CommandDefinition> definition =
        ui()->commandDefinitions()->addButtonDefinition(id, id, "", "");
    on<OnCreated>(definition->commandCreated(),
                  [build](const Ptr<CommandCreatedEventArgs>& args) { build(args->command()); });
    return definition;
}

Ptr<CommandInputs> HostTest::open(const Build& build) {
    define("Dialog", build);
    pressCommand("Dialog");
    const Ptr<Command> dialog = openDialog();
    return dialog ? dialog->commandInputs() : nullptr;
}

Ptr<CommandInputs> HostTest::openWith(const std::function<void(const Ptr<CommandInputs>&)>& build) {
    return open([this, build](const Ptr<Command>& command) {
        build(command->commandInputs());
        traceChanges(command);
    });
}

void HostTest::traceChanges(const Ptr<Command>& command) {
    on<OnChanged>(command->inputChanged(),
                  [this](const Ptr<InputChangedEventArgs>& args) { note(args->input()->id()); });
}

void HostTest::traceLife(const Ptr<Command>& command) {
    on<OnCommand>(command->activate(), [this](const auto&) { note("activate"); });
    on<OnCommand>(command->execute(), [this](const auto&) { note("execute"); });
    on<OnCommand>(command->deactivate(), [this](const auto&) { note("deactivate"); });
    on<OnCommand>(command->destroy(), [this](const Ptr<CommandEventArgs>& args) {
        note("destroy" + reasonText(args->terminationReason()));
    });
    on<OnChanged>(command->inputChanged(), [this](const auto&) { note("inputChanged"); });
    on<OnValidate>(command->validateInputs(), [this](const auto&) { note("validateInputs"); });
}

void HostTest::traceHost() {
    on<OnApplication>(ui()->commandStarting(),
                      [this](const auto& args) { note("starting:" + args->commandId()); });
    on<OnApplication>(ui()->commandCreated(), [this](const auto&) { note("created"); });
    on<OnApplication>(ui()->commandTerminated(), [this](const auto& args) {
        note("terminated:" + args->commandId() + reasonText(args->terminationReason()));
    });
}

std::string HostTest::noted() {
    std::string all;
    for (const std::string& each : std::exchange(notes_, {})) {
        all += (all.empty() ? "" : " ") + each;
    }
    return all;
}

HostWithDesign::HostWithDesign(const std::string& outline)
    : document(makeDocument(parseOutline(outline), adsk::core::Application::get())) {
    ApplicationObject::current()->setActiveDocument(document);
}

HostWithDesign::~HostWithDesign() {
    endHost();
    endDocument(document);
}

std::string reasonText(CommandTerminationReason reason) {
    return "=" + std::to_string(static_cast<int>(reason));
}

std::string misuseOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const MisuseError& error) {
        return error.what();
    }
    return {};
}

}  // namespace host
