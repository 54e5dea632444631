#include "host/session/dialog_view.h"

#include "tests/host/ui/host_test.h"

#include <string>

namespace host {
namespace {

using namespace adsk::core;

/// What is in a dialog, one word for each input: its kind, its id, and in parentheses its value.
std::string summary(const std::vector<InputView>& inputs) {
    std::string all;
    for (const InputView& each : inputs) {
        all += all.empty() ? "" : " ";
        all += each.kind + ":" + each.id + "(" + each.value + ")";
    }
    return all;
}

class DialogViews : public HostTest {};

TEST_F(DialogViews, EachKindOfInputIsReadWithItsValue) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addStringValueInput("line", "Line", "a");
        inputs->addTextBoxCommandInput("box", "Box", "<b>b</b>", 1, /*isReadOnly=*/true);
        inputs->addBoolValueInput("check", "Check", /*isCheckBox=*/true, "", true);
        inputs->addBoolValueInput("press", "Press", /*isCheckBox=*/false, "./icons")->text("Go");
        inputs->addImageCommandInput("image", "", "./c.png");
        const Ptr<DropDownCommandInput> list =
            inputs->addDropDownCommandInput("list", "List", TextListDropDownStyle);
        list->listItems()->add("one", false);
        list->listItems()->add("two", true, "./two");
        const Ptr<ButtonRowCommandInput> row = inputs->addButtonRowCommandInput("row", "", true);
        row->listItems()->add("x", true);
        row->listItems()->add("y", true);
        inputs->addSelectionInput("pick", "Pick", "Pick one");
    });

    const std::vector<InputView> inputs = readDialog().inputs;

    EXPECT_EQ(summary(inputs),
              "StringValue:line(a) TextBox:box(b) CheckBox:check(true) Button:press(false) "
              "Image:image() DropDown:list(two) ButtonRow:row(x, y) Selection:pick()");
    EXPECT_TRUE(inputs[1].readOnly);
    EXPECT_EQ(inputs[3].text + " " + inputs[3].picture, "Go ./icons");
    EXPECT_EQ(inputs[4].picture, "./c.png");
    EXPECT_EQ(inputs[5].items, (std::vector<ItemView>{{"one", "", false}, {"two", "./two", true}}));
    EXPECT_TRUE(inputs[7].active);
}

TEST_F(DialogViews, WhatIsHiddenOrDisabledIsReadAndMarked) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addStringValueInput("hidden", "")->isVisible(false);
        inputs->addStringValueInput("disabled", "")->isEnabled(false);
    });

    const std::vector<InputView> inputs = readDialog().inputs;

    EXPECT_EQ(summary(inputs), "StringValue:hidden() StringValue:disabled()");
    EXPECT_FALSE(inputs[0].visible);
    EXPECT_TRUE(inputs[0].enabled);
    EXPECT_TRUE(inputs[1].visible);
    EXPECT_FALSE(inputs[1].enabled);
}

TEST_F(DialogViews, InputsOfTabsAndGroupsAreInsideThem) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addTabCommandInput("first", "First")->children()->addStringValueInput("a", "");
        const Ptr<CommandInputs> second = inputs->addTabCommandInput("second", "")->children();
        const Ptr<GroupCommandInput> group = second->addGroupCommandInput("group", "");
        group->isExpanded(false);
        group->children()->addStringValueInput("b", "");
    });

    const std::vector<InputView> inputs = readDialog().inputs;

    EXPECT_EQ(summary(inputs), "Tab:first() Tab:second()");
    EXPECT_TRUE(inputs[0].active);
    EXPECT_FALSE(inputs[1].active);
    EXPECT_EQ(summary(inputs[0].inputs), "StringValue:a()");
    EXPECT_EQ(summary(inputs[1].inputs), "Group:group()");
    EXPECT_FALSE(inputs[1].inputs[0].active);
    EXPECT_EQ(summary(inputs[1].inputs[0].inputs), "StringValue:b()");
}

TEST_F(DialogViews, ATableHasItsCellsWithHiddenRowsMarkedAndItsToolbar) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        const Ptr<TableCommandInput> table = inputs->addTableCommandInput("table", "", 2, "1:0:2");
        table->addCommandInput(inputs->addStringValueInput("shown", "", "1"), 0, 0);
        table->addCommandInput(inputs->addStringValueInput("narrow", "", "2"), 0, 1);
        const Ptr<CommandInput> hidden = inputs->addStringValueInput("hidden", "", "3");
        hidden->isVisible(false);
        table->addCommandInput(hidden, 1, 0);
        table->addToolbarCommandInput(inputs->addBoolValueInput("add", "Add", false));
        table->selectedRow(0);
        inputs->addStringValueInput("after", "");
    });

    const std::vector<InputView> inputs = readDialog().inputs;

    ASSERT_EQ(summary(inputs), "Table:table() StringValue:after()");
    const TableContents& table = inputs[0].table;
    EXPECT_EQ(table.ratio, "1:0:2");
    EXPECT_EQ(table.shownColumns, (std::vector<int>{0, 2}));
    ASSERT_EQ(table.rows.size(), 2U);
    EXPECT_EQ(summary(table.rows[0].cells), "StringValue:shown(1) StringValue:narrow(2)");
    EXPECT_EQ(table.rows[0].cells[1].column, 1);
    EXPECT_TRUE(table.rows[0].shown);
    EXPECT_TRUE(table.rows[0].selected);
    EXPECT_EQ(summary(table.rows[1].cells), "StringValue:hidden(3)");
    EXPECT_FALSE(table.rows[1].shown);
    EXPECT_EQ(summary(table.toolbar), "Button:add(false)");
}

