#include "tests/host/ui/host_test.h"

#include "host/base/last_error.h"

namespace host {
namespace {

using namespace adsk::core;

/// Handles that a module keeps longer than the host keeps their objects.
class Handles : public HostTest {};

TEST_F(Handles, OfAnEndedHostAreNotValidAndReturnNothing) {
    const Ptr<UserInterface> interface = ui();
    const Ptr<Workspace> workspace = interface->activeWorkspace();
    const Ptr<ToolbarPanel> panel = workspace->toolbarPanels()->add("Mine", "");
    const Ptr<ToolbarPanelList> panels = interface->allToolbarPanels();
    const Ptr<CommandDefinition> definition = define("Cmd", [](const Ptr<Command>&) {});
    const Ptr<CommandControl> control = panel->controls()->addCommand(definition);

    endHost();

    EXPECT_FALSE(adsk::core::Application::get());
    EXPECT_FALSE(interface->workspaces());
    EXPECT_EQ(workspace->id(), "");
    EXPECT_FALSE(workspace->activate());
    EXPECT_EQ(panels->count(), 0U);
    EXPECT_FALSE(panel->deleteMe());
    EXPECT_FALSE(definition->execute());
    EXPECT_FALSE(control->commandDefinition());
}

TEST_F(Handles, OfAnEndedHostAreReportedByTheNext) {
    const Ptr<Workspace> workspace = ui()->activeWorkspace();
    startHost();

    EXPECT_EQ(workspace->id(), "");

    EXPECT_EQ(lastError().code, static_cast<int>(UnderlyingObjectDeletedError));
    EXPECT_EQ(misused(), "Workspace::id");
}

TEST_F(Handles, OfDialogsShowNothingOnceTheirHostHasEnded) {
    const Ptr<FileDialog> files = ui()->createFileDialog();
    const Ptr<ProgressDialog> progress = ui()->createProgressDialog();

    endHost();

    EXPECT_EQ(files->showOpen(), DialogCancel);
    EXPECT_TRUE(progress->show("", "", 0, 1, 0));
    startHost();
    EXPECT_EQ(progressDialog(), std::nullopt);
}

TEST_F(Handles, OfOneHostAreOfNoUseInTheNext) {
    const Ptr<CommandDefinition> old = define("Cmd", [](const Ptr<Command>&) {});

    startHost();

    EXPECT_FALSE(ui()->commandDefinitions()->itemById("Cmd"));
    EXPECT_FALSE(old->isValid());
    EXPECT_TRUE(define("Cmd", [](const Ptr<Command>&) {}));
}

TEST_F(Handles, ACallOnADeletedObjectIsReported) {
    const Ptr<CommandDefinition> deleted = define("Cmd", [](const Ptr<Command>&) {});
    deleted->deleteMe();

    EXPECT_EQ(deleted->name(), "");

    EXPECT_EQ(misuses(),
              (std::vector<Misuse>{{.operation = "CommandDefinition::name",
                                    .text = "called on a deleted adsk::core::CommandDefinition"}}));
}

TEST_F(Handles, EventsOfAnEndedHostAllowHandlersToBeDestroyed) {
    const Ptr<ApplicationCommandEvent> event = ui()->commandStarting();
    auto handler = std::make_unique<OnApplication>([](const auto&) {});
    event->add(handler.get());

    endHost();
    handler.reset();

    EXPECT_FALSE(event->sender());
}

TEST_F(Handles, OfEventsEndWithTheirSender) {
    const Ptr<CommandDefinition> definition = define("Cmd", [](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "", true);
    });
    const Ptr<ApplicationCommandEvent> ofTheHost = ui()->commandStarting();
    const Ptr<CommandCreatedEvent> ofTheDefinition = definition->commandCreated();
    pressCommand("Cmd");
    const Ptr<CommandEvent> ofTheCommand = openDialog()->execute();
    OnCommand onCommand([](const auto&) {});
    OnCreated onCreated([](const auto&) {});
    OnApplication onApplication([](const auto&) {});

