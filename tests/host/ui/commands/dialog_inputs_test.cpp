#include "tests/host/ui/host_test.h"

namespace host {
namespace {

using namespace adsk::core;

/// A dialog with everything that the user can change, in each kind of place.
class InputChanged : public HostTest {
protected:
    explicit InputChanged(const HostSetup& setup = {}) : HostTest(setup) {}

    void openDialogOfFields() {
        all = openWith([](const Ptr<CommandInputs>& inputs) {
            const Ptr<CommandInputs> first = inputs->addTabCommandInput("first", "")->children();
            first->addStringValueInput("text", "", "old");
            first->addBoolValueInput("button", "", false);
            first->addTextBoxCommandInput("box", "", "old", 2, false);
            fill(first->addDropDownCommandInput("list", "", TextListDropDownStyle)->listItems());
            fill(first->addRadioButtonGroupCommandInput("radio")->listItems());
            fill(first->addButtonRowCommandInput("row", "", true)->listItems());
            const Ptr<TableCommandInput> table = first->addTableCommandInput("table", "", 2, "1:1");
            table->addCommandInput(first->addStringValueInput("cell", ""), 0, 0);
            table->addToolbarCommandInput(first->addBoolValueInput("tool", "", false));
            inputs->addTabCommandInput("second", "")->children()->addStringValueInput("far", "");
            inputs->addBoolValueInput("top", "", true);
        });
    }

    static void fill(const Ptr<ListItems>& items) {
        items->add("one", false);
        items->add("two", false);
    }

    /// Opens a dialog whose handler of the input "go" is `react`.
    void openReacting(const std::function<void(const Ptr<CommandInputs>&)>& build,
                      const std::function<void(const Ptr<CommandInputs>&)>& react) {
        all = open([&](const Ptr<Command>& command) {
            build(command->commandInputs());
            traceChanges(command);
            on<OnChanged>(command->inputChanged(), [react](const auto& args) {
                if (args->input()->id() == "go") {
                    react(args->inputs());
                }
            });
        });
    }

    /// The changes that are reported when "go" is pressed: its handler is `react`, in a dialog of
    /// "go" and what `build` adds.
    std::string changesAfterGo(const std::function<void(const Ptr<CommandInputs>&)>& build,
                               const std::function<void(const Ptr<CommandInputs>&)>& react) {
        openReacting(
            [&](const Ptr<CommandInputs>& inputs) {
                inputs->addBoolValueInput("go", "", false);
                build(inputs);
            },
            react);
        click(all->itemById("go"));
        return noted();
    }

    static Ptr<DropDownCommandInput> addList(const Ptr<CommandInputs>& inputs,
                                             const std::string& id) {
        return inputs->addDropDownCommandInput(id, "", TextListDropDownStyle);
    }

    static Ptr<ListItems> itemsOfList(const Ptr<CommandInputs>& inputs) {
        return Ptr<DropDownCommandInput>(inputs->itemById("list"))->listItems();
    }

    Ptr<CommandInputs> all;
};

/// The same under each of the settings for changes made by code.
class ChangedByCode : public InputChanged {
protected:
    ChangedByCode() : InputChanged(HostSetup()) {}

    void restart(CodeChanges changes) {
        HostSetup setup;
        setup.codeChanges = changes;
        startHost(setup);
    }

