#include "tests/tarnix/properties/properties_fixture.h"

#include "tests/support/files.h"

#include "host/application/application_object.h"
#include "host/design/design_file.h"
#include "host/design/document.h"
#include "host/session/browser_tree.h"
#include "host/session/input_actions.h"

#include <algorithm>

namespace tarnix {
namespace {

using namespace adsk::core;

std::string itemElement(const std::string& categoryName, const std::string& item) {
    const std::size_t end = item.find(';');
    return "<item_" + categoryName + " id=\"" + item.substr(0, end) + "\"><displayName>" +
           item.substr(end + 1) + "</displayName></item_" + categoryName + ">";
}

std::string head(const char* kind, const Ptr<CommandInput>& input) {
    return std::string(kind) + " " + input->id() + " \"" + input->name() + "\"";
}

std::string flag(bool isSet, const char* text) { return isSet ? std::string(", ") + text : ""; }

/// A button's caption is the end of the name of its icons, which a host has that shows no name too.
std::string captionByIcon(const std::string& icon) { return icon.substr(icon.rfind('_') + 1); }

std::string describeButtons(const Ptr<ButtonRowCommandInput>& row) {
    std::string all = head("button row", row) + flag(row->isMultiSelectEnabled(), "multi-select");
    for (std::size_t i = 0; i < row->listItems()->count(); ++i) {
        const Ptr<ListItem> item = row->listItems()->item(i);
        all += "\n  " + item->name() + " " + item->icon() + (item->isSelected() ? " on" : " off");
    }
    return all;
}

std::string describeBox(const Ptr<TextBoxCommandInput>& box) {
    return head("text box", box) + " " + box->formattedText() + ", " +
           std::to_string(box->numRows()) + (box->numRows() == 1 ? " row" : " rows") +
           flag(box->isReadOnly(), "read-only");
}

std::string describeGroup(const Ptr<GroupCommandInput>& group) {
    return head("group", group) + flag(group->isExpanded(), "expanded") +
           flag(group->isFullWidth(), "full width") +
           flag(group->isEnabledCheckBoxDisplayed(), "check box");
}

std::string describeTable(const Ptr<TableCommandInput>& table) {
    std::string all = head("table", table) + " " + std::to_string(table->numberOfColumns()) +
                      " column, ratio " + table->columnRatio() + ", " +
                      std::to_string(table->maximumVisibleRows()) + " rows visible, toolbar";
    for (const Ptr<CommandInput>& each : host::toolbarOf(table)) {
        all += " " + each->id();
    }
    return all;
}

std::string describeButton(const Ptr<BoolValueCommandInput>& button) {
    return head(button->isCheckBox() ? "check box" : "button", button) +
           flag(button->value(), "on") + flag(button->isFullWidth(), "full width") +
           flag(!button->resourceFolder().empty(), "icon");
}

std::string describe(const Ptr<CommandInput>& input) {
    if (const Ptr<SelectionCommandInput> selection = input) {
        return head("selection", selection) + " prompt \"" + selection->commandPrompt() + "\"";
    }
    if (const Ptr<GroupCommandInput> group = input) return describeGroup(group);
    if (const Ptr<ButtonRowCommandInput> row = input) return describeButtons(row);
    if (const Ptr<StringValueCommandInput> line = input) {
        return head("text", line) + " \"" + line->value() + "\"" +
               flag(line->isReadOnly(), "read-only");
    }
    if (const Ptr<TextBoxCommandInput> box = input) return describeBox(box);
    if (const Ptr<TableCommandInput> table = input) return describeTable(table);
    if (const Ptr<BoolValueCommandInput> button = input) return describeButton(button);
    if (const Ptr<TabCommandInput> tab = input) return head("tab", tab);
    return head(input->objectType(), input);
}

Ptr<CommandInputs> insideOf(const Ptr<CommandInput>& container) {
    if (const Ptr<TabCommandInput> tab = container) return tab->children();
    if (const Ptr<GroupCommandInput> group = container) return group->children();
    return nullptr;
}

}  // namespace

std::string settingsWith(const std::string& categories) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n"
           "<configuration nameOfApplication=\"Tarnix\">" +
           categories + "</configuration>\r\n";
}

std::string category(const std::string& name, const std::vector<std::string>& items) {
    std::string all;
    for (const std::string& item : items) {
        all += itemElement(name, item);
    }
    return "<category name=\"" + name + "\">" + all + "</category>";
}

void PropertiesTest::offer(const std::vector<std::string>& properties) {
    test_support::writeFile(settingsFile(), settingsWith(category("iProperty", properties)));
}

