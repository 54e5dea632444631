#include "tarnix/properties/properties_dialog.h"

#include "tarnix/properties/bom_structure_buttons.h"
#include "tarnix/properties/full_path.h"
#include "tarnix/properties/property_inputs.h"
#include "tarnix/properties/property_store.h"
#include "tarnix/properties/selection_filters.h"
#include "tarnix/settings/settings_document.h"

#include <cstddef>

namespace tarnix {

using namespace adsk::core;

int filledRowCounter = 15072;
int addedRowCounter = 15095;

namespace {

using namespace property_inputs;
using Texts = std::vector<std::string>;

constexpr const char* kTableDescription =
    R"(<div align="left">User-defined properties of component.</div>)";

std::string keyOf(const std::string& entry) { return entry.substr(0, entry.find(';')); }

/// What follows the first ";", the whole entry where there is none.
std::string displayNameOf(const std::string& entry) { return entry.substr(entry.find(';') + 1); }

/// The id of an entry's row. It lacks the key's last character: the key itself is the id of the
/// property's input on the other tab, and ids of a command's inputs have to differ. An entry that
/// has no ";" is all id, on both.
std::string rowId(const std::string& entry) {
    std::string key = keyOf(entry);
    const bool isWholeEntry = key.size() == entry.size();
    if (!isWholeEntry && !key.empty()) {
        key.pop_back();
    }
    return key;
}

void addSelection(const Ptr<CommandInputs>& inputs) {
    const Ptr<SelectionCommandInput> selection =
        inputs->addSelectionInput(kSelection, "Component", "Select component");
    setSelectionFilters(selection);
    selection->setSelectionLimits(1, 1);
}

/// A new group, null where the host makes none.
Ptr<GroupCommandInput> addGroup(const Ptr<CommandInputs>& inputs, const char* id,
                                const char* name) {
    Ptr<GroupCommandInput> group = inputs->addGroupCommandInput(id, name);
    if (group) {
        group->isExpanded(true);
        group->isFullWidth(true);
        group->isEnabledCheckBoxDisplayed(false);
    }
    return group;
}

bool addStructureButtons(const Ptr<CommandInputs>& inputs) {
    const Ptr<ButtonRowCommandInput> row = inputs->addButtonRowCommandInput(
        kBomStructure, "BOM Structure", /*isMultiSelectEnabled=*/true);
    const Ptr<ListItems> buttons = row ? row->listItems() : nullptr;
    if (!buttons) {
        return false;
    }
    for (const StructureButton& button : kStructureButtons) {
        buttons->add(button.caption, /*isSelected=*/false, button.iconFolder, -1);
    }
    return true;
}

/// The properties that every component has. False where the host makes no group, no inputs in it or
/// no buttons.
///
/// The part number comes before the part name, since they are written in the order of the dialog.
bool addProperties(const Ptr<CommandInputs>& inputs, const Ptr<CommandInputs>& tab) {
    const Ptr<GroupCommandInput> group = addGroup(tab, kProperties, "Properties");
    const Ptr<CommandInputs> children = group ? group->children() : nullptr;
    if (!children || !addStructureButtons(children)) {
        return false;
    }
    children->addStringValueInput(kPartNumberKey, "Part Number", "");
    children->addStringValueInput(kPartNameKey, "Part Name", "");
    children->addStringValueInput(kDescriptionKey, "Description", "");
    children->addTextBoxCommandInput(kFullPath, "Full Path", formatFullPath(inputs), 1,
                                     /*isReadOnly=*/true);
    return true;
}

/// A line for each entry of the settings. False where the host makes no group; one that cannot be
/// filled throws as soon as there is an entry.
bool addCustomProperties(const Ptr<CommandInputs>& tab, const Texts& entries) {
    const Ptr<GroupCommandInput> group = addGroup(tab, kCustomProperties, "Custom Properties");
    if (!group) {
        return false;
    }
    const Ptr<CommandInputs> children = group->children();
    for (const std::string& entry : entries) {
        children->addStringValueInput(keyOf(entry), displayNameOf(entry), "");
    }
    return true;
}

void addToolbarButton(const Ptr<CommandInputs>& tab, const Ptr<TableCommandInput>& table,
                      const char* id, const char* name) {
    table->addToolbarCommandInput(
        tab->addBoolValueInput(id, name, /*isCheckBox=*/false, "", /*initialValue=*/true));
}

void addPropertyList(const Ptr<CommandInputs>& tab, const Texts& entries) {
    tab->addTextBoxCommandInput("tableDescrb", "", kTableDescription, 1, /*isReadOnly=*/true);
    const Ptr<TableCommandInput> table = tab->addTableCommandInput(kTable, "Property", 1, "1");
    tab->addTextBoxCommandInput(kMessage, "", kSaveNotice, 4, /*isReadOnly=*/true);
    tab->addBoolValueInput(kSave, "Save User Property", /*isCheckBox=*/false, "",
                           /*initialValue=*/true)
        ->isFullWidth(true);
    addToolbarButton(tab, table, kAddRow, "Add Property");
    addToolbarButton(tab, table, kDeleteRow, "Delete Property");
    fillUserPropertyTable(table, entries);
}

void showMessage(const char* text) { Application::get()->userInterface()->messageBox(text, ""); }

}  // namespace

void buildPropertiesDialog(Ptr<CommandInputs> inputs) {
    const Ptr<TabCommandInput> tab =
        inputs->addTabCommandInput(kPropertiesTab, "Custom properties", "");
    const Ptr<CommandInputs> children = tab ? tab->children() : nullptr;
    if (!children) {
        return;
    }
    addSelection(children);
    if (!addProperties(inputs, children)) {
        return;
    }
    const Texts entries = readCategoryItems("category", "iProperty");
    if (!addCustomProperties(children, entries)) {
        return;
    }
    const Ptr<TabCommandInput> settings = inputs->addTabCommandInput(kSettingsTab, "Settings", "");
    const Ptr<CommandInputs> settingsChildren = settings ? settings->children() : nullptr;
    if (settingsChildren) {
        addPropertyList(settingsChildren, entries);
    }
}

void setSelectionFilters(Ptr<SelectionCommandInput> selectionInput) {
    if (!selectionInput->addSelectionFilter(selection_filter::kOccurrences)) {
        showMessage("occurrence failed");
    }
    if (!selectionInput->addSelectionFilter(selection_filter::kRootComponents)) {
        showMessage("root failed");
    }
}

void fillUserPropertyTable(Ptr<TableCommandInput> table, std::vector<std::string> entries) {
    const Ptr<CommandInputs> inputs = table->commandInputs();
    for (const std::string& entry : entries) {
        const std::string name = displayNameOf(entry);
        const Ptr<StringValueCommandInput> cell =
            inputs->addStringValueInput(rowId(entry), name, name);
        table->addCommandInput(cell, table->rowCount(), 0, 0, 0);
        ++filledRowCounter;
    }
    table->maximumVisibleRows(20);
}

}  // namespace tarnix