    /// Presses "go", whose handler changes a drop-down, a text, a button and a button row.
    std::string changesOf(CodeChanges changes) {
        restart(changes);
        return changesAfterGo(
            [](const Ptr<CommandInputs>& inputs) {
                fill(addList(inputs, "list")->listItems());
                inputs->addStringValueInput("text", "");
                inputs->addBoolValueInput("button", "", false);
                fill(inputs->addButtonRowCommandInput("row", "", false)->listItems());
            },
            [](const Ptr<CommandInputs>& inputs) {
                itemsOfList(inputs)->item(1)->isSelected(true);
                Ptr<StringValueCommandInput>(inputs->itemById("text"))->value("new");
                Ptr<BoolValueCommandInput>(inputs->itemById("button"))->value(true);
                Ptr<ButtonRowCommandInput>(inputs->itemById("row"))
                    ->listItems()
                    ->item(0)
                    ->isSelected(true);
                inputs->itemById("text")->isVisible(false);
            });
    }
};

TEST_F(InputChanged, IsFiredForEachChangeByTheUser) {
    openDialogOfFields();

    click(all->itemById("button"));
    pasteText(all->itemById("text"), "new");
    chooseItem(all->itemById("list"), "two");
    chooseItem(all->itemById("radio"), 0);
    chooseItem(all->itemById("row"), "one");
    click(all->itemById("top"));

    EXPECT_EQ(noted(), "button text list radio row top");
}

TEST_F(InputChanged, AClickOnAButtonTogglesItsValue) {
    openDialogOfFields();
    const Ptr<BoolValueCommandInput> button = all->itemById("button");

    click(button);
    EXPECT_TRUE(button->value());

    click(button);
    EXPECT_FALSE(button->value());
}

TEST_F(InputChanged, ATypedStringReplacesTheOldOneAndIsReportedForEachCharacter) {
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addStringValueInput("text", "", "old");
        on<OnChanged>(command->inputChanged(), [this](const auto& args) {
            note(Ptr<StringValueCommandInput>(args->input())->value());
        });
    });

    typeText(openDialog()->commandInputs()->itemById("text"), "a\xC3\xA9z");

    EXPECT_EQ(noted(), "a a\xC3\xA9 a\xC3\xA9z");
}

TEST_F(InputChanged, AnEmptyTypedStringIsReportedOnce) {
    openDialogOfFields();

    typeText(all->itemById("box"), "");

    EXPECT_EQ(noted(), "box");
    EXPECT_EQ(Ptr<TextBoxCommandInput>(all->itemById("box"))->text(), "");
}

TEST_F(InputChanged, ChoosingTheChosenItemChangesNothing) {
    openDialogOfFields();
    chooseItem(all->itemById("list"), "two");
    noted();

    chooseItem(all->itemById("list"), "two");

    EXPECT_EQ(noted(), "");
}

TEST_F(InputChanged, InputsIsTheCollectionThatOwnsTheChangedInput) {
    open([this](const Ptr<Command>& command) {
        const Ptr<CommandInputs> inputs = command->commandInputs();
        inputs->addBoolValueInput("top", "", true);
        const Ptr<CommandInputs> tab = inputs->addTabCommandInput("tab", "")->children();
        const Ptr<TableCommandInput> table = tab->addTableCommandInput("table", "", 1, "1");
        table->addCommandInput(tab->addBoolValueInput("cell", "", false), 0, 0);
        table->addToolbarCommandInput(tab->addBoolValueInput("tool", "", false));
        on<OnChanged>(command->inputChanged(), [this](const auto& args) {
            note(args->inputs()->item(0)->id() + (args->inputs()->itemById("table") ? "+" : "-"));
        });
    });
    const Ptr<CommandInputs> inputs = openDialog()->commandInputs();

    click(inputs->itemById("top"));
    click(inputs->itemById("cell"));
    click(inputs->itemById("tool"));

    EXPECT_EQ(noted(), "top+ table+ table+");
}

TEST_F(InputChanged, AChangeOfTabComesAsTheTabBarWithTheCommandsInputs) {
    open([this](const Ptr<Command>& command) {
        command->commandInputs()->addTabCommandInput("first", "");
        command->commandInputs()->addTabCommandInput("second", "");
        on<OnChanged>(command->inputChanged(), [this](const auto& args) {
            const Ptr<TabCommandInput> second = args->inputs()->itemById("second");
            note(args->input()->id() + (second->isActive() ? "+" : "-"));
            EXPECT_EQ(args->inputs(), openDialog()->commandInputs());
            EXPECT_FALSE(args->inputs()->itemById("APITabBar"));
            EXPECT_EQ(args->input()->parentCommand(), openDialog());
        });
        on<OnValidate>(command->validateInputs(), [this](const auto&) { note("validate"); });
    });
    noted();

    activateTab(openDialog()->commandInputs()->itemById("second"));

    EXPECT_EQ(noted(), "APITabBar+");
}

