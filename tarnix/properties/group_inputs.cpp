#include "tarnix/properties/group_inputs.h"

#include "tarnix/properties/bom_structure_buttons.h"
#include "tarnix/properties/property_inputs.h"

#include <cstddef>

namespace tarnix {

using namespace adsk::core;

namespace {

template <class Action>
void forEachInput(const Ptr<CommandInputs>& inputs, const Action& action) {
    const std::size_t count = inputs->count();
    for (std::size_t i = 0; i < count; ++i) {
        action(inputs->item(i));
    }
}

template <class Action>
void forEachInGroups(const Ptr<CommandInputs>& inputs, const Action& action) {
    forEachInput(inputs, [&action](const Ptr<CommandInput>& input) {
        const Ptr<GroupCommandInput> group = input;
        if (input->id() != property_inputs::kSelection && group) {
            forEachInput(group->children(), action);
        }
    });
}

using Entries = std::vector<PropertyEntry>;

const char* flag(bool value) { return value ? "1" : "0"; }

void collectButtons(Entries& entries, const Ptr<ButtonRowCommandInput>& row) {
    const Ptr<ListItems> buttons = row->listItems();
    const std::size_t count = buttons->count();
    for (std::size_t i = 0; i < count; ++i) {
        const Ptr<ListItem> button = buttons->item(i);
        entries.push_back({.name = captionOf(button, i), .value = flag(button->isSelected())});
    }
}

void collectInput(Entries& entries, const Ptr<CommandInput>& input) {
    if (const Ptr<StringValueCommandInput> line = input) {
        entries.push_back({.name = line->id(), .value = line->value()});
    } else if (const Ptr<BoolValueCommandInput> box = input) {
        const std::string id = box->id();
        if (id.starts_with("QEMA")) {
            entries.push_back({.name = id, .value = flag(box->value())});
        }
    } else if (const Ptr<ButtonRowCommandInput> row = input) {
        collectButtons(entries, row);
    }
}

}  // namespace

void clearValues(const Ptr<CommandInputs>& inputs) {
    forEachInGroups(inputs, [](const Ptr<StringValueCommandInput>& line) {
        if (line) {
            line->value("");
        }
    });
}

void enableInputs(const Ptr<CommandInputs>& inputs, bool enabled) {
    forEachInGroups(inputs,
                    [enabled](const Ptr<CommandInput>& input) { input->isEnabled(enabled); });
}

std::vector<PropertyEntry> collectValues(const Ptr<CommandInputs>& inputs) {
    Entries entries;
    forEachInGroups(inputs,
                    [&entries](const Ptr<CommandInput>& input) { collectInput(entries, input); });
    return entries;
}

}  // namespace tarnix
