#pragma once

#include "host/ui/commands/command.h"
#include "host/ui/host_setup.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace host::ui {

class UserInterfaceObject;

/// Leads commands through their lives, one at a time.
///
/// The order for a command with inputs is: commandStarting; the definition's commandCreated;
/// UserInterface::commandCreated; its dialog shows; activate; inputChanged, validateInputs and
/// executePreview as the user goes on; execute unless it is cancelled; deactivate; destroy;
/// commandTerminated. Whatever is asked for during a notification happens after it.
class CommandRunner {
public:
    CommandRunner(UserInterfaceObject* ui, CodeChanges codeChanges)
        : ui_(ui), codeChanges_(codeChanges) {}

    /// Announces `idle` from now on whenever no other command runs.
    void setIdleCommand(const core::Ptr<CommandDefinitionObject>& idle) { idle_ = idle; }

    /// The command that runs, null for none.
    [[nodiscard]] const core::Ptr<CommandObject>& active() const { return active_; }

    [[nodiscard]] UserInterfaceObject& ui() const { return *ui_; }

    /// True inside any event of a command.
    [[nodiscard]] bool inCommandEvent() const { return notifying_ > 0; }

    /// @name What code asks for
    /// @{

    /// Starts a command as soon as nothing else goes on.
    void request(const core::Ptr<CommandDefinitionObject>& definition);

    /// Executes the running command after the running notification; false where it cannot be.
    bool executeByCode(bool terminate);

    /// Cancels the running command; false inside any event of a command.
    bool terminate();

    /// An input's value was set, or an item of its list selected.
    void changedByCode(InputState& input, CodeChange what);
    /// @}

    /// @name What a person does
    /// @{

    /// A person acts: from here on commands can start again without end.
    void beginUserAction() { starts_.clear(); }

    /// The person changed an input; tells the handlers, and whatever follows from that.
    void changed(InputState& input);

    /// The person changed to another tab.
    void tabChanged();

    /// Why OK cannot be pressed; empty where it can.
    std::string whyOkRefused();

    void accept();
    void end(core::CommandTerminationReason reason);
    /// @}

    /// Starts what was asked for, as long as there is something. Throws a `MisuseError` when a
    /// command would start for ever.
    void drainRequests();

    /// True while a command is at work, so that a person has to wait.
    [[nodiscard]] bool isBusy() const { return busy_ > 0; }

    /// True while the command that runs is inside its execution.
    [[nodiscard]] bool isExecuting() const;

    /// Does what came in while a command's execution waits for the host. A person can act
    /// meanwhile: the waiting command stands back and goes on afterwards, whatever was started.
    void whileWaiting(const std::function<void()>& work);

    /// Ends the running command and forgets what was asked for; the host ends.
    void dispose();

private:
    void start(const core::Ptr<CommandDefinitionObject>& definition);
    void countStart(const std::string& id);
    void enterIdle();
    bool announce(const core::Ptr<CommandDefinitionObject>& definition);
    void create(const core::Ptr<CommandDefinitionObject>& definition);
    void show();
    void takeCurrentSelections();
    void notifyInputChanged(InputState& input);
    void notifyCodeChanges();
    void validate();
    void preview();
    void takeBackPreview();
    void end(const core::Ptr<CommandObject>& command, core::CommandTerminationReason reason);
    [[nodiscard]] std::string refusalByInputs() const;
    bool execute();
    void runDeferredRequests();
    void preEmpt();
    bool fireCommand(const core::Ptr<CommandObject>& command,
                     const core::Ptr<CommandEventObject>& event);

    UserInterfaceObject* ui_;
    CodeChanges codeChanges_;
    core::Ptr<CommandObject> active_;
    core::Ptr<CommandDefinitionObject> idle_;
    bool isIdle_ = false;  ///< `idle_` was announced since a command ended
    std::deque<core::Ptr<CommandDefinitionObject>> requested_;
    std::map<std::string, int> starts_;  ///< since a person did something
    int notifying_ = 0;
    int busy_ = 0;
    std::vector<core::Ptr<CommandObject>>
        executing_;  ///< each was started while the one before waited

    std::uint32_t firstNewSerial_ =
        0;                       ///< inputs from this one on were made by the running handlers
    bool tellsChanges_ = false;  ///< while inputChanged runs
    std::deque<core::Ptr<core::CommandInput>> codeChanged_;
    enum class Asked { Nothing, Execute, ExecuteAndEnd } asked_ = Asked::Nothing;
    bool valid_ = true;
    bool previewed_ = false;      ///< what the last preview did has still to be taken back
    bool previewStands_ = false;  ///< the last preview stands for the execution
};

}  // namespace host::ui
