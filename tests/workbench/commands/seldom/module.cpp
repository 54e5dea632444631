#include <Core/CoreAll.h>
#include <Core/OSMacros.h>
#include <Fusion/FusionAll.h>

#include <stdexcept>

/// An add-in whose commands do what few add-ins do; all but one at once, without a dialog.
namespace {

using namespace adsk::core;

using Action = void (*)();

constexpr const char* kFired = "SeldomFired";

Ptr<CommandDefinitions> definitions() {
    return Application::get()->userInterface()->commandDefinitions();
}

class OnExecute : public CommandEventHandler {
public:
    explicit OnExecute(Action action) : action_(action) {}
    void notify(const Ptr<CommandEventArgs>& /*eventArgs*/) override { action_(); }

private:
    Action action_;
};

class OnCreated : public CommandCreatedEventHandler {
public:
    explicit OnCreated(Action action) : onExecute_(action) {}
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        eventArgs->command()->execute()->add(&onExecute_);
    }

private:
    OnExecute onExecute_;
};

class OnFired : public CustomEventHandler {
public:
    void notify(const Ptr<CustomEventArgs>& /*eventArgs*/) override {
        throw std::runtime_error("handled");
    }
} onFired;

void startAgain() { definitions()->itemById("SeldomAgain")->execute(); }

void fire() { Application::get()->fireCustomEvent(kFired); }

/// As many definitions as before, but one of them is another.
void replaceOne() {
    definitions()->itemById("SeldomSpare")->deleteMe();
    definitions()->addButtonDefinition("SeldomOther", "Other", "");
}

void say() { Application::get()->userInterface()->messageBox("One\nTwo", "Heading"); }

void openAnother() {
    const Ptr<adsk::fusion::Design> first = Application::get()->activeProduct();
    const Ptr<Document> document = Application::get()->documents()->add(FusionDesignDocumentType);
    document->name("Another");
    const Ptr<adsk::fusion::Design> design = Application::get()->activeProduct();
    design->rootComponent()->description("written");
    first->rootComponent()->description("first");
}

/// A dialog with a table of two rows in one column, the second row hidden.
class OnCreatedTable : public CommandCreatedEventHandler {
public:
    void notify(const Ptr<CommandCreatedEventArgs>& eventArgs) override {
        const Ptr<CommandInputs> inputs = eventArgs->command()->commandInputs();
        const Ptr<TableCommandInput> table =
            inputs->addTableCommandInput("table", "Table", /*numberOfColumns=*/1, "1");
        table->addCommandInput(inputs->addStringValueInput("shown", "", ""), 0, 0);
        const Ptr<CommandInput> hidden = inputs->addStringValueInput("hidden", "", "");
        table->addCommandInput(hidden, 1, 0);
        hidden->isVisible(false);
    }
} onCreatedTable;

OnCreated onCreatedAgain(startAgain);
OnCreated onCreatedFire(fire);
OnCreated onCreatedOpen(openAnother);
OnCreated onCreatedReplace(replaceOne);
OnCreated onCreatedSay(say);

void add(const char* id, CommandCreatedEventHandler& onCreated) {
    definitions()->addButtonDefinition(id, id, "")->commandCreated()->add(&onCreated);
}

}  // namespace

/// Fires an event that is handled after it has returned, where the design is empty.
extern "C" XI_EXPORT bool run(const char* /*context*/) {
    adsk::autoTerminate(false);
    add("SeldomAgain", onCreatedAgain);
    add("SeldomFire", onCreatedFire);
    add("SeldomOpen", onCreatedOpen);
    add("SeldomReplace", onCreatedReplace);
    add("SeldomSay", onCreatedSay);
    add("SeldomTable", onCreatedTable);
    definitions()->addButtonDefinition("SeldomSpare", "Spare", "");
    Application::get()->registerCustomEvent(kFired)->add(&onFired);
    const Ptr<adsk::fusion::Design> design = Application::get()->activeProduct();
    if (design->rootComponent()->occurrences()->count() == 0) {
        fire();
    }
    return true;
}
