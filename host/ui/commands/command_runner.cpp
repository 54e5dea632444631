#include "host/ui/commands/command_runner.h"

#include "host/base/last_error.h"
#include "host/ui/inputs/selection_command_input_object.h"
#include "host/ui/user_interface_object.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace host::ui {
namespace {

// A command that keeps starting itself would hang the session.
constexpr int kMostStarts = 10;

/// While it lives, a command that waits is suspended: nothing is at work, and if it is the one that
/// runs, none runs.
class SuspendedCommand {
public:
    SuspendedCommand(core::Ptr<CommandObject>& active, bool suspends, int& busy, int& notifying)
        : active_(active),
          waiting_(suspends ? std::exchange(active, nullptr) : nullptr),
          busy_(busy),
          notifying_(notifying),
          before_(std::exchange(busy, 0), std::exchange(notifying, 0)) {}
    SuspendedCommand(const SuspendedCommand&) = delete;
    SuspendedCommand& operator=(const SuspendedCommand&) = delete;
    ~SuspendedCommand() {
        if (!active_) {
            active_ = waiting_;
        }
        std::tie(busy_, notifying_) = before_;
    }

private:
    core::Ptr<CommandObject>& active_;
    core::Ptr<CommandObject> waiting_;
    int& busy_;
    int& notifying_;
    std::pair<int, int> before_;
};

}  // namespace

void CommandRunner::request(const core::Ptr<CommandDefinitionObject>& definition) {
    requested_.push_back(definition);
    drainRequests();
}

void CommandRunner::drainRequests() {
    if (busy_ > 0 || gate::isModuleRunning()) return;
    if (deferred_ != Deferred::Nothing) {
        const ScopedIncrement busy(busy_);
        runDeferredRequests();
    }
    do {
        while (!requested_.empty()) {
            const core::Ptr<CommandDefinitionObject> next = requested_.front();
            requested_.pop_front();
            start(next);
        }
        enterIdle();
    } while (!requested_.empty());
}

// The idle command cannot be cancelled: what handlers answer is ignored.
void CommandRunner::enterIdle() {
    if (!idle_ || !announcesIdle_ || active_ || std::exchange(isIdle_, true)) return;
    const ScopedIncrement busy(busy_);
    announce(idle_);
}

void CommandRunner::countStart(const std::string& id) {
    if (++starts_[id] <= kMostStarts) return;
    requested_.clear();
    throw MisuseError("the command " + id + " was started " + std::to_string(kMostStarts) +
                      " times without an action of the user in between: it keeps starting itself");
}

std::string CommandRunner::activeId() const {
    if (active_) return active_->definition()->state().id;
    return idle_ ? idle_->state().id : "";
}

void CommandRunner::start(const core::Ptr<CommandDefinitionObject>& definition) {
    if (!definition->isValid()) return;
    if (definition == idle_) {
        // It has no life of its own: to start it is to end what runs.
        if (active_) {
            preEmpt();
        }
        return;
    }
    countStart(definition->state().id);
    const ScopedIncrement busy(busy_);
    if (!announce(definition)) return;
    if (active_) {
        preEmpt();
    }
    if (definition->isValid()) {
        create(definition);
    }
}

bool CommandRunner::announce(const core::Ptr<CommandDefinitionObject>& definition) {
    const ScopedIncrement notifying(notifying_);
    const auto arguments = make<ApplicationCommandEventArgsObject>(
        ui_->startingEvent,
        ApplicationCommandState{
            .commandId = definition->state().id, .definition = definition, .cancellable = true});
    ui_->startingEvent->fire(arguments);
    return !arguments->state().cancelled;
}

void CommandRunner::create(const core::Ptr<CommandDefinitionObject>& definition) {
    const core::Ptr<CommandObject> command = make<CommandObject>(definition, this);
    active_ = command;
    inputs_.begin();
    bool quiet = true;
    {
        const ScopedIncrement notifying(notifying_);
        quiet = definition->createdEvent->fire(
            make<CommandCreatedEventArgsObject>(definition->createdEvent, command));
        ui_->createdEvent->fire(make<ApplicationCommandEventArgsObject>(
            ui_->createdEvent, ApplicationCommandState{.commandId = definition->state().id,
                                                       .definition = definition}));
    }
    if (active_ != command) return;
    if (command->inputs().size() > 0 || (quiet && command->state().customized)) {
        show();
    } else if (!quiet) {
        end(core::AbortedTerminationReason);
    } else {
        if (command->state().autoExecute) {
            deferred_ = Deferred::ExecuteAndEnd;
        }
        runDeferredRequests();
    }
}

void CommandRunner::show() {
    const core::Ptr<CommandObject> command = active_;
    command->show();
    fireCommand(command, command->activateEvent);
    inputs_.takeCurrentSelections();
    if (active_ == command) {
        inputs_.validateAndPreview();
        runDeferredRequests();
    }
}

void CommandRunner::changed(InputState& input) {
    const ScopedIncrement busy(busy_);
    const core::Ptr<CommandObject> command = active_;
    inputs_.notifyChanged(input);
    if (active_ == command) {
        inputs_.validateAndPreview();
        runDeferredRequests();
    }
}

