// An add-in in one file: a dialog that puts a prefix before the names of all components, with a
// preview.
//
// It uses the public API alone, so it is an example for the workbench command "run" (docs/run.md).

#include <Core/CoreAll.h>
#include <Fusion/FusionAll.h>

#include <set>
#include <string>

using adsk::core::Application;
using adsk::core::BoolValueCommandInput;
using adsk::core::Command;
using adsk::core::CommandControl;
using adsk::core::CommandCreatedEventArgs;
using adsk::core::CommandCreatedEventHandler;
using adsk::core::CommandDefinition;
using adsk::core::CommandEventArgs;
using adsk::core::CommandEventHandler;
using adsk::core::CommandInputs;
using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;
using adsk::core::ToolbarPanel;
using adsk::core::UserInterface;
using adsk::core::ValidateInputsEventArgs;
using adsk::core::ValidateInputsEventHandler;
using adsk::fusion::Component;
using adsk::fusion::Design;
using adsk::fusion::Occurrence;
using adsk::fusion::OccurrenceList;

namespace {

constexpr const char* kCommand = "PrefixNames";
constexpr const char* kPanel = "SolidModifyPanel";
constexpr const char* kPrefix = "prefix";
constexpr const char* kAssemblies = "assemblies";

using Components = std::set<Ptr<Component>>;

/// Each component once, however often it is used; those with children only where they are asked
/// for.
void collect(const Ptr<OccurrenceList>& occurrences, bool withAssemblies, Components& found) {
    for (const Ptr<Occurrence>& each : occurrences) {
        const Ptr<OccurrenceList> children = each->childOccurrences();
        if (withAssemblies || children->count() == 0) {
            found.insert(each->component());
        }
        collect(children, withAssemblies, found);
    }
}

void rename(const Ptr<Design>& design, const std::string& prefix, bool withAssemblies) {
    Components found;
    collect(design->rootComponent()->occurrences()->asList(), withAssemblies, found);
    for (const Ptr<Component>& each : found) {
        each->name(prefix + each->name());
    }
}

/// Does the same as a preview and as the execution: the host takes back a preview by itself.
class RenameHandler final : public CommandEventHandler {
public:
    void notify(const Ptr<CommandEventArgs>& eventArgs) override {
        const Ptr<CommandInputs> inputs = eventArgs->command()->commandInputs();
        const Ptr<StringValueCommandInput> prefix = inputs->itemById(kPrefix);
        const Ptr<BoolValueCommandInput> assemblies = inputs->itemById(kAssemblies);
        const Ptr<Design> design = Application::get()->activeProduct();
        if (design) {
            rename(design, prefix->value(), assemblies->value());
        }
    }
};

class ValidateHandler final : public ValidateInputsEventHandler {
public:
    void notify(const Ptr<ValidateInputsEventArgs>& eventArgs) override {
        const Ptr<StringValueCommandInput> prefix = eventArgs->inputs()->itemById(kPrefix);
        eventArgs->areInputsValid(!prefix->value().empty());
    }
};

class CreatedHandler final : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        const Ptr<Command> command = eventArgs->command();
        const Ptr<CommandInputs> inputs = command->commandInputs();
        inputs->addStringValueInput(kPrefix, "Prefix", "");
        inputs->addBoolValueInput(kAssemblies, "Assemblies too", /*isCheckBox=*/true, "",
                                  /*initialValue=*/false);
        command->executePreview()->add(&rename_);
        command->execute()->add(&rename_);
        command->validateInputs()->add(&validate_);
    }

private:
    RenameHandler rename_;
    ValidateHandler validate_;
};

CreatedHandler created;

}  // namespace

extern "C" XI_EXPORT bool run(const char* /*context*/) {
    const Ptr<Application> application = Application::get();
    if (!application) {
        return false;
    }
    adsk::autoTerminate(false);
    const Ptr<UserInterface> ui = application->userInterface();
    const Ptr<CommandDefinition> definition = ui->commandDefinitions()->addButtonDefinition(
        kCommand, "Prefix names", "Puts a prefix before the names of all components");
    if (!definition) {
        return false;
    }
    definition->commandCreated()->add(&created);
    const Ptr<ToolbarPanel> panel = ui->allToolbarPanels()->itemById(kPanel);
    return panel && panel->controls()->addCommand(definition);
}

extern "C" XI_EXPORT bool stop(const char* /*context*/) {
    const Ptr<Application> application = Application::get();
    if (!application) {
        return false;
    }
    const Ptr<UserInterface> ui = application->userInterface();
    const Ptr<ToolbarPanel> panel = ui->allToolbarPanels()->itemById(kPanel);
    if (const Ptr<CommandControl> control =
            panel ? panel->controls()->itemById(kCommand) : nullptr) {
        control->deleteMe();
    }
    if (const Ptr<CommandDefinition> definition = ui->commandDefinitions()->itemById(kCommand)) {
        definition->deleteMe();
    }
    return true;
}
