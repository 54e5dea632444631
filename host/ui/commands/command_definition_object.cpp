#include "host/ui/commands/command_definition_object.h"

#include "host/base/last_error.h"
#include "host/ui/commands/command_definitions_object.h"
#include "host/ui/commands/command_runner.h"

#include <utility>

namespace host::ui {

// The event's name is the one that records show for what a handler threw.
CommandDefinitionObject::CommandDefinitionObject(CommandDefinitionsObject* owner,
                                                 CommandDefinitionState state)
    : createdEvent(make<CommandCreatedEventObject>("OnCommandCreated", this)),
      owner_(owner),
      state_(std::move(state)) {}

bool CommandDefinitionObject::execute(const core::Ptr<core::NamedValues>& /*input*/) {
    if (closed<"execute">(*this)) return {};
    owner_->runner().request(core::Ptr<CommandDefinitionObject>(this));
    return true;
}

bool CommandDefinitionObject::deleteMe() {
    if (closed<"deleteMe">(*this)) return {};
    if (state_.native) {
        return fail(core::OperationFailed,
                    "CommandDefinition::deleteMe: " + state_.id + " is the host's own");
    }
    owner_->remove(*this);
    return true;
}

void CommandDefinitionObject::dispose() {
    createdEvent->dispose();
    owner_ = nullptr;
    invalidate();
}

}  // namespace host::ui
