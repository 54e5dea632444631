#include "workbench/serve/state_json.h"

#include "workbench/serve/palette_pages.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <sstream>
#include <string_view>

namespace workbench::serve {
namespace {

Json inputJson(const host::InputView& input, AddinPictures& pictures);

/// Each view as an object, in an array.
template <class View, class Convert>
Json arrayOf(const std::vector<View>& views, const Convert& convert) {
    Json all = Json::array();
    for (const View& each : views) {
        all.push_back(convert(each));
    }
    return all;
}

Json controlJson(const host::ControlView& control, AddinPictures& pictures) {
    return {{"command", control.command},   {"caption", control.caption},
            {"tooltip", control.tooltip},   {"icon", pictures.addressOf(control.icons)},
            {"visible", control.visible},   {"promoted", control.promoted},
            {"enabled", !control.isDeleted}};
}

Json panelJson(const host::PanelView& panel, AddinPictures& pictures) {
    return {{"id", panel.id},
            {"caption", panel.caption},
            {"native", panel.native},
            {"controls", controlsJson(panel.controls, pictures)}};
}

Json childJson(const host::OccurrenceData& child) {
    return child.absent ? Json() : Json::array({child.component, child.instance, child.grounded});
}

Json componentJson(const host::ComponentData& component) {
    Json object = {{"name", component.name},
                   {"partNumber", component.partNumber},
                   {"children", arrayOf(component.children, childJson)}};
    if (!component.document.empty()) {
        object["document"] = component.document;
    }
    return object;
}

Json inputsJson(const std::vector<host::InputView>& inputs, AddinPictures& pictures) {
    return arrayOf(inputs, [&](const host::InputView& each) { return inputJson(each, pictures); });
}

bool isList(const host::InputView& input) {
    return input.kind == "DropDown" || input.kind == "ButtonRow" ||
           input.kind == "RadioButtonGroup";
}

bool isButton(const host::InputView& input) {
    return input.kind == "Button" || input.kind == "CheckBox";
}

void addText(Json& object, const host::InputView& input) {
    object["value"] = input.value;
    object["readOnly"] = input.readOnly;
    if (input.kind == "TextBox") {
        object["formatted"] = input.formatted == input.value ? "" : input.formatted;
        object["lines"] = input.lines;
    }
}

void addItems(Json& object, const host::InputView& input, AddinPictures& pictures) {
    object["value"] = input.value;
    object["multiple"] = input.multiple;
    object["items"] = arrayOf(input.items, [&](const host::ItemView& item) {
        return Json{{"name", item.name},
                    {"icon", pictures.addressOf(item.icon)},
                    {"selected", item.selected}};
    });
}

void addSelection(Json& object, const host::InputView& input) {
    object["value"] = input.value;
    object["active"] = input.active;
    object["prompt"] = input.selection.prompt;
    object["picked"] = input.selection.picked;
    object["minimum"] = input.selection.minimum;
    object["maximum"] = input.selection.maximum;
}

void addTable(Json& object, const host::TableContents& table, AddinPictures& pictures) {
    object["columns"] = table.columns;
    object["ratio"] = table.ratio;
    object["shownColumns"] = table.shownColumns;
    object["minimumRows"] = table.minimumRows;
    object["maximumRows"] = table.maximumRows;
    object["rowCount"] = table.rowCount;
    object["shownCount"] = table.shownRows.size();
    object["selectedRow"] = table.selectedRow;
    object["toolbar"] = inputsJson(table.toolbar, pictures);
}

void addContainer(Json& object, const host::InputView& input, AddinPictures& pictures) {
    object["inputs"] = inputsJson(input.inputs, pictures);
    if (input.kind == "Group") {
        object["expanded"] = input.active;
    } else {
        object["active"] = input.active;
        object["icon"] = pictures.addressOf(input.picture);
    }
}

/// What an input of its kind has beside what all have.
void addContents(Json& object, const host::InputView& input, AddinPictures& pictures) {
    if (isButton(input)) {
        object["value"] = input.value == "true";
        object["text"] = input.text;
        object["icon"] = pictures.addressOf(input.picture);
    } else if (isList(input)) {
        addItems(object, input, pictures);
    } else if (input.kind == "StringValue" || input.kind == "TextBox") {
        addText(object, input);
    } else if (input.kind == "Image") {
        object["image"] = pictures.addressOf(input.picture);
    } else if (input.kind == "Selection") {
        addSelection(object, input);
    } else if (input.kind == "Table") {
        addTable(object, input.table, pictures);
    } else if (input.kind == "Tab" || input.kind == "Group") {
        addContainer(object, input, pictures);
    }
}

/// A table has some ten members for each cell: those that say nothing are left out.
void dropDefaults(Json& object) {
    constexpr std::array<std::string_view, 7> kAlways = {
        "key", "id", "value", "rowCount", "shownCount", "selectedRow", "columns"};
    for (auto each = object.begin(); each != object.end();) {
        const bool isDefault = *each == Json(std::string()) || *each == 0 || *each == false;
        const bool stays = std::ranges::find(kAlways, each.key()) != kAlways.end();
        each = isDefault && !stays ? object.erase(each) : std::next(each);
    }
}

Json inputJson(const host::InputView& input, AddinPictures& pictures) {
    Json object = {{"kind", input.kind},       {"key", input.key},
                   {"id", input.id},           {"caption", input.caption},
                   {"tooltip", input.tooltip}, {"visible", input.visible},
                   {"enabled", input.enabled}, {"fullWidth", input.fullWidth}};
    addContents(object, input, pictures);
    dropDefaults(object);
    return object;
}

Json cellJson(const host::InputView& cell, AddinPictures& pictures) {
    Json object = inputJson(cell, pictures);
    object["column"] = cell.column;
    if (cell.columnSpan != 0) {
        object["span"] = cell.columnSpan;
    }
    return object;
}

const char* iconName(adsk::core::MessageBoxIconTypes icon) {
    switch (icon) {
        case adsk::core::QuestionIconType:
            return "question";
        case adsk::core::InformationIconType:
            return "information";
        case adsk::core::WarningIconType:
            return "warning";
        case adsk::core::CriticalIconType:
            return "critical";
        default:
            return "none";
    }
}

Json buttonJson(const char* answer, const char* caption) {
    return {{"answer", answer}, {"caption", caption}};
}

Json buttonsJson(adsk::core::MessageBoxButtonTypes buttons) {
    switch (buttons) {
        case adsk::core::OKCancelButtonType:
            return {buttonJson("ok", "OK"), buttonJson("cancel", "Cancel")};
        case adsk::core::RetryCancelButtonType:
            return {buttonJson("ok", "Retry"), buttonJson("cancel", "Cancel")};
        case adsk::core::YesNoButtonType:
            return {buttonJson("yes", "Yes"), buttonJson("no", "No")};
        case adsk::core::YesNoCancelButtonType:
            return {buttonJson("yes", "Yes"), buttonJson("no", "No"),
                    buttonJson("cancel", "Cancel")};
        default:
            return Json::array({buttonJson("ok", "OK")});
    }
}

std::vector<std::string> parted(const std::string& text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream(text);
    for (std::string part; std::getline(stream, part, separator);) {
        if (!part.empty()) {
            parts.push_back(part);
        }
    }
    return parts;
}

/// "STEP (*.stp;*.step);;All (*.*)" as the filters it offers.
Json filtersJson(std::string filter) {
    for (std::size_t at = 0; (at = filter.find(";;", at)) != std::string::npos;) {
        filter.replace(at, 2, 1, '\n');
    }
    Json filters = Json::array();
    for (const std::string& each : parted(filter, '\n')) {
        const std::size_t open = each.rfind('(');
        const std::size_t close = each.rfind(')');
        const bool named = open != std::string::npos && close != std::string::npos && open < close;
        std::string patterns = named ? each.substr(open + 1, close - open - 1) : each;
        std::ranges::replace(patterns, ' ', ';');
        filters.push_back({{"caption", each}, {"patterns", parted(patterns, ';')}});
    }
    return filters;
}

const char* kindName(host::FileDialogKind kind) {
    switch (kind) {
        case host::FileDialogKind::Save:
            return "save";
        case host::FileDialogKind::Folder:
            return "folder";
        default:
            return "open";
    }
}

}  // namespace

Json controlsJson(const std::vector<host::ControlView>& controls, AddinPictures& pictures) {
    return arrayOf(controls,
                   [&](const host::ControlView& each) { return controlJson(each, pictures); });
}

Json workspacesJson(const host::ToolbarView& toolbars, AddinPictures& pictures) {
    const auto panel = [&](const host::PanelView& each) { return panelJson(each, pictures); };
    const auto tab = [&](const host::ToolbarTabView& each) {
        return Json{
            {"id", each.id}, {"caption", each.caption}, {"panels", arrayOf(each.panels, panel)}};
    };
    return arrayOf(toolbars.workspaces, [&](const host::WorkspaceView& each) {
        return Json{{"id", each.id},
                    {"caption", each.caption},
                    {"active", each.active},
                    {"tabs", arrayOf(each.tabs, tab)}};
    });
}

Json treeJson(const host::DesignData& design) {
    return {{"components", arrayOf(design.components, componentJson)}};
}

Json dialogJson(const host::DialogView& dialog, AddinPictures& pictures) {
    return {{"command", dialog.command},
            {"caption", dialog.caption},
            {"width", dialog.width},
            {"height", dialog.height},
            {"ok",
             {{"text", dialog.okText},
              {"visible", dialog.okVisible},
              {"enabled", dialog.whyOkRefused.empty()},
              {"why", dialog.whyOkRefused}}},
            {"cancel", {{"text", dialog.cancelText}}},
            {"inputs", inputsJson(dialog.inputs, pictures)}};
}

Json rowsJson(const std::vector<host::RowView>& rows, AddinPictures& pictures) {
    Json all = Json::object();
    for (const host::RowView& each : rows) {
        all[std::to_string(each.row)] = {
            {"cells", arrayOf(each.cells, [&](const host::InputView& cell) {
                 return cellJson(cell, pictures);
             })}};
    }
    return all;
}

Json messageJson(int id, const host::Message& message) {
    return {{"id", id},
            {"title", message.title},
            {"text", message.text},
            {"icon", iconName(message.icon)},
            {"buttons", buttonsJson(message.buttons)}};
}

Json fileDialogJson(int id, const host::FileDialogShown& dialog, const std::string& folder) {
    return {{"id", id},
            {"kind", kindName(dialog.kind)},
            {"folder", folder},
            {"name", dialog.initialFilename},
            {"title", dialog.title},
            {"filters", filtersJson(dialog.filter)},
            {"filter", dialog.filterIndex},
            {"multiple", dialog.multiSelect}};
}

Json progressJson(const host::Progress& progress) {
    return {{"text", progress.text},
            {"value", progress.value},
            {"cancel", progress.cancelButton},
            {"cancelled", progress.cancelled}};
}

Json palettesJson(const std::vector<host::PaletteView>& palettes) {
    return arrayOf(palettes, [](const host::PaletteView& each) {
        return Json{{"id", each.id},
                    {"name", each.name},
                    {"url", localPage(each.address)},
                    {"address", each.address},
                    {"dock", each.dock},
                    {"left", each.left},
                    {"top", each.top},
                    {"width", each.width},
                    {"height", each.height},
                    {"closeButton", each.closeButton},
                    {"resizable", each.resizable}};
    });
}

}  // namespace workbench::serve