    pressCancel();
    EXPECT_FALSE(ofTheCommand->add(&onCommand));
    EXPECT_TRUE(ofTheDefinition->add(&onCreated));
    definition->deleteMe();
    EXPECT_FALSE(ofTheDefinition->remove(&onCreated));
    EXPECT_TRUE(ofTheHost->add(&onApplication));
    EXPECT_EQ(misused(), "Event::add Event::remove");
    startHost();
    EXPECT_FALSE(ofTheHost->add(&onApplication));

    EXPECT_EQ(lastError().code, static_cast<int>(UnderlyingObjectDeletedError));
    EXPECT_EQ(lastError().description,
              "Event::add: the adsk::core::ApplicationCommandEvent was deleted or closed");
    EXPECT_EQ(misused(), "Event::add");
}

TEST_F(Handles, ADestroyedHandlerIsNotCalled) {
    define("Cmd", [](const Ptr<Command>&) {});
    {
        OnApplication handler([this](const auto&) { note("starting"); });
        ui()->commandStarting()->add(&handler);
        pressCommand("Cmd");
    }

    pressCommand("Cmd");

    EXPECT_EQ(noted(), "starting");
}

TEST_F(Handles, OfAChildSurviveTheirDialog) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        const Ptr<CommandInputs> tab = inputs->addTabCommandInput("tab", "")->children();
        const Ptr<TableCommandInput> table = tab->addTableCommandInput("table", "", 1, "1");
        table->addCommandInput(tab->addStringValueInput("cell", ""), 0, 0);
        tab->addDropDownCommandInput("list", "", TextListDropDownStyle)
            ->listItems()
            ->add("a", true);
    });
    const Ptr<CommandInputs> inputs = openDialog()->commandInputs();
    const Ptr<TableCommandInput> table = inputs->itemById("table");
    const Ptr<CommandInput> cell = inputs->itemById("cell");
    const Ptr<ListItem> item =
        Ptr<DropDownCommandInput>(inputs->itemById("list"))->listItems()->item(0);

    pressCancel();

    EXPECT_FALSE(table->getInputAtPosition(0, 0));
    EXPECT_EQ(table->rowCount(), 0);
    EXPECT_FALSE(table->addCommandInput(cell, 0, 0));
    EXPECT_FALSE(cell->parentCommandInput());
    EXPECT_FALSE(cell->commandInputs());
    EXPECT_EQ(item->name(), "");
    EXPECT_FALSE(cell->deleteMe());
    EXPECT_EQ(misused(),
              "TableCommandInput::getInputAtPosition TableCommandInput::rowCount "
              "TableCommandInput::addCommandInput CommandInput::parentCommandInput "
              "CommandInput::commandInputs ListItem::name CommandInput::deleteMe");
}

TEST_F(Handles, CallsOfAModuleAreCountedOnceUnderTheClassThatDeclaresThem) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addBoolValueInput("box", "", true);
        gate::reset();
        const Ptr<CommandInput> box = inputs->itemById("box");
        (void)box->id();
        (void)box->isVisible();
        box->isVisible(true);
    });

    EXPECT_EQ(gate::counts(), (std::map<std::string, std::uint64_t>{{"CommandInput::id", 1},
                                                                    {"CommandInput::isVisible", 2},
                                                                    {"CommandInputs::itemById", 1},
                                                                    {"Command::inputChanged", 1},
                                                                    {"Event::add", 1}}));
}

TEST_F(Handles, ARefusedCallDoesNothingAndReturnsNull) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        gate::reset();
        gate::refuse("CommandInputs::addBoolValueInput", 2);
        EXPECT_TRUE(inputs->addBoolValueInput("a", "", true));
        EXPECT_FALSE(inputs->addBoolValueInput("b", "", true));
        EXPECT_TRUE(inputs->addBoolValueInput("c", "", true));
        EXPECT_EQ(inputs->count(), 2U);
    });
}

}  // namespace
}  // namespace host
