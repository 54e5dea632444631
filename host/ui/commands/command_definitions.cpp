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

CommandDefinition::CommandDefinition(CommandDefinitions* owner, std::string id, std::string name,
                                     std::string tooltip, std::string resourceFolder, bool native)
    : createdEvent(make<CreatedEvent>("OnCommandCreated", this)),
      owner_(owner),
      id_(std::move(id)),
      name_(std::move(name)),
      tooltip_(std::move(tooltip)),
      resourceFolder_(std::move(resourceFolder)),
      native_(native) {}

std::string CommandDefinition::id() const {
    if (closed<"CommandDefinition::id">(*this)) return {};
    return id_;
}

std::string CommandDefinition::name() const {
    if (closed<"CommandDefinition::name">(*this)) return {};
    return name_;
}

bool CommandDefinition::name(const std::string& value) {
    if (closed<"CommandDefinition::name">(*this)) return {};
    name_ = value;
    return true;
}

std::string CommandDefinition::tooltip() const {
    if (closed<"CommandDefinition::tooltip">(*this)) return {};
    return tooltip_;
}

bool CommandDefinition::tooltip(const std::string& value) {
    if (closed<"CommandDefinition::tooltip">(*this)) return {};
    tooltip_ = value;
    return true;
}

std::string CommandDefinition::resourceFolder() const {
    if (closed<"CommandDefinition::resourceFolder">(*this)) return {};
    return resourceFolder_;
}

bool CommandDefinition::resourceFolder(const std::string& value) {
    if (closed<"CommandDefinition::resourceFolder">(*this)) return {};
    resourceFolder_ = value;
    return true;
}

core::Ptr<core::CommandCreatedEvent> CommandDefinition::commandCreated() const {
    if (closed<"CommandDefinition::commandCreated">(*this)) return {};
    return createdEvent;
}

bool CommandDefinition::execute(const core::Ptr<core::NamedValues>& /*input*/) {
    if (closed<"CommandDefinition::execute">(*this)) return {};
    owner_->runner().request(core::Ptr<CommandDefinition>(this));
    return true;
}

bool CommandDefinition::deleteMe() {
    if (closed<"CommandDefinition::deleteMe">(*this)) return {};
    if (native_) {
        return fail(core::OperationFailed,
                    "CommandDefinition::deleteMe: " + id_ + " is the host's own");
    }
    owner_->remove(*this);
    return true;
}

void CommandDefinition::dispose() {
    createdEvent->dispose();
    owner_ = nullptr;
    invalidate();
}

std::size_t CommandDefinitions::count() const {
    if (closed<"CommandDefinitions::count">(*this)) return {};
    return all_.size();
}

core::Ptr<core::CommandDefinition> CommandDefinitions::item(std::size_t index) const {
    if (closed<"CommandDefinitions::item">(*this)) return {};
    return index < all_.size() ? all_[index] : nullptr;
}

core::Ptr<core::CommandDefinition> CommandDefinitions::itemById(const std::string& id) const {
    if (closed<"CommandDefinitions::itemById">(*this)) return {};
    return find(id);
}

core::Ptr<core::CommandDefinition> CommandDefinitions::addButtonDefinition(
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
    core::Ptr<CommandDefinition> made =
        make<CommandDefinition>(this, id, name, tooltip, resourceFolder, /*native=*/false);
    all_.push_back(made);
    byId_[id] = made;
    return made;
}

core::Ptr<CommandDefinition> CommandDefinitions::find(const std::string& id) const {
    const auto found = byId_.find(id);
    return found == byId_.end() ? nullptr : found->second;
}

core::Ptr<CommandDefinition> CommandDefinitions::addNative(const std::string& id,
                                                           const std::string& name) {
    core::Ptr<CommandDefinition> made =
        make<CommandDefinition>(this, id, name, "", "", /*native=*/true);
    all_.push_back(made);
    byId_[id] = made;
    return made;
}

void CommandDefinitions::remove(CommandDefinition& definition) {
    const core::Ptr<CommandDefinition> kept(&definition);
    byId_.erase(definition.identifier());
    std::erase(all_, kept);
    definition.dispose();
}

void CommandDefinitions::dispose() {
    for (const core::Ptr<CommandDefinition>& each : all_) {
        each->dispose();
    }
    all_.clear();
    byId_.clear();
    runner_ = nullptr;
    invalidate();
}

}  // namespace host::ui
