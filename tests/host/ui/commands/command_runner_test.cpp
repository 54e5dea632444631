#include "tests/host/ui/host_test.h"

namespace host {
namespace {

using namespace adsk::core;

class CommandLife : public HostTest {
protected:
    /// A command with one check box, whose events are noted.
    void defineDialog(const std::string& id) {
        define(id, [this](const Ptr<Command>& command) {
            note("commandCreated");
            command->commandInputs()->addBoolValueInput("box", "Box", true);
            traceLife(command);
        });
    }

    /// A command without inputs, whose events are noted.
    Ptr<CommandDefinition> defineButton(const std::string& id) {
        return define(id, [this](const Ptr<Command>& command) { traceLife(command); });
    }

    /// What is noted when another command is started over the dialog that `build` makes.
    std::string notedWhenPreEmpted(const Build& build) {
        define("Dialog", build);
        define("Button", [](const Ptr<Command>&) {});
        pressCommand("Dialog");
        noted();
        pressCommand("Button");
        return noted();
    }

    /// Gives the host a history of the model, whose use is noted.
    void traceHistory() {
        ui::ModelHistory& history = host::ApplicationObject::current()->ui().history;
        history.begin = [this] {
            note("mark");
            return std::uint64_t{1};
        };
        history.end = [](std::uint64_t) {};
        history.takeBack = [this](std::uint64_t) { note("back"); };
        history.keep = [](std::uint64_t) {};
    }
};

TEST_F(CommandLife, GoesThroughItsEventsInOrderUntilOk) {
    traceHost();
    defineDialog("Dialog");

    pressCommand("Dialog");
    EXPECT_EQ(noted(), "starting:Dialog commandCreated created activate validateInputs");

    click(openDialog()->commandInputs()->itemById("box"));
    EXPECT_EQ(noted(), "inputChanged validateInputs");

    pressOk();
    EXPECT_EQ(noted(), "execute deactivate destroy=1 terminated:Dialog=1");
}

TEST_F(CommandLife, CancelDoesNotExecute) {
    traceHost();
    defineDialog("Dialog");
    pressCommand("Dialog");
    noted();

    pressCancel();

    EXPECT_EQ(noted(), "deactivate destroy=2 terminated:Dialog=2");
}

TEST_F(CommandLife, WithoutInputsExecutesAtOnceAndShowsNothing) {
    traceHost();
    defineButton("Button");

    pressCommand("Button");

    EXPECT_EQ(noted(), "starting:Button created execute deactivate destroy=1 terminated:Button=1");
    EXPECT_FALSE(openDialog());
}

TEST_F(CommandLife, WithInputsIgnoresAutoExecute) {
    define("Dialog", [this](const Ptr<Command>& command) {
        command->isAutoExecute(true);
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        traceLife(command);
    });

    pressCommand("Dialog");

    EXPECT_EQ(noted(), "activate validateInputs");
}

TEST_F(CommandLife, WithoutInputsAndAutoExecuteWaits) {
    define("Button", [this](const Ptr<Command>& command) {
        command->isAutoExecute(false);
        traceLife(command);
    });

    pressCommand("Button");

    EXPECT_EQ(noted(), "");
    EXPECT_EQ(ui()->activeCommand(), "Button");
}

TEST_F(CommandLife, WithoutInputsButWithADialogSizeShowsAnEmptyDialogAndWaits) {
    define("Empty", [this](const Ptr<Command>& command) {
        command->setDialogInitialSize(800, 600);
        traceLife(command);
    });

    pressCommand("Empty");

    EXPECT_TRUE(openDialog());
    EXPECT_EQ(noted(), "activate validateInputs");
}

TEST_F(CommandLife, WithoutInputsButWithAButtonTextShowsAnEmptyDialogAndWaits) {
    define("Empty", [](const Ptr<Command>& command) { command->okButtonText("Save"); });

    pressCommand("Empty");

    EXPECT_TRUE(openDialog());
}

TEST_F(CommandLife, WithoutInputsIsAbortedWhenItsCreatedHandlerThrows) {
    traceHost();
    define("Broken", [this](const Ptr<Command>& command) {
        traceLife(command);
        command->okButtonText("Save");
        throw std::runtime_error("cannot");
    });

    pressCommand("Broken");

    EXPECT_EQ(noted(), "starting:Broken created deactivate destroy=3 terminated:Broken=3");
    EXPECT_EQ(uncaughtExceptions(), (std::vector<UncaughtException>{{.event = "OnCommandCreated",
                                                                     .inputId = "",
                                                                     .type = "std::runtime_error",
                                                                     .text = "cannot"}}));
}

TEST_F(CommandLife, ShowsTheInputsAddedBeforeItsCreatedHandlerThrows) {
    define("Broken", [](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        throw std::exception();
    });

    pressCommand("Broken");

    EXPECT_EQ(openDialog()->commandInputs()->count(), 1U);
    EXPECT_EQ(uncaughtExceptions(),
              (std::vector<UncaughtException>{{"OnCommandCreated", "", "std::exception", ""}}));
}

TEST_F(CommandLife, AnExceptionInExecuteEndsWithCompleted) {
    traceHost();
    define("Button", [this](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [](const auto&) { throw std::exception(); });
    });

