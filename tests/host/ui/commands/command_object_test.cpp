#include "tests/host/ui/host_test.h"

#include "host/base/last_error.h"

namespace host {
namespace {

using namespace adsk::core;

class CommandDialog : public HostTest {
protected:
    Ptr<Command> openBox(const Build& build = [](const Ptr<Command>&) {}) {
        open([build](const Ptr<Command>& command) {
            command->commandInputs()->addBoolValueInput("box", "Box", true);
            build(command);
        });
        return openDialog();
    }
};

TEST_F(CommandDialog, HasTheButtonsOkAndCancelByDefault) {
    const Ptr<Command> dialog = openBox();

    EXPECT_EQ(dialog->okButtonText(), "OK");
    EXPECT_EQ(dialog->cancelButtonText(), "Cancel");
}

TEST_F(CommandDialog, TakesOtherButtonTexts) {
    const Ptr<Command> dialog = openBox([](const Ptr<Command>& command) {
        EXPECT_TRUE(command->okButtonText("Save Changes and Close"));
        EXPECT_TRUE(command->cancelButtonText("Close"));
    });

    EXPECT_EQ(dialog->okButtonText(), "Save Changes and Close");
    EXPECT_EQ(dialog->cancelButtonText(), "Close");
}

TEST_F(CommandDialog, OpensWithTheSizeThatItWasGiven) {
    openBox(
        [](const Ptr<Command>& command) { EXPECT_TRUE(command->setDialogInitialSize(800, 600)); });

    EXPECT_EQ(dialogSize(), (ui::DialogSize{800, 600}));
}

TEST_F(CommandDialog, IsNotSmallerThanItsMinimumSize) {
    openBox([](const Ptr<Command>& command) {
        command->setDialogInitialSize(800, 100);
        command->setDialogMinimumSize(300, 300);
    });

    EXPECT_EQ(dialogSize(), (ui::DialogSize{800, 300}));
}

TEST_F(CommandDialog, RemembersTheSizeThatTheUserGaveIt) {
    openBox([](const Ptr<Command>& command) { command->setDialogInitialSize(800, 600); });
    resizeDialog(1000, 700);
    pressCancel();

    pressCommand("Dialog");

    EXPECT_EQ(dialogSize(), (ui::DialogSize{1000, 700}));
}

TEST_F(CommandDialog, TakesNoInitialSizeOnceItShows) {
    const Ptr<Command> dialog = openBox();

    EXPECT_FALSE(dialog->setDialogInitialSize(10, 10));
    EXPECT_EQ(misuses(), (std::vector<Misuse>{{.operation = "Command::setDialogInitialSize",
                                               .text = "the dialog is already open"}}));
}

TEST_F(CommandDialog, KnowsItsDefinition) {
    const Ptr<Command> dialog = openBox();

    EXPECT_EQ(dialog->parentCommandDefinition(), ui()->commandDefinitions()->itemById("Dialog"));
    EXPECT_EQ(ui()->activeCommand(), "Dialog");
}

TEST_F(CommandDialog, ReturnsTheSameEventEachTime) {
    const Ptr<Command> dialog = openBox();

    EXPECT_EQ(dialog->execute(), dialog->execute());
    EXPECT_EQ(dialog->inputChanged(), dialog->inputChanged());
    EXPECT_EQ(dialog->execute()->sender(), dialog);
}

TEST_F(CommandDialog, OkIsRefusedWhenAHandlerFindsTheInputsInvalid) {
    openBox([this](const Ptr<Command>& command) {
        on<OnValidate>(command->validateInputs(), [](const auto& args) {
            EXPECT_TRUE(args->areInputsValid());
            EXPECT_EQ(args->inputs()->count(), 1U);
            args->areInputsValid(false);
        });
    });

    EXPECT_EQ(misuseOf(pressOk),
              "cannot press OK: a handler of the dialog finds the inputs invalid");
    EXPECT_TRUE(openDialog());
}

TEST_F(CommandDialog, OkIsRefusedWhenTheButtonIsNotVisible) {
    openBox([](const Ptr<Command>& command) { command->isOKButtonVisible(false); });

    EXPECT_EQ(misuseOf(pressOk), "cannot press OK: the dialog has no such button");
}

// Command_isOKButtonVisible: what is left closes the dialog, and says so.
TEST_F(CommandDialog, WithoutOkTheOtherButtonIsCalledClose) {
    const Ptr<Command> dialog = openBox();
    EXPECT_EQ(dialog->cancelButtonText(), "Cancel");

    dialog->isOKButtonVisible(false);
    EXPECT_EQ(dialog->cancelButtonText(), "Close");

    dialog->cancelButtonText("Leave");
    EXPECT_EQ(dialog->cancelButtonText(), "Leave");
}

TEST_F(CommandDialog, OkAndCancelNeedADialog) {
    EXPECT_EQ(misuseOf(pressOk), "cannot press OK: no dialog is open");
    EXPECT_EQ(misuseOf(pressCancel), "cannot press Cancel: no command runs");
}

TEST_F(CommandDialog, AnExceptionInInputChangedLeavesItOpenAndUsable) {
    openBox([this](const Ptr<Command>& command) {
        on<OnChanged>(command->inputChanged(),
                      [](const auto&) { throw std::invalid_argument("invalid stoi argument"); });
        traceChanges(command);
    });

    click(openDialog()->commandInputs()->itemById("box"));

    EXPECT_EQ(noted(), "box");
    EXPECT_TRUE(openDialog());
    EXPECT_EQ(uncaughtExceptions(),
              (std::vector<UncaughtException>{{.event = "OnInputChanged",
                                               .inputId = "box",
                                               .type = "std::invalid_argument",
                                               .text = "invalid stoi argument"}}));
}

TEST_F(CommandDialog, NothingCanBePressedWhileACommandIsAtWork) {
    openBox([this](const Ptr<Command>& command) {
        on<OnChanged>(command->inputChanged(), [this](const auto&) { note(misuseOf(pressOk)); });
    });

    click(openDialog()->commandInputs()->itemById("box"));

    EXPECT_EQ(noted(), "a command is at work: wait until it has answered");
    EXPECT_TRUE(openDialog());
}

TEST_F(CommandDialog, ItsInputsEndWithIt) {
    const Ptr<Command> dialog = openBox();
    const Ptr<CommandInput> box = dialog->commandInputs()->itemById("box");
    const Ptr<CommandInputs> inputs = dialog->commandInputs();

    pressOk();

    EXPECT_FALSE(dialog->isValid());
    EXPECT_FALSE(box->isValid());
    EXPECT_EQ(inputs->count(), 0U);
    EXPECT_EQ(box->id(), "");
    EXPECT_EQ(lastError().code, static_cast<int>(UnderlyingObjectDeletedError));
    EXPECT_EQ(misused(), "CommandInputs::count CommandInput::id");
}

}  // namespace
}  // namespace host
