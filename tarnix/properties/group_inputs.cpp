#include "tarnix/properties/group_inputs.h"

#include "tarnix/properties/property_inputs.h"

#include <cstddef>

namespace tarnix {

using adsk::core::CommandInput;
using adsk::core::CommandInputs;
using adsk::core::GroupCommandInput;
using adsk::core::Ptr;
using adsk::core::StringValueCommandInput;

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

}  // namespace tarnix
