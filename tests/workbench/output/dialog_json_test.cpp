#include "workbench/output/dialog_json.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <string>

using host::InputView;
using nlohmann::json;
using workbench::asJson;

namespace {

json parsed(const std::string& text) { return json::parse(text); }

TEST(DialogJson, AnInputHasTheMembersOfItsKind) {
    host::DialogView dialog;
    dialog.command = "Cmd";
    dialog.whyOkRefused = "nothing is picked";
    InputView box;
    box.kind = "CheckBox";
    box.id = "box";
    box.caption = "Box";
    box.value = "true";
    dialog.inputs.push_back(box);

    const json view = parsed(asJson(dialog));

    EXPECT_EQ(view["command"], "Cmd");
    EXPECT_EQ(view["ok"]["enabled"], false);
    EXPECT_EQ(view["ok"]["whyDisabled"], "nothing is picked");
    EXPECT_EQ(view["inputs"], json::parse(R"([{"kind": "CheckBox", "id": "box", "caption": "Box",
        "value": true, "text": "", "visible": true, "enabled": true}])"));
}

TEST(DialogJson, ATableHasItsRowsWithTheirCells) {
    host::DialogView dialog;
    InputView cell;
    cell.kind = "StringValue";
    cell.id = "cell";
    cell.value = "x";
    cell.column = 2;
    InputView table;
    table.kind = "Table";
    table.id = "table";
    table.table = {.columns = 3,
                   .ratio = "1:1:1",
                   .shownColumns = {0, 1, 2},
                   .shownRows = {},
                   .rows = {{.row = 0, .shown = true, .selected = false, .cells = {cell}}},
                   .toolbar = {}};
    dialog.inputs.push_back(table);

    const json view = parsed(asJson(dialog));

    EXPECT_EQ(view["inputs"][0]["rows"],
              json::parse(R"([{"row": 0, "shown": true, "selected": false, "cells": [
        {"column": 2, "kind": "StringValue", "id": "cell", "caption": "", "value": "x",
         "readOnly": false, "visible": true, "enabled": true}]}])"));
    EXPECT_EQ(view["inputs"][0]["shownColumns"], (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(view["inputs"][0]["toolbar"], json::array());
}

TEST(DialogJson, ToolbarsAreNested) {
    host::ToolbarView toolbars;
    host::ControlView control;
    control.command = "Cmd";
    host::PanelView panel;
    panel.id = "P";
    panel.controls.push_back(control);
    host::WorkspaceView workspace;
    workspace.id = "W";
    workspace.tabs.push_back({.id = "T", .caption = "Tools", .panels = {panel}});
    toolbars.workspaces.push_back(workspace);

    const json view = parsed(asJson(toolbars));

    const json& shown = view["workspaces"][0]["tabs"][0]["panels"][0]["controls"][0];
    EXPECT_EQ(shown["command"], "Cmd");
    EXPECT_EQ(shown["visible"], true);
    EXPECT_EQ(view["withoutButton"], json::array());
}

}  // namespace