    pressCommand("Button");

    EXPECT_EQ(noted(), "starting:Button created terminated:Button=1");
    EXPECT_EQ(uncaughtExceptions(),
              (std::vector<UncaughtException>{
                  {.event = "OnExecute", .inputId = "", .type = "std::exception", .text = ""}}));
}

TEST_F(CommandLife, AFailedExecutionEndsWithAborted) {
    traceHost();
    define("Button", [this](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [](const auto& args) { args->executeFailed(true); });
    });

    pressCommand("Button");

    EXPECT_EQ(noted(), "starting:Button created terminated:Button=3");
}

TEST_F(CommandLife, ACancelledStartCreatesNothing) {
    traceHost();
    defineButton("Button");
    on<OnApplication>(ui()->commandStarting(), [](const auto& args) { args->isCanceled(true); });

    pressCommand("Button");

    EXPECT_EQ(noted(), "starting:Button");
}

TEST_F(CommandLife, AnotherCommandExecutesAValidDialogAndEndsItPreEmpted) {
    traceHost();
    defineDialog("Dialog");
    defineButton("Button");
    pressCommand("Dialog");
    noted();

    pressCommand("Button");

    EXPECT_EQ(noted(),
              "starting:Button execute deactivate destroy=4 terminated:Dialog=4 "
              "created execute deactivate destroy=1 terminated:Button=1");
}

TEST_F(CommandLife, APreEmptedCommandThatOptsOutIsNotExecuted) {
    EXPECT_EQ(notedWhenPreEmpted([this](const Ptr<Command>& command) {
                  command->isExecutedWhenPreEmpted(false);
                  command->commandInputs()->addBoolValueInput("box", "Box", true);
                  traceLife(command);
              }),
              "deactivate destroy=4");
}

TEST_F(CommandLife, APreEmptedCommandWithInvalidInputsIsNotExecuted) {
    EXPECT_EQ(notedWhenPreEmpted([this](const Ptr<Command>& command) {
                  command->commandInputs()->addSelectionInput("pick", "Pick", "Pick one");
                  traceLife(command);
              }),
              "deactivate destroy=4");
}

TEST_F(CommandLife, AnExecuteFromTerminatedStartsANewCommandAfterAllNotifications) {
    defineDialog("Dialog");
    on<OnApplication>(ui()->commandTerminated(), [this](const auto& args) {
        if (args->terminationReason() == CompletedTerminationReason) {
            EXPECT_TRUE(args->commandDefinition()->execute());
        }
        note("first");
    });
    on<OnApplication>(ui()->commandTerminated(), [this](const auto&) { note("second"); });
    pressCommand("Dialog");
    noted();

    pressOk();

    EXPECT_EQ(noted(),
              "execute deactivate destroy=1 first second commandCreated activate validateInputs");
    EXPECT_TRUE(openDialog());
}

TEST_F(CommandLife, ACommandThatKeepsRestartingItselfIsStoppedAfterTenStarts) {
    const Ptr<CommandDefinition> button = defineButton("Button");
    on<OnApplication>(ui()->commandTerminated(), [button](const auto&) { button->execute(); });

    EXPECT_EQ(misuseOf([] { pressCommand("Button"); }),
              "the command Button was started 10 times without an action of the user in between: "
              "it keeps starting itself");

    EXPECT_FALSE(openDialog());
    EXPECT_EQ(ui()->activeCommand(), "SelectCommand");
}

TEST_F(CommandLife, RestartsBetweenUserActionsAreNotLimited) {
    traceHost();
    defineDialog("Dialog");
    on<OnApplication>(ui()->commandTerminated(),
                      [](const auto& args) { args->commandDefinition()->execute(); });
    pressCommand("Dialog");

    for (int i = 0; i < 25; ++i) {
        noted();
        pressOk();
    }

    EXPECT_EQ(noted(),
              "execute deactivate destroy=1 terminated:Dialog=1 "
              "starting:Dialog commandCreated created activate validateInputs");
}

