#include "workbench/output/dialog_text.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using host::DialogView;
using host::InputView;
using workbench::asText;

namespace {

InputView input(const std::string& kind, const std::string& id, const std::string& value = "") {
    InputView view;
    view.kind = kind;
    view.id = id;
    view.value = value;
    return view;
}

/// A table of two columns without rows.
InputView tableOf(const std::string& ratio, const std::vector<int>& shownColumns) {
    InputView view = input("Table", "table");
    view.table.columns = 2;
    view.table.ratio = ratio;
    view.table.shownColumns = shownColumns;
    return view;
}

DialogView dialogWith(InputView view) {
    DialogView dialog;
    dialog.command = "Cmd";
    dialog.caption = "A dialog";
    dialog.okText = "OK";
    dialog.cancelText = "Cancel";
    dialog.inputs.push_back(std::move(view));
    return dialog;
}

/// The lines of a dialog without title and buttons.
std::string textOf(const InputView& view) {
    const std::string text = asText(dialogWith(view));
    const std::string head = "Dialog Cmd \"A dialog\"\nOK     \"OK\"\nCancel \"Cancel\"\n";
    EXPECT_EQ(text.rfind(head, 0), 0U) << text;
    return text.substr(head.size());
}

TEST(DialogText, NamesKindIdCaptionAndValueAndWhatIsParticular) {
    InputView line = input("StringValue", "line", "a\tb");
    line.caption = "Line";
    line.visible = false;
    line.enabled = false;
    line.readOnly = true;

    EXPECT_EQ(textOf(line), "StringValue line \"Line\" = \"a b\" (hidden, disabled, read-only)\n");
}

TEST(DialogText, ListsTheItemsBelowTheirList) {
    InputView list = input("DropDown", "list", "two");
    list.items = {{.name = "one", .icon = "", .selected = false},
                  {.name = "two", .icon = "", .selected = true}};

    EXPECT_EQ(textOf(list), "DropDown list = \"two\"\n  items: \"one\", \"two\"\n");
}

TEST(DialogText, IndentsWhatIsInATabOrAGroup) {
    InputView tab = input("Tab", "tab");
    tab.active = true;
    tab.inputs.push_back(input("Group", "group"));
    tab.inputs[0].inputs.push_back(input("CheckBox", "box", "true"));

    EXPECT_EQ(textOf(tab),
              "Tab tab (active)\n"
              "  Group group (collapsed)\n"
              "    CheckBox box = \"true\"\n");
}

TEST(DialogText, NumbersTheRowsOfATableAndMarksWhatIsHidden) {
    InputView table = tableOf("1:0", {0});
    InputView button = input("Button", "b", "false");
    button.text = "+";
    InputView narrow = input("StringValue", "n", "x");
    narrow.column = 1;
    InputView hidden = input("StringValue", "h", "y");
    hidden.visible = false;
    table.table.rows = {{.row = 0, .shown = true, .selected = true, .cells = {button, narrow}},
                        {.row = 1, .shown = false, .selected = false, .cells = {hidden}}};
    table.table.toolbar = {input("Button", "add", "false")};

    EXPECT_EQ(textOf(table),
              "Table table: 2 rows, 1 of them hidden; widths 1:0\n"
              "  Row            Column 0  Column 1 (hidden)\n"
              "  ───  ────────  ────────  ─────────────────\n"
              "    0  selected  [+]       x\n"
              "    1  hidden    (y)\n"
              "  below the table\n"
              "    Button add\n");
}

TEST(DialogText, NamesThePictureOfACellThatShowsNothingElse) {
    InputView table = tableOf("1:1", {0, 1});
    InputView button = input("Button", "b", "false");
    button.picture = "./Resources/Sort";
    InputView image = input("Image", "i");
    image.picture = "././Resources/BOM/Part.png";
    image.column = 1;
    table.table.rows = {{.row = 0, .shown = true, .selected = false, .cells = {button, image}}};

    EXPECT_EQ(textOf(table),
              "Table table: 1 rows, 0 of them hidden; widths 1:1\n"
              "  Row    Column 0  Column 1\n"
              "  ───    ────────  ────────\n"
              "    0    [Sort]    Part\n");
}

TEST(DialogText, SaysWhyOkCannotBePressedAndHowLargeTheDialogIs) {
    DialogView dialog;
    dialog.command = "Cmd";
    dialog.caption = "A dialog";
    dialog.width = 300;
    dialog.height = 200;
    dialog.okText = "Go";
    dialog.cancelText = "Stop";
    dialog.whyOkRefused = "nothing is picked";

    EXPECT_EQ(asText(dialog),
              "Dialog Cmd \"A dialog\" 300 x 200\n"
              "OK     \"Go\" (disabled: nothing is picked)\n"
              "Cancel \"Stop\"\n");
}

TEST(DialogText, ToolbarsAreAnOutlineOfTables) {
    host::ToolbarView toolbars;
    host::ControlView control;
    control.command = "Cmd";
    control.caption = "Do";
    control.tooltip = "Does it";
    toolbars.withoutButton.push_back(control);
    control.promoted = true;
    host::PanelView panel;
    panel.id = "P";
    panel.caption = "Panel one";
    panel.controls.push_back(control);
    host::WorkspaceView workspace;
    workspace.id = "W";
    workspace.caption = "Work";
    workspace.active = true;
    workspace.tabs.push_back({.id = "T", .caption = "Tools", .panels = {panel}});
    toolbars.workspaces.push_back(workspace);

    EXPECT_EQ(asText(toolbars),
              "Workspace W \"Work\" (active)\n"
              "  Tab T \"Tools\"\n"
              "    Panel P \"Panel one\"\n"
              "      Command         Caption  Tooltip\n"
              "      ──────────────  ───────  ───────\n"
              "      Cmd (promoted)  Do       Does it\n"
              "Commands without a button\n"
              "  Command  Caption  Tooltip\n"
              "  ───────  ───────  ───────\n"
              "  Cmd      Do       Does it\n");
}

}  // namespace
