#include "host/ui/commands/command_definitions.h"

#include "host/base/last_error.h"
#include "host/ui/commands/command_runner.h"

#include <algorithm>
#include <utility>

namespace host::ui {
namespace {

bool isIdCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool isId(const std::string& text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), isIdCharacter);
}

}  // namespace

CommandDefinitionObject::CommandDefinitionObject(CommandDefinitionsObject* owner, std::string id,
                                                 std::string name, std::string tooltip,
                                                 std::string resourceFolder, bool native)
    : createdEvent(make<CommandCreatedEventObject>("OnCommandCreated", this)),
      owner_(owner),
      id_(std::move(id)),
      name_(std::move(name)),
      tooltip_(std::move(tooltip)),
      resourceFolder_(std::move(resourceFolder)),
      native_(native) {}

bool CommandDefinitionObject::execute(const core::Ptr<core::NamedValues>& /*input*/) {
    if (closed<"CommandDefinition::execute">(*this)) return {};
    owner_->runner().request(core::Ptr<CommandDefinitionObject>(this));
    return true;
}

bool CommandDefinitionObject::deleteMe() {
    if (closed<"CommandDefinition::deleteMe">(*this)) return {};
    if (native_) {
        return fail(core::OperationFailed,
                    "CommandDefinition::deleteMe: " + id_ + " is the host's own");
    }
    owner_->remove(*this);
    return true;
}

void CommandDefinitionObject::dispose() {
    createdEvent->dispose();
    owner_ = nullptr;
    invalidate();
}

std::size_t CommandDefinitionsObject::count() const {
    if (closed<"CommandDefinitions::count">(*this)) return {};
    return all_.size();
}

core::Ptr<core::CommandDefinition> CommandDefinitionsObject::item(std::size_t index) const {
    if (closed<"CommandDefinitions::item">(*this)) return {};
    return index < all_.size() ? all_[index] : nullptr;
}

core::Ptr<core::CommandDefinition> CommandDefinitionsObject::itemById(const std::string& id) const {
    if (closed<"CommandDefinitions::itemById">(*this)) return {};
    return find(id);
}

core::Ptr<core::CommandDefinition> CommandDefinitionsObject::addButtonDefinition(
    const std::string& id, const std::string& name, const std::string& tooltip,
    const std::string& resourceFolder) {
    constexpr const char* kOperation = "CommandDefinitions::addButtonDefinition";
    if (closed<"CommandDefinitions::addButtonDefinition">(*this)) return {};
    if (!isId(id)) {
        misuse(kOperation, "\"" + id + "\" is no id: only A-Z a-z 0-9 _ can stand in it");
        return {};
    }
    if (find(id)) {
        misuse(kOperation, "the id \"" + id + "\" is in use");
        return {};
    }
    core::Ptr<CommandDefinitionObject> made =
        make<CommandDefinitionObject>(this, id, name, tooltip, resourceFolder, /*native=*/false);
    all_.push_back(made);
    byId_[id] = made;
    return made;
}

core::Ptr<CommandDefinitionObject> CommandDefinitionsObject::find(const std::string& id) const {
    const auto found = byId_.find(id);
    return found == byId_.end() ? nullptr : found->second;
}

core::Ptr<CommandDefinitionObject> CommandDefinitionsObject::addNative(const std::string& id,
                                                                       const std::string& name) {
    core::Ptr<CommandDefinitionObject> made =
        make<CommandDefinitionObject>(this, id, name, "", "", /*native=*/true);
    all_.push_back(made);
    byId_[id] = made;
    return made;
}

void CommandDefinitionsObject::remove(CommandDefinitionObject& definition) {
    const core::Ptr<CommandDefinitionObject> kept(&definition);
    byId_.erase(definition.identifier());
    std::erase(all_, kept);
    definition.dispose();
}

void CommandDefinitionsObject::dispose() {
    for (const core::Ptr<CommandDefinitionObject>& each : all_) {
        each->dispose();
    }
    all_.clear();
    byId_.clear();
    runner_ = nullptr;
    invalidate();
}

}  // namespace host::ui
