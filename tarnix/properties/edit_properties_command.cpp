#include "tarnix/properties/edit_properties_command.h"

#include "tarnix/properties/bom_structure_buttons.h"
#include "tarnix/properties/full_path.h"
#include "tarnix/properties/group_inputs.h"
#include "tarnix/properties/picked_component.h"
#include "tarnix/properties/properties_dialog.h"
#include "tarnix/properties/property_inputs.h"
#include "tarnix/properties/user_properties.h"

#include <Fusion/FusionAll.h>

#include <cstddef>

namespace tarnix {

using namespace adsk::core;
using namespace adsk::fusion;

namespace {

using namespace property_inputs;

/// Asks whether the list of custom properties is in view. Nothing depends on the answer.
void onTabChanged(const Ptr<InputChangedEventArgs>& eventArgs) {
    const Ptr<TabCommandInput> settings = eventArgs->inputs()->itemById(kSettingsTab);
    static_cast<void>(settings->isActive());
}

void showFullPath(const Ptr<CommandInput>& selection) {
    const Ptr<TextBoxCommandInput> box =
        selection->parentCommand()->commandInputs()->itemById(kFullPath);
    box->formattedText(formatFullPath(selection->commandInputs()));
}

bool hasActiveDesign() {
    const Ptr<Design> design = Application::get()->activeProduct();
    return design && design->rootComponent();
}

void onSelectionCleared(const Ptr<InputChangedEventArgs>& eventArgs) {
    if (!hasActiveDesign()) {
        return;
    }
    clearValues(eventArgs->inputs());
    enableInputs(eventArgs->inputs(), false);
}

bool isManufacturing() {
    return Application::get()->userInterface()->activeWorkspace()->id() == "CAMEnvironment";
}

Ptr<Component> pickedComponent(const Ptr<CommandInputs>& inputs) {
    const Ptr<SelectionCommandInput> input = inputs->itemById(kSelection);
    const Ptr<Selection> selection = input ? lastSelection(input) : nullptr;
    return selection ? componentOf(selection->entity()) : nullptr;
}

Ptr<CommandInputs> childrenOf(const Ptr<CommandInputs>& inputs, const char* groupId) {
    const Ptr<GroupCommandInput> group = inputs->itemById(groupId);
    return group->children();
}

}  // namespace

void EditPropertiesCmdExecuteHandler::notify(const Ptr<CommandEventArgs>& eventArgs) {
    const Ptr<CommandInputs> inputs = eventArgs->command()->commandInputs();
    if (!inputs) {
        return;
    }
    const Ptr<Component> component = pickedComponent(inputs);
    if (!component) {
        return;
    }
    const Ptr<CommandInput> properties = inputs->itemById(kProperties);
    writeComponentProperties(
        {.entries = collectValues(properties->commandInputs()), .component = component});
}

void EditPropertiesCmdInputChangedHandler::notify(const Ptr<InputChangedEventArgs>& eventArgs) {
    const Ptr<CommandInput> input = eventArgs->input();
    const std::string id = input->id();
    if (id == kSelection) {
        onSelectionChanged(input, eventArgs);
    } else if (id == "APITabBar") {
        onTabChanged(eventArgs);
    } else if (id == kAddRow || id == kDeleteRow) {
        onTableButton(eventArgs);
    } else if (id == kBomStructure) {
        onBomStructureChanged(input);
    } else if (id == kSave) {
        saveUserProperties(eventArgs);
    } else if (input->parentCommandInput()->id() == kTable) {
        onUserPropertyEdited(input);
    }
}

void EditPropertiesCmdInputChangedHandler::onSelectionChanged(
    const Ptr<CommandInput>& input, const Ptr<InputChangedEventArgs>& eventArgs) {
    const Ptr<SelectionCommandInput> selectionInput = input;
    if (!selectionInput) {
        return;
    }
    showFullPath(input);
    const Ptr<Selection> selection = lastSelection(selectionInput);
    if (!selection) {
        onSelectionCleared(eventArgs);
        return;
    }
    enableInputs(eventArgs->inputs(), true);
    const Ptr<Component> component = componentOf(selection->entity());
    // Where parts are machined the inputs stay as they are, and OK writes what they hold: for a
    // component picked right after opening, empty strings and no structure.
    if (!component || isManufacturing()) {
        return;
    }
    selectionInput->tooltip(component->name());
    const ComponentProperties properties = readComponentProperties(component);
    fillInputs(childrenOf(eventArgs->inputs(), kProperties), properties);
    fillInputs(childrenOf(eventArgs->inputs(), kCustomProperties), properties);
}

void EditPropertiesCmdInputChangedHandler::onBomStructureChanged(const Ptr<CommandInput>& input) {
    keepOneBomStructure(input, selectedBomStructure_);
}

void EditPropertiesCmdInputChangedHandler::fillInputs(const Ptr<CommandInputs>& inputs,
                                                      const ComponentProperties& properties) {
    const std::size_t count = inputs->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<CommandInput> input = inputs->item(i);
        const std::string kind = input->objectType();
        if (kind == "adsk::core::ButtonRowCommandInput") {
            loadBomStructure(input, properties, selectedBomStructure_);
        } else if (kind == "adsk::core::StringValueCommandInput") {
            const Ptr<StringValueCommandInput> line = input;
            line->value(findProperty(properties, line->id()));
        }
    }
}

void EditPropertiesCmdCreateHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    buildPropertiesDialog(command->commandInputs());
    command->setDialogInitialSize(300, 600);
    command->inputChanged()->add(&inputChangedHandler_);
    command->execute()->add(&executeHandler_);
    command->validateInputs()->add(&validateHandler_);
}

}  // namespace tarnix