TEST_F(CommandLife, TheEndOfTheDocumentEndsItWithTheSession) {
    traceHost();
    defineDialog("Dialog");
    pressCommand("Dialog");
    noted();

    ApplicationObject::current()->setActiveDocument(nullptr);

    EXPECT_EQ(noted(), "deactivate destroy=5 terminated:Dialog=5");
}

TEST_F(CommandLife, TheEndOfTheHostEndsItWithTheSession) {
    defineDialog("Dialog");
    pressCommand("Dialog");
    noted();

    endHost();

    EXPECT_EQ(noted(), "deactivate destroy=5");
}

TEST_F(CommandLife, TerminateActiveCommandInsideACommandEventFailsAndIsReported) {
    define("Button", [this](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [this](const auto&) {
            note(ui()->terminateActiveCommand() ? "terminated" : "refused");
        });
    });

    pressCommand("Button");

    EXPECT_EQ(noted(), "refused");
    EXPECT_EQ(misuses(), (std::vector<Misuse>{{.operation = "UserInterface::terminateActiveCommand",
                                               .text = "called inside an event of a command",
                                               .event = "OnExecute"}}));
}

TEST_F(CommandLife, TerminateActiveCommandElsewhereCancelsTheDialog) {
    defineDialog("Dialog");
    pressCommand("Dialog");
    noted();

    EXPECT_TRUE(ui()->terminateActiveCommand());

    EXPECT_EQ(noted(), "deactivate destroy=2");
}

TEST_F(CommandLife, AnExecuteRequestedByAModuleStartsAtTheNextDrain) {
    const Ptr<CommandDefinition> button = defineButton("Button");

    enterModule("run", "", [&] { button->execute(); });
    EXPECT_EQ(noted(), "");

    drainRequests();
    EXPECT_EQ(noted(), "execute deactivate destroy=1");
}

TEST_F(CommandLife, ADefinitionDeletedMeanwhileIsNotStarted) {
    const Ptr<CommandDefinition> button = defineButton("Button");

    enterModule("run", "", [&] {
        button->execute();
        button->deleteMe();
    });
    drainRequests();

    EXPECT_EQ(noted(), "");
}

TEST_F(CommandLife, DoExecuteAcceptsTheDialogAfterTheNotification) {
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        traceLife(command);
        on<OnChanged>(command->inputChanged(), [this](const auto& args) {
            EXPECT_TRUE(args->input()->parentCommand()->doExecute(true));
            note("asked");
        });
    });
    noted();

    click(openDialog()->commandInputs()->itemById("box"));

    EXPECT_EQ(noted(), "inputChanged asked validateInputs execute deactivate destroy=1");
}

TEST_F(CommandLife, DoExecuteCanLeaveTheDialogOpen) {
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        on<OnCommand>(command->execute(), [this](const auto&) { note("execute"); });
    });

    enterModule("elsewhere", "", [] { openDialog()->doExecute(false); });
    click(openDialog()->commandInputs()->itemById("box"));

    EXPECT_EQ(noted(), "execute");
    EXPECT_TRUE(openDialog());
}

// Command_doExecute: a command without inputs has nothing else that executes it.
TEST_F(CommandLife, DoExecuteRunsACommandWithoutInputs) {
    define("Button", [this](const Ptr<Command>& command) {
        command->isAutoExecute(false);
        traceLife(command);
        EXPECT_TRUE(command->doExecute(true));
    });

    pressCommand("Button");

    EXPECT_EQ(noted(), "execute deactivate destroy=1");
}

TEST_F(CommandLife, DoExecuteCanComeLaterAndLeaveTheCommandRunning) {
    Ptr<Command> running;
    define("Button", [&](const Ptr<Command>& command) {
        command->isAutoExecute(false);
        traceLife(command);
        running = command;
    });
    pressCommand("Button");
    EXPECT_EQ(noted(), "");

    enterModule("elsewhere", "", [&] { EXPECT_TRUE(running->doExecute(false)); });
    drainRequests();
    EXPECT_EQ(noted(), "execute");
    EXPECT_EQ(ui()->activeCommand(), "Button");

    enterModule("elsewhere", "", [&] { EXPECT_TRUE(running->doExecute(true)); });
    drainRequests();
    EXPECT_EQ(noted(), "execute deactivate destroy=1");
    EXPECT_FALSE(running->doExecute(true));
    EXPECT_EQ(misused(), "Command::doExecute");
}