void PropertiesTest::openProperties() { session->press("QEMA_EditPropertiesCmd"); }

void PropertiesTest::openAndPick(const std::string& path) {
    openProperties();
    session->pick(path);
}

void PropertiesTest::showList() {
    openProperties();
    session->activateTab(kSettingsTab);
}

std::string PropertiesTest::inputsOf(const std::string& container) const {
    const Ptr<CommandInputs> inputs = container.empty() ? session->dialog()->commandInputs()
                                                        : insideOf(session->input(container));
    std::string all;
    for (std::size_t i = 0; i < inputs->count(); ++i) {
        all += (i == 0 ? "" : "\n") + describe(inputs->item(i));
    }
    return all;
}

std::string PropertiesTest::values() const {
    std::string all = buttonsOn();
    for (const char* group : {"QEMA_properties", "QEMA_customProperties"}) {
        const Ptr<CommandInputs> inputs = insideOf(session->input(group));
        for (std::size_t i = 0; i < inputs->count(); ++i) {
            const Ptr<StringValueCommandInput> line = inputs->item(i);
            all += line ? " | " + line->value() : "";
        }
    }
    return all;
}

std::string PropertiesTest::wholeDesign() const {
    const std::filesystem::path file = session->folder() / "whole.design.json";
    host::saveDesignFile(file, session->design());
    return test_support::readFile(file);
}

std::string PropertiesTest::buttonsOn() const {
    const Ptr<ButtonRowCommandInput> row = session->input(kStructure);
    std::string all;
    for (std::size_t i = 0; i < row->listItems()->count(); ++i) {
        const Ptr<ListItem> item = row->listItems()->item(i);
        if (item->isSelected()) {
            all += (all.empty() ? "" : " ") + captionByIcon(item->icon());
        }
    }
    return all;
}

std::string PropertiesTest::value(const std::string& id) const {
    const Ptr<StringValueCommandInput> line = session->input(id);
    return line->value();
}

std::string PropertiesTest::box(const std::string& id) const {
    const Ptr<TextBoxCommandInput> textBox = session->input(id);
    return textBox->formattedText();
}

std::string PropertiesTest::rows() const {
    const Ptr<TableCommandInput> table = session->table(kTable);
    std::string all = "|";
    for (int row = 0; row < table->rowCount(); ++row) {
        const Ptr<StringValueCommandInput> cell = table->getInputAtPosition(row, 0);
        all += cell->value() + "|";
    }
    return all;
}

std::string PropertiesTest::placeOfCell(int row) const {
    const Ptr<TableCommandInput> table = session->table(kTable);
    int at = -1;
    int column = -1;
    int rowSpan = -1;
    int columnSpan = -1;
    table->getPosition(table->getInputAtPosition(row, 0), at, column, rowSpan, columnSpan);
    return "row " + std::to_string(at) + ", column " + std::to_string(column) + ", spans " +
           std::to_string(rowSpan) + " and " + std::to_string(columnSpan);
}

Ptr<Base> PropertiesTest::entity(const std::string& path) {
    return host::inBrowserTree(host::designOf(host::ApplicationObject::current()->document()),
                               path);
}

std::string PropertiesTest::rowId(int row) const {
    return session->table(kTable)->getInputAtPosition(row, 0)->id();
}

void PropertiesTest::nameRow(int row, const std::string& name) {
    host::typeText(session->table(kTable)->getInputAtPosition(row, 0), name);
}

std::string PropertiesTest::savedList() const {
    const std::string bytes = test_support::readFile(settingsFile());
    const std::string start = "<category name=\"iProperty\"";
    const std::size_t from = bytes.find(start);
    if (from == std::string::npos) {
        return "none";
    }
    const std::size_t after = from + start.size();
    if (bytes.compare(after, 2, "/>") == 0) {
        return "";
    }
    return bytes.substr(after + 1, bytes.find("</category>", after) - after - 1);
}

bool PropertiesTest::isEnabled(const std::string& id) const {
    return session->input(id)->isEnabled();
}

std::string stored(const host::DesignData& design, const std::string& component) {
    const auto found =
        std::find_if(design.components.begin(), design.components.end(),
                     [&](const host::ComponentData& each) { return each.name == component; });
    if (found == design.components.end()) return "no component " + component;
    std::string all = found->partNumber + " | " + found->name + " | " + found->description;
    for (const host::AttributeData& each : found->attributes) {
        all += each.group == "QEMA_PropertiesAttributesGroup" ? "\n" + each.name + "=" + each.value
                                                              : "";
    }
    return all;
}

}  // namespace tarnix
