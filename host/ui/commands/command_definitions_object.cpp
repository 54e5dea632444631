#include "host/ui/commands/command_definitions_object.h"

#include <algorithm>

namespace host::ui {
namespace {

bool isIdCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

bool isId(const std::string& value) {
    return !value.empty() && std::all_of(value.begin(), value.end(), isIdCharacter);
}

}  // namespace

core::Ptr<core::CommandDefinition> CommandDefinitionsObject::addButtonDefinition(
    const std::string& id, const std::string& name, const std::string& tooltip,
    const std::string& resourceFolder) {
    constexpr const char* kOperation = "CommandDefinitions::addButtonDefinition";
    if (closed<"addButtonDefinition">(*this)) return {};
    if (!isId(id)) {
        misuse(kOperation, "\"" + id + "\" is not an id: only A-Z a-z 0-9 _ are allowed");
        return {};
    }
    if (find(id)) {
        misuse(kOperation, "the id \"" + id + "\" is in use");
        return {};
    }
    return append({.id = id, .name = name, .tooltip = tooltip, .resourceFolder = resourceFolder});
}

core::Ptr<CommandDefinitionObject> CommandDefinitionsObject::find(const std::string& id) const {
    const auto found = byId_.find(id);
    return found == byId_.end() ? nullptr : found->second;
}

core::Ptr<CommandDefinitionObject> CommandDefinitionsObject::addNative(const std::string& id,
                                                                       const std::string& name) {
    return append({.id = id, .name = name, .tooltip = "", .resourceFolder = "", .native = true});
}

core::Ptr<CommandDefinitionObject> CommandDefinitionsObject::append(
    const CommandDefinitionState& state) {
    all_.push_back(make<CommandDefinitionObject>(this, state));
    byId_[state.id] = all_.back();
    return all_.back();
}

void CommandDefinitionsObject::remove(CommandDefinitionObject& definition) {
    byId_.erase(definition.state().id);
    removeEntry(all_, definition);
}

void CommandDefinitionsObject::dispose() {
    disposeEntries(all_);
    byId_.clear();
    runner_ = nullptr;
    invalidate();
}

}  // namespace host::ui
