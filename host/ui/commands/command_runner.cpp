#include "host/ui/commands/command_runner.h"

#include "host/base/last_error.h"
#include "host/ui/commands/scoped_increment.h"
#include "host/ui/inputs/selection_input.h"
#include "host/ui/user_interface.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace host::ui {
namespace {

// A command that starts itself over and over would hang the session.
constexpr int kMostStarts = 10;

/// While it lives, a command that waits is out of the way: nothing is at work, and if it is the one
/// that runs, none runs.
class SuspendedCommand {
public:
    SuspendedCommand(core::Ptr<CommandObject>& active, bool standsBack, int& busy, int& notifying)
        : active_(active),
          waiting_(standsBack ? std::exchange(active, nullptr) : nullptr),
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
    do {
        while (!requested_.empty()) {
            const core::Ptr<CommandDefinitionObject> next = requested_.front();
            requested_.pop_front();
            start(next);
        }
        enterIdle();
    } while (!requested_.empty());
}

// Nothing can keep the host from falling idle: a handler that objects is not heard.
void CommandRunner::enterIdle() {
    if (!idle_ || active_ || std::exchange(isIdle_, true)) return;
    const ScopedIncrement busy(busy_);
    announce(idle_);
}

void CommandRunner::countStart(const std::string& id) {
    if (++starts_[id] <= kMostStarts) return;
    requested_.clear();
    throw MisuseError("the command " + id + " was started " + std::to_string(kMostStarts) +
                      " times without an action of a person in between: it starts itself for ever");
}

void CommandRunner::start(const core::Ptr<CommandDefinitionObject>& definition) {
    if (!definition->isValid()) return;
    countStart(definition->identifier());
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
        ui_->startingEvent, definition->identifier(), definition,
        /*cancellable=*/true);
    ui_->startingEvent->fire(arguments);
    return !arguments->cancelled();
}

void CommandRunner::create(const core::Ptr<CommandDefinitionObject>& definition) {
    const core::Ptr<CommandObject> command = make<CommandObject>(definition, this);
    active_ = command;
    valid_ = true;
    previewStands_ = false;
    bool quiet = true;
    {
        const ScopedIncrement notifying(notifying_);
        quiet = definition->createdEvent->fire(
            make<CommandCreatedEventArgsObject>(definition->createdEvent, command));
        ui_->createdEvent->fire(make<ApplicationCommandEventArgsObject>(
            ui_->createdEvent, definition->identifier(), definition, /*cancellable=*/false));
    }
    if (active_ != command) return;
    if (command->inputs().size() > 0 || (quiet && command->isDressed())) {
        show();
    } else if (!quiet) {
        end(core::AbortedTerminationReason);
    } else if (command->executesByItself()) {
        const bool executed = execute();
        end(command, executed ? core::CompletedTerminationReason : core::AbortedTerminationReason);
    }
}

void CommandRunner::show() {
    const core::Ptr<CommandObject> command = active_;
    command->show();
    fireCommand(command, command->activateEvent);
    takeCurrentSelections();
    if (active_ == command) {
        validate();
        preview();
        runDeferredRequests();
    }
}

void CommandRunner::accept() {
    const ScopedIncrement busy(busy_);
    if (previewStands_) {
        previewed_ = false;
        end(core::CompletedTerminationReason);
        return;
    }
    const core::Ptr<CommandObject> command = active_;
    const bool executed = execute();
    end(command, executed ? core::CompletedTerminationReason : core::AbortedTerminationReason);
}

bool CommandRunner::execute() {
    const core::Ptr<CommandObject> command = active_;
    takeBackPreview();
    const std::uint64_t edits = ui_->editsOfModel();
    if (ui_->history.mark) {
        ui_->history.mark();
    }
    const auto arguments = make<CommandEventArgsObject>(command->executeEvent, command);
    {
        const ScopedIncrement notifying(notifying_);
        executing_.push_back(command);
        command->executeEvent->fire(arguments);
        executing_.pop_back();
    }
    if (arguments->failed()) {
        if (ui_->history.takeBack) {
            ui_->history.takeBack();
        } else {
            notImplemented("CommandEventArgs::executeFailed: taking back what was done");
        }
    }
    if (ui_->editsOfModel() != edits) {
        ui_->selections().list.clear();
    }
    return !arguments->failed();
}

bool CommandRunner::executeByCode(bool terminate) {
    if (!active_ || !active_->isShown() || !refusalByInputs().empty()) {
        return fail(core::OperationFailed, "Command::doExecute: the dialog cannot be accepted");
    }
    asked_ = terminate ? Asked::ExecuteAndEnd : Asked::Execute;
    return true;
}

// Does what a handler asked for while it ran.
void CommandRunner::runDeferredRequests() {
    const Asked asked = std::exchange(asked_, Asked::Nothing);
    if (!active_ || asked == Asked::Nothing) return;
    if (asked == Asked::ExecuteAndEnd) {
        accept();
    } else {
        execute();
    }
}

void CommandRunner::preEmpt() {
    if (active_->isShown() && active_->executesWhenPreEmpted() && refusalByInputs().empty()) {
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
    takeBackPreview();
    fireCommand(command, command->deactivateEvent);
    {
        const ScopedIncrement notifying(notifying_);
        command->destroyEvent->fire(
            make<CommandEventArgsObject>(command->destroyEvent, command, reason));
    }
    for (InputState* each : command->inputs().ofKind(InputKind::Selection)) {
        selectionOf(each).dropAll();
    }
    // Another one stands there where it was started while this one waited.
    if (active_ == command) {
        active_ = nullptr;
        codeChanged_.clear();
        asked_ = Asked::Nothing;
    }
    isIdle_ = false;
    const core::Ptr<CommandDefinitionObject> definition = command->definition();
    command->dispose();
    const ScopedIncrement notifying(notifying_);
    ui_->terminatedEvent->fire(make<ApplicationCommandEventArgsObject>(
        ui_->terminatedEvent, definition->identifier(), definition,
        /*cancellable=*/false, reason));
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
