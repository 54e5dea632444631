#include "workbench/output/dialog_json.h"

#include <nlohmann/json.hpp>

#include <vector>

namespace workbench {
namespace {

using Json = nlohmann::ordered_json;

Json asObject(const host::InputView& input);

/// Each view as an object, in an array.
template <class View, class Convert>
Json asArray(const std::vector<View>& views, const Convert& convert) {
    Json all = Json::array();
    for (const View& each : views) {
        all.push_back(convert(each));
    }
    return all;
}

std::string dumped(const Json& json) {
    constexpr int kIndent = 2;
    return json.dump(kIndent, ' ', /*ensure_ascii=*/false, Json::error_handler_t::replace) + "\n";
}

Json itemObject(const host::ItemView& item) {
    return {{"name", item.name}, {"icon", item.icon}, {"selected", item.selected}};
}

Json cellObject(const host::InputView& cell) {
    Json object = {{"column", cell.column}};
    object.update(asObject(cell));
    return object;
}

Json rowObject(const host::RowView& row) {
    return {{"row", row.row},
            {"shown", row.shown},
            {"selected", row.selected},
            {"cells", asArray(row.cells, cellObject)}};
}

void addContents(Json& object, const host::TableContents& table) {
    object["columns"] = table.columns;
    object["columnRatio"] = table.ratio;
    object["shownColumns"] = table.shownColumns;
    object["rows"] = asArray(table.rows, rowObject);
    object["toolbar"] = asArray(table.toolbar, asObject);
}

bool isContainer(const host::InputView& input) {
    return input.kind == "Tab" || input.kind == "Group";
}

bool isList(const host::InputView& input) {
    return input.kind == "DropDown" || input.kind == "ButtonRow" ||
           input.kind == "RadioButtonGroup";
}

void addValue(Json& object, const host::InputView& input) {
    if (input.kind == "Button" || input.kind == "CheckBox") {
        object["value"] = input.value == "true";
        object["text"] = input.text;
    } else if (!isContainer(input) && input.kind != "Table" && input.kind != "Image") {
        object["value"] = input.value;
    }
    if (isList(input)) {
        object["items"] = asArray(input.items, itemObject);
    }
    if (input.kind == "StringValue" || input.kind == "TextBox") {
        object["readOnly"] = input.readOnly;
    }
    if (!input.picture.empty()) {
        object["picture"] = input.picture;
    }
}

void addState(Json& object, const host::InputView& input) {
    object["visible"] = input.visible;
    object["enabled"] = input.enabled;
    if (!input.tooltip.empty()) {
        object["tooltip"] = input.tooltip;
    }
    if (input.kind == "Tab" || input.kind == "Selection") {
        object["active"] = input.active;
    }
    if (input.kind == "Group") {
        object["expanded"] = input.active;
    }
}

Json asObject(const host::InputView& input) {
    Json object = {{"kind", input.kind}, {"id", input.id}, {"caption", input.caption}};
    addValue(object, input);
    addState(object, input);
    if (isContainer(input)) {
        object["inputs"] = asArray(input.inputs, asObject);
    }
    if (input.kind == "Table") {
        addContents(object, input.table);
    }
    return object;
}

Json commandObject(const host::ControlView& control) {
    return {{"command", control.command},
            {"caption", control.caption},
            {"tooltip", control.tooltip},
            {"icons", control.icons}};
}

Json controlObject(const host::ControlView& control) {
    Json object = commandObject(control);
    object["visible"] = control.visible;
    object["promoted"] = control.promoted;
    object["deleted"] = control.isDeleted;
    return object;
}

Json panelObject(const host::PanelView& panel) {
    return {{"id", panel.id},
            {"caption", panel.caption},
            {"native", panel.native},
            {"controls", asArray(panel.controls, controlObject)}};
}

Json tabObject(const host::ToolbarTabView& tab) {
    return {{"id", tab.id}, {"caption", tab.caption}, {"panels", asArray(tab.panels, panelObject)}};
}

Json workspaceObject(const host::WorkspaceView& workspace) {
    return {{"id", workspace.id},
            {"caption", workspace.caption},
            {"productType", workspace.productType},
            {"active", workspace.active},
            {"tabs", asArray(workspace.tabs, tabObject)}};
}

}  // namespace

std::string asJson(const host::DialogView& dialog) {
    return dumped({{"command", dialog.command},
                   {"caption", dialog.caption},
                   {"width", dialog.width},
                   {"height", dialog.height},
                   {"ok",
                    {{"text", dialog.okText},
                     {"visible", dialog.okVisible},
                     {"enabled", dialog.whyOkRefused.empty()},
                     {"whyDisabled", dialog.whyOkRefused}}},
                   {"cancel", {{"text", dialog.cancelText}}},
                   {"inputs", asArray(dialog.inputs, asObject)}});
}

std::string asJson(const host::ToolbarView& toolbars) {
    return dumped({{"workspaces", asArray(toolbars.workspaces, workspaceObject)},
                   {"withoutButton", asArray(toolbars.withoutButton, commandObject)}});
}

}  // namespace workbench
