#pragma once

#include "host/ui/commands/command_object.h"
#include "host/ui/commands/dialog_inputs.h"
#include "host/ui/commands/scoped_increment.h"
#include "host/ui/host_setup.h"

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace host::ui {

class UserInterfaceObject;

/// Takes commands through their lives, one at a time.
///
/// The order for a command with inputs is: commandStarting; the definition's commandCreated;
/// UserInterface::commandCreated; its dialog shows; activate; inputChanged, validateInputs and
/// executePreview on each change; execute unless it is cancelled; deactivate; destroy;
/// commandTerminated. What handlers request during a notification is done after it.
class CommandRunner {
public:
    CommandRunner(UserInterfaceObject* ui, CodeChanges codeChanges)
        : ui_(ui), inputs_(*this, codeChanges) {}

    /// `idle` is the command that runs from now on whenever no other does; it ends the one that
    /// runs. Each of its starts is announced if `announces` is true.
    void setIdleCommand(const core::Ptr<CommandDefinitionObject>& idle, bool announces) {
        idle_ = idle;
        announcesIdle_ = announces;
    }

    /// The id of the command that runs, that of the idle command while no other does.
    [[nodiscard]] std::string activeId() const;

    /// The command that runs, null for none.
    [[nodiscard]] const core::Ptr<CommandObject>& active() const { return active_; }

    [[nodiscard]] UserInterfaceObject& ui() const { return *ui_; }

    /// True inside any event of a command.
    [[nodiscard]] bool inCommandEvent() const { return notifying_ > 0; }

    /// While the result lives, an event of a command runs.
    [[nodiscard]] ScopedIncrement enterCommandEvent() { return ScopedIncrement(notifying_); }

    /// @name What code requests
    /// @{

    /// Starts a command as soon as no other is at work.
    void request(const core::Ptr<CommandDefinitionObject>& definition);

    /// Executes the running command after the running notification; false where it cannot be.
    bool executeByCode(const CommandObject& command, bool terminate);

    /// Cancels the running command; false inside any event of a command.
    bool terminate();

    /// Notes that an input's value was set, or an item of its list selected.
    void changedByCode(InputState& input, CodeChange what) { inputs_.changedByCode(input, what); }
    /// @}

    /// @name What the user does
    /// @{

    /// The user acts: commands that start each other are counted from here on.
    void beginUserAction() { starts_.clear(); }

    /// The user changed an input: its handlers are notified, the inputs validated and previewed.
    void changed(InputState& input);

    /// The user changed to another tab: reported as a change of the tab bar, and not validated.
    void tabChanged();

    /// True while the model has what the running command would do, as its preview.
    [[nodiscard]] bool showsPreview() const { return active_ && inputs_.showsPreview(); }

    /// Why OK cannot be pressed; empty where it can.
    std::string whyOkRefused();

    void accept();
    void end(core::CommandTerminationReason reason);
    /// @}

    /// Starts the commands that were requested, until there are none. Throws a `MisuseError` when
    /// they keep requesting each other.
    void drainRequests();

    /// True while a command is at work, so that the user has to wait.
    [[nodiscard]] bool isBusy() const { return busy_ > 0; }

    /// True while the command that runs is inside its execution.
    [[nodiscard]] bool isExecuting() const;

    /// Does `work` while a command's execution waits for the host. The user can act meanwhile: the
    /// waiting command is suspended and goes on afterwards, whatever was started.
    void whileWaiting(const std::function<void()>& work);

    /// Ends the running command and drops all requests; the host ends.
    void dispose();

private:
    void start(const core::Ptr<CommandDefinitionObject>& definition);
    void countStart(const std::string& id);
    void enterIdle();
    bool announce(const core::Ptr<CommandDefinitionObject>& definition);
    void create(const core::Ptr<CommandDefinitionObject>& definition);
    void show();
    void end(const core::Ptr<CommandObject>& command, core::CommandTerminationReason reason);
    bool execute();
    void runDeferredRequests();
    void preEmpt();
    bool fireCommand(const core::Ptr<CommandObject>& command,
                     const core::Ptr<CommandEventObject>& event);

    UserInterfaceObject* ui_;
    DialogInputs inputs_;
    core::Ptr<CommandObject> active_;
    core::Ptr<CommandDefinitionObject> idle_;
    bool announcesIdle_ = false;
    bool isIdle_ = false;  ///< `idle_` was announced since a command ended
    std::deque<core::Ptr<CommandDefinitionObject>> requested_;
    std::map<std::string, int> starts_;  ///< since the user acted last
    int notifying_ = 0;
    int busy_ = 0;
    std::vector<core::Ptr<CommandObject>>
        executing_;  ///< each was started while the one before waited
    enum class Deferred { Nothing, Execute, ExecuteAndEnd } deferred_ = Deferred::Nothing;
};

}  // namespace host::ui