TEST_F(DialogViews, WhatLeftItsTableIsReadWithTheRowsAlone) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        const Ptr<TableCommandInput> table = inputs->addTableCommandInput("table", "", 1, "1");
        table->addCommandInput(inputs->addStringValueInput("first", "", "1"), 0, 0);
        table->addCommandInput(inputs->addStringValueInput("second", "", "2"), 0, 0);
        inputs->addStringValueInput("after", "");
    });

    EXPECT_EQ(summary(readDialog().inputs),
              "Table:table() StringValue:first(1) StringValue:after()");
    EXPECT_EQ(summary(readDialog(TableRows::Skip).inputs), "Table:table() StringValue:after()");
}

TEST_F(DialogViews, RowsOfATableAreReadOnRequestAlone) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        const Ptr<TableCommandInput> table = inputs->addTableCommandInput("table", "", 1, "1:1");
        for (int row = 0; row < 4; ++row) {
            const std::string text = std::to_string(row);
            const Ptr<CommandInput> cell = inputs->addStringValueInput("cell" + text, "", text);
            cell->isVisible(row != 1);
            table->addCommandInput(cell, row, 0, 0, row);
        }
        table->selectedRow(2);
        table->maximumVisibleRows(7);
    });

    const InputView view = readDialog(TableRows::Skip).inputs.at(0);

    EXPECT_TRUE(view.table.rows.empty());
    EXPECT_EQ(view.table.rowCount, 4);
    EXPECT_EQ(view.table.shownRows, (std::vector<int>{0, 2, 3}));
    EXPECT_EQ(view.table.selectedRow, 2);
    EXPECT_EQ(view.table.maximumRows, 7);
    const std::vector<RowView> rows = readRows(inputOfKey(view.key), {3, 1, 2, -1, 4});
    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(summary(rows[0].cells), "StringValue:cell3(3)");
    EXPECT_EQ(rows[0].cells[0].columnSpan, 3);
    EXPECT_EQ(summary(rows[1].cells), "StringValue:cell1(1)");
    EXPECT_FALSE(rows[1].shown);
    EXPECT_TRUE(rows[2].shown);
    EXPECT_TRUE(rows[2].selected);
}

TEST_F(DialogViews, EachInputIsFoundByItsKey) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addStringValueInput("same", "", "outside");
        const Ptr<CommandInputs> inside = inputs->addTabCommandInput("tab", "")->children();
        const Ptr<CommandInputs> group = inside->addGroupCommandInput("group", "")->children();
        group->addStringValueInput("same", "", "in the group");
        const Ptr<CommandInput> gone = inside->addStringValueInput("gone", "");
        inside->addStringValueInput("", "", "without an id");
        gone->deleteMe();
    });

    const std::vector<InputView> inputs = readDialog().inputs;
    const auto valueOf = [](std::uint32_t key) {
        const Ptr<StringValueCommandInput> found = inputOfKey(key);
        return found ? found->value() : "none";
    };

    const InputView& tab = inputs.at(1);
    EXPECT_EQ(valueOf(inputs[0].key), "outside");
    EXPECT_EQ(valueOf(tab.inputs.at(0).inputs.at(0).key), "in the group");
    EXPECT_EQ(valueOf(tab.inputs.at(1).key), "without an id");
    EXPECT_EQ(keyOf(inputOfKey(tab.key)), tab.key);
    EXPECT_FALSE(inputOfKey(tab.inputs.at(1).key - 1));  // the deleted one
    EXPECT_FALSE(inputOfKey(0));
}

TEST_F(DialogViews, WithoutADialogNoInputHasAKey) {
    EXPECT_FALSE(inputOfKey(1));
    EXPECT_EQ(keyOf(nullptr), 0U);
}

TEST_F(DialogViews, SelectionsTextBoxesAndListsSayWhatTheyTake) {
    openWith([](const Ptr<CommandInputs>& inputs) {
        inputs->addSelectionInput("pick", "Pick", "Pick two")->setSelectionLimits(2, 5);
        inputs->addTextBoxCommandInput("box", "Box", "<b>b</b>", 3, /*isReadOnly=*/true)
            ->isFullWidth(true);
        inputs->addButtonRowCommandInput("many", "", true);
        inputs->addButtonRowCommandInput("one", "", false);
    });

    const std::vector<InputView> inputs = readDialog().inputs;

    EXPECT_EQ(inputs[0].selection.prompt, "Pick two");
    EXPECT_EQ(inputs[0].selection.minimum, 2U);
    EXPECT_EQ(inputs[0].selection.maximum, 5U);
    EXPECT_EQ(inputs[1].formatted, "<b>b</b>");
    EXPECT_EQ(inputs[1].lines, 3);
    EXPECT_TRUE(inputs[1].fullWidth);
    EXPECT_TRUE(inputs[2].multiple);
    EXPECT_FALSE(inputs[3].multiple);
}

TEST_F(DialogViews, ButtonsSizeAndTheReasonAgainstOkAreRead) {
    open([](const Ptr<Command>& command) {
        command->setDialogInitialSize(300, 200);
        command->okButtonText("Take it");
        command->cancelButtonText("Leave it");
        command->commandInputs()->addSelectionInput("pick", "", "");
    });

    const DialogView dialog = readDialog();

    EXPECT_EQ(dialog.width, 300);
    EXPECT_EQ(dialog.height, 200);
    EXPECT_EQ(dialog.okText + ", " + dialog.cancelText, "Take it, Leave it");
    EXPECT_EQ(dialog.whyOkRefused, "the selection \"pick\" needs 1, and has 0");
}

TEST_F(DialogViews, WithoutADialogReadingIsMisuse) {
    EXPECT_EQ(misuseOf([] { static_cast<void>(readDialog()); }),
              "no dialog is open: press the button of a command first");
}

}  // namespace
}  // namespace host
