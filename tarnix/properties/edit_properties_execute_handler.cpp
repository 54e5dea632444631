#include "tarnix/properties/edit_properties_execute_handler.h"

#include "tarnix/properties/picked_component.h"
#include "tarnix/properties/property_inputs.h"
#include "tarnix/properties/property_store.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tarnix {

using adsk::core::BoolValueCommandInput;
using adsk::core::ButtonRowCommandInput;
using adsk::core::CommandEventArgs;
using adsk::core::CommandInput;
using adsk::core::CommandInputs;
using adsk::core::GroupCommandInput;
using adsk::core::ListItem;
using adsk::core::ListItems;
using adsk::core::Ptr;
using adsk::core::Selection;
using adsk::core::SelectionCommandInput;
using adsk::core::StringValueCommandInput;
using adsk::fusion::Component;

namespace {

using Entries = std::vector<PropertyEntry>;

const char* flag(bool value) { return value ? "1" : "0"; }

void collectButtons(Entries& entries, const Ptr<ButtonRowCommandInput>& row) {
    const Ptr<ListItems> buttons = row->listItems();
    const std::size_t count = buttons->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<ListItem> button = buttons->item(i);
        entries.push_back({button->name(), flag(button->isSelected())});
    }
}

/// Adds what an input of a group holds. Texts for reading alone hold no property.
void collectInput(Entries& entries, const Ptr<CommandInput>& input) {
    if (const Ptr<StringValueCommandInput> text = input) {
        entries.push_back({text->id(), text->value()});
    } else if (const Ptr<BoolValueCommandInput> button = input) {
        const std::string id = button->id();
        if (id.starts_with("QEMA")) {
            entries.push_back({id, flag(button->value())});
        }
    } else if (const Ptr<ButtonRowCommandInput> row = input) {
        collectButtons(entries, row);
    }
}

void collectGroup(Entries& entries, const Ptr<GroupCommandInput>& group) {
    const Ptr<CommandInputs> children = group->children();
    const std::size_t count = children->count();
    for (std::size_t i = 0; i < count; ++i) {
        collectInput(entries, children->item(i));
    }
}

Entries collectGroups(const Ptr<CommandInputs>& inputs) {
    Entries entries;
    const std::size_t count = inputs->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<CommandInput> input = inputs->item(i);
        if (input->id() == property_inputs::kSelection) {
            continue;
        }
        if (const Ptr<GroupCommandInput> group = input) {
            collectGroup(entries, group);
        }
    }
    return entries;
}

Ptr<Component> pickedComponent(const Ptr<CommandInputs>& inputs) {
    const Ptr<SelectionCommandInput> input = inputs->itemById(property_inputs::kSelection);
    const Ptr<Selection> selection = input ? lastSelection(input) : nullptr;
    return selection ? componentOf(selection->entity()) : nullptr;
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
    const Ptr<CommandInput> properties = inputs->itemById(property_inputs::kProperties);
    writeComponentProperties({collectGroups(properties->commandInputs()), component});
}

}  // namespace tarnix