// Threading_UM: "SelectCommand" runs whenever no other command does, and to execute its definition
// ends the one that runs.
TEST_F(CommandLife, SelectCommandRunsWhileNoOtherDoes) {
    EXPECT_EQ(ui()->activeCommand(), "SelectCommand");
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        command->isExecutedWhenPreEmpted(false);
        traceLife(command);
    });
    EXPECT_EQ(ui()->activeCommand(), "Dialog");
    noted();

    EXPECT_TRUE(ui()->commandDefinitions()->itemById("SelectCommand")->execute());

    EXPECT_EQ(noted(), "deactivate destroy=4");
    EXPECT_EQ(ui()->activeCommand(), "SelectCommand");
}

TEST_F(CommandLife, SelectCommandEndsACommandThatItselfExecutesIt) {
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        command->isExecutedWhenPreEmpted(false);
        traceLife(command);
        on<OnChanged>(command->inputChanged(), [](const auto&) {
            ui()->commandDefinitions()->itemById("SelectCommand")->execute();
        });
    });
    noted();

    click(openDialog()->commandInputs()->itemById("box"));

    EXPECT_EQ(noted(), "inputChanged validateInputs deactivate destroy=4");
    EXPECT_FALSE(openDialog());
}

TEST_F(CommandLife, APreviewIsTakenBackBeforeTheNextOneAndBeforeExecute) {
    traceHistory();
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        on<OnCommand>(command->executePreview(), [this](const auto&) { note("preview"); });
        on<OnCommand>(command->execute(), [this](const auto&) { note("execute"); });
    });
    EXPECT_EQ(noted(), "mark preview");

    click(openDialog()->commandInputs()->itemById("box"));
    EXPECT_EQ(noted(), "back mark preview");

    pressOk();
    EXPECT_EQ(noted(), "back mark execute");
}

TEST_F(CommandLife, APreviewThatIsAValidResultReplacesTheExecution) {
    traceHistory();
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
        on<OnCommand>(command->executePreview(),
                      [](const auto& args) { args->isValidResult(true); });
        traceLife(command);
    });
    noted();

    pressOk();

    EXPECT_EQ(noted(), "deactivate destroy=1");
}

TEST_F(CommandLife, AFailedExecutionIsTakenBack) {
    traceHistory();
    define("Button", [this](const Ptr<Command>& command) {
        on<OnCommand>(command->execute(), [](const auto& args) { args->executeFailed(true); });
    });

    pressCommand("Button");

    EXPECT_EQ(noted(), "mark back");
}

/// A host that also announces its own command for selecting.
class IdleCommand : public HostTest {
protected:
    IdleCommand() : HostTest(setup()) { traceHost(); }

    static HostSetup setup() {
        HostSetup setup;
        setup.selectCommand = true;
        return setup;
    }
};

TEST_F(IdleCommand, StartsAfterEachCommand) {
    define("Button", [](const Ptr<Command>&) {});

    pressCommand("Button");
    pressCommand("Button");

    EXPECT_EQ(noted(),
              "starting:Button created terminated:Button=1 starting:SelectCommand "
              "starting:Button created terminated:Button=1 starting:SelectCommand");
}

TEST_F(IdleCommand, WaitsForTheEndOfADialog) {
    define("Dialog", [](const Ptr<Command>& command) {
        command->commandInputs()->addBoolValueInput("box", "Box", true);
    });
    pressCommand("Dialog");
    EXPECT_EQ(noted(), "starting:Dialog created");

    pressCancel();

    EXPECT_EQ(noted(), "terminated:Dialog=2 starting:SelectCommand");
}

TEST_F(IdleCommand, StartsOnceUntilAnotherCommandRuns) {
    drainRequests();
    drainRequests();

    EXPECT_EQ(noted(), "starting:SelectCommand");
}

TEST_F(IdleCommand, GivesWayToTheCommandsThatItsHandlersStart) {
    const Ptr<CommandDefinition> button = define("Button", [](const Ptr<Command>&) {});
    on<OnApplication>(
        ui()->commandStarting(), [&, requested = false](const auto& arguments) mutable {
            if (arguments->commandId() == "SelectCommand" && !std::exchange(requested, true)) {
                button->execute();
            }
        });

    drainRequests();

    EXPECT_EQ(noted(),
              "starting:SelectCommand starting:Button created terminated:Button=1 "
              "starting:SelectCommand");
}

}  // namespace
}  // namespace host