TEST_F(InputChanged, ActivatingTheActiveTabIsNotReported) {
    openDialogOfFields();
    const Ptr<TabCommandInput> first = all->itemById("first");
    EXPECT_TRUE(first->isActive());

    activateTab(first);
    EXPECT_EQ(noted(), "");

    click(all->itemById("second"));
    EXPECT_EQ(noted(), "APITabBar");
    EXPECT_FALSE(first->isActive());
}

TEST_F(InputChanged, SelectingARowIsNotReported) {
    openDialogOfFields();
    const Ptr<TableCommandInput> table = all->itemById("table");

    selectRow(table, 0);

    EXPECT_EQ(noted(), "");
    EXPECT_EQ(table->selectedRow(), 0);
}

TEST_F(InputChanged, NothingIsReportedWhileTheCommandIsCreated) {
    openDialogOfFields();

    EXPECT_EQ(noted(), "");
}

TEST_F(InputChanged, CanBeForcedForAnInputThatTheUserCannotChange) {
    openDialogOfFields();
    all->itemById("cell")->isVisible(false);

    reportChange(all->itemById("cell"));

    EXPECT_EQ(noted(), "cell");
}

TEST_F(ChangedByCode, WithNoneNothingElseIsReported) {
    EXPECT_EQ(changesOf(CodeChanges::None), "go");
}

TEST_F(ChangedByCode, WithListsASelectedItemOfADropDownIsReported) {
    EXPECT_EQ(changesOf(CodeChanges::Lists), "go list");
}

TEST_F(ChangedByCode, WithAllEachChangedValueIsReported) {
    EXPECT_EQ(changesOf(CodeChanges::All), "go list text button row");
}

TEST_F(ChangedByCode, IsReportedWhenTheRunningHandlersHaveReturned) {
    open([this](const Ptr<Command>& command) {
        const Ptr<CommandInputs> inputs = command->commandInputs();
        inputs->addBoolValueInput("go", "", false);
        fill(inputs->addDropDownCommandInput("list", "", TextListDropDownStyle)->listItems());
        on<OnChanged>(command->inputChanged(), [this](const auto& args) {
            note(args->input()->id() + "(");
            Ptr<DropDownCommandInput>(args->inputs()->itemById("list"))
                ->listItems()
                ->item(1)
                ->isSelected(true);
            note(")");
        });
        on<OnValidate>(command->validateInputs(), [this](const auto&) { note("validate"); });
    });
    noted();

    click(openDialog()->commandInputs()->itemById("go"));

    EXPECT_EQ(noted(), "go( ) list( ) validate");
}

TEST_F(ChangedByCode, IsNotReportedForAListMadeInTheSameNotification) {
    EXPECT_EQ(changesAfterGo([](const Ptr<CommandInputs>&) {},
                             [](const Ptr<CommandInputs>& inputs) {
                                 const Ptr<ListItems> made = addList(inputs, "made")->listItems();
                                 fill(made);
                                 made->item(0)->isSelected(true);
                             }),
              "go");
}

TEST_F(ChangedByCode, IsNotReportedForAnItemAddedAsSelected) {
    EXPECT_EQ(changesAfterGo(
                  [](const Ptr<CommandInputs>& inputs) { addList(inputs, "list"); },
                  [](const Ptr<CommandInputs>& inputs) { itemsOfList(inputs)->add("new", true); }),
              "go");
}

TEST_F(ChangedByCode, IsNotReportedForTheItemThatIsAlreadySelected) {
    EXPECT_EQ(changesAfterGo(
                  [](const Ptr<CommandInputs>& inputs) {
                      addList(inputs, "list")->listItems()->add("one", true);
                  },
                  [](const Ptr<CommandInputs>& inputs) {
                      itemsOfList(inputs)->item(0)->isSelected(true);
                  }),
              "go");
}

TEST_F(ChangedByCode, IsNotReportedForAListDeletedMeanwhile) {
    EXPECT_EQ(
        changesAfterGo(
            [](const Ptr<CommandInputs>& inputs) { fill(addList(inputs, "list")->listItems()); },
            [](const Ptr<CommandInputs>& inputs) {
                itemsOfList(inputs)->item(0)->isSelected(true);
                inputs->itemById("list")->deleteMe();
            }),
        "go");
}

}  // namespace
}  // namespace host