void CommandRunner::tabChanged() {
    const ScopedIncrement busy(busy_);
    inputs_.notifyChanged(active_->tabBar());
    runDeferredRequests();
}

std::string CommandRunner::whyOkRefused() {
    if (!active_ || !active_->state().shown) return "no dialog is open";
    if (!active_->state().okVisible) return "the dialog has no such button";
    return inputs_.whyInvalid();
}

void CommandRunner::accept() {
    const ScopedIncrement busy(busy_);
    if (inputs_.acceptPreview()) {
        end(core::CompletedTerminationReason);
        return;
    }
    const core::Ptr<CommandObject> command = active_;
    const bool executed = execute();
    end(command, executed ? core::CompletedTerminationReason : core::AbortedTerminationReason);
}

bool CommandRunner::execute() {
    const core::Ptr<CommandObject> command = active_;
    inputs_.takeBackPreview();
    const std::uint64_t edits = ui_->editsOfModel();
    const std::uint64_t record = ui_->history.begin();
    const auto arguments = make<CommandEventArgsObject>(command->executeEvent, command);
    {
        const ScopedIncrement notifying(notifying_);
        executing_.push_back(command);
        command->executeEvent->fire(arguments);
        executing_.pop_back();
    }
    ui_->history.end(record);
    if (arguments->state().failed) {
        ui_->history.takeBack(record);
    } else {
        ui_->history.keep(record);
    }
    if (ui_->editsOfModel() != edits) {
        ui_->state().selections->list.clear();
    }
    return !arguments->state().failed;
}

bool CommandRunner::executeByCode(const CommandObject& command, bool terminate) {
    if (active_.get() != &command) {
        return fail(core::OperationFailed, "Command::doExecute: the command does not run");
    }
    if (command.state().shown && !inputs_.whyInvalid().empty()) {
        return fail(core::OperationFailed, "Command::doExecute: the dialog cannot be accepted");
    }
    deferred_ = terminate ? Deferred::ExecuteAndEnd : Deferred::Execute;
    return true;
}

// Does what a handler requested while it ran.
void CommandRunner::runDeferredRequests() {
    const Deferred deferred = std::exchange(deferred_, Deferred::Nothing);
    if (!active_ || deferred == Deferred::Nothing) return;
    if (deferred == Deferred::ExecuteAndEnd) {
        accept();
    } else {
        execute();
    }
}

void CommandRunner::preEmpt() {
    if (active_->state().shown && active_->state().executedWhenPreEmpted &&
        inputs_.whyInvalid().empty()) {
        execute();
    }
    end(core::PreEmptedTerminationReason);
}

bool CommandRunner::terminate() {
    if (inCommandEvent()) {
        return misuse("UserInterface::terminateActiveCommand",
                      "called inside an event of a command");
    }
    if (active_) {
        end(core::CancelledTerminationReason);
        drainRequests();
    }
    return true;
}

void CommandRunner::end(core::CommandTerminationReason reason) {
    const core::Ptr<CommandObject> command = active_;
    end(command, reason);
}

void CommandRunner::end(const core::Ptr<CommandObject>& command,
                        core::CommandTerminationReason reason) {
    const ScopedIncrement busy(busy_);
    inputs_.takeBackPreview();
    fireCommand(command, command->deactivateEvent);
    {
        const ScopedIncrement notifying(notifying_);
        command->destroyEvent->fire(
            make<CommandEventArgsObject>(command->destroyEvent, command, reason));
    }
    for (InputState* each : command->inputs().ofKind(InputKind::Selection)) {
        selectionOf(each).dropAll();
    }
    // Another command can have been started while this one waited.
    if (active_ == command) {
        active_ = nullptr;
        inputs_.end();
        deferred_ = Deferred::Nothing;
    }
    isIdle_ = false;
    const core::Ptr<CommandDefinitionObject> definition = command->definition();
    command->dispose();
    const ScopedIncrement notifying(notifying_);
    ui_->terminatedEvent->fire(make<ApplicationCommandEventArgsObject>(
        ui_->terminatedEvent,
        ApplicationCommandState{
            .commandId = definition->state().id, .definition = definition, .reason = reason}));
}

void CommandRunner::dispose() {
    if (active_) {
        end(core::SessionEndingTerminationReason);
    }
    idle_ = nullptr;
    requested_.clear();
}

bool CommandRunner::fireCommand(const core::Ptr<CommandObject>& command,
                                const core::Ptr<CommandEventObject>& event) {
    const ScopedIncrement notifying(notifying_);
    return event->fire(make<CommandEventArgsObject>(event, command));
}

bool CommandRunner::isExecuting() const {
    return active_ && std::find(executing_.begin(), executing_.end(), active_) != executing_.end();
}

void CommandRunner::whileWaiting(const std::function<void()>& work) {
    if (executing_.empty()) {
        work();
        return;
    }
    const SuspendedCommand waiting(active_, isExecuting(), busy_, notifying_);
    work();
}

}  // namespace host::ui
