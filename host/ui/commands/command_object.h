#pragma once

#include "host/base/string_pool.h"
#include "host/ui/commands/command_definition_object.h"
#include "host/ui/commands/command_events.h"
#include "host/ui/commands/dialog_size.h"
#include "host/ui/inputs/command_inputs_object.h"
#include "host/ui/inputs/tab_bar.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace host::ui {

class CommandRunner;
class UserInterfaceObject;

/// What handlers made of a command and its dialog.
struct CommandState {
    std::string okText = "OK";
    std::string cancelText = "Cancel";
    bool okVisible = true;
    bool autoExecute = true;
    bool executedWhenPreEmpted = true;
    bool repeatable = true;
    /// What the button that cancels is called.
    [[nodiscard]] std::string cancelCaption() const {
        return !okVisible && cancelText == "Cancel" ? "Close" : cancelText;
    }

    DialogSize initialSize;
    DialogSize minimumSize;
    bool customized = false;  ///< has a size or a button text, and so shows even without inputs
    bool shown = false;       ///< the dialog is on the screen
};

/// One run of a command definition: what the module sees of it, and what its dialog shows.
///
/// `CommandRunner` takes it through its life.
class CommandObject final : public Object<core::Command> {
public:
    CommandObject(core::Ptr<CommandDefinitionObject> definition, CommandRunner* runner);

    [[nodiscard]] core::Ptr<core::CommandInputs> commandInputs() const override {
        return get<"commandInputs">(inputs_);
    }
    [[nodiscard]] core::Ptr<core::CommandDefinition> parentCommandDefinition() const override {
        return get<"parentCommandDefinition">(definition_);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> execute() const override {
        return get<"execute">(executeEvent);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> executePreview() const override {
        return get<"executePreview">(previewEvent);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> activate() const override {
        return get<"activate">(activateEvent);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> deactivate() const override {
        return get<"deactivate">(deactivateEvent);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> destroy() const override {
        return get<"destroy">(destroyEvent);
    }
    [[nodiscard]] core::Ptr<core::InputChangedEvent> inputChanged() const override {
        return get<"inputChanged">(changedEvent);
    }
    [[nodiscard]] core::Ptr<core::ValidateInputsEvent> validateInputs() const override {
        return get<"validateInputs">(validateEvent);
    }
    [[nodiscard]] std::string okButtonText() const override {
        return get<"okButtonText">(state_.okText);
    }
    bool okButtonText(const std::string& value) override;
    [[nodiscard]] std::string cancelButtonText() const override {
        return get<"cancelButtonText">(state_.cancelCaption());
    }
    bool cancelButtonText(const std::string& value) override;
    [[nodiscard]] bool isOKButtonVisible() const override {
        return get<"isOKButtonVisible">(state_.okVisible);
    }
    bool isOKButtonVisible(bool value) override {
        return set<"isOKButtonVisible">(state_.okVisible, value);
    }
    [[nodiscard]] bool isAutoExecute() const override {
        return get<"isAutoExecute">(state_.autoExecute);
    }
    bool isAutoExecute(bool value) override {
        return set<"isAutoExecute">(state_.autoExecute, value);
    }
    [[nodiscard]] bool isExecutedWhenPreEmpted() const override {
        return get<"isExecutedWhenPreEmpted">(state_.executedWhenPreEmpted);
    }
    bool isExecutedWhenPreEmpted(bool value) override {
        return set<"isExecutedWhenPreEmpted">(state_.executedWhenPreEmpted, value);
    }
    [[nodiscard]] bool isRepeatable() const override {
        return get<"isRepeatable">(state_.repeatable);
    }
    bool isRepeatable(bool value) override { return set<"isRepeatable">(state_.repeatable, value); }
    bool setDialogInitialSize(int width, int height) override;
    bool setDialogMinimumSize(int width, int height) override;
    bool doExecute(bool terminate) override;

    /// @name For the host itself
    /// @{

    /// The user interface in which it runs; only until `dispose`.
    [[nodiscard]] UserInterfaceObject& ui() const;

    [[nodiscard]] const CommandState& state() const { return state_; }
    void show() { state_.shown = true; }

    /// Whether it is the command that runs and its dialog is on the screen.
    [[nodiscard]] bool isOpen() const;

    [[nodiscard]] StringPool& strings() { return strings_; }
    [[nodiscard]] std::uint32_t nextSerial() { return ++newestSerial_; }
    [[nodiscard]] std::uint32_t newestSerial() const { return newestSerial_; }
    [[nodiscard]] CommandInputsObject& inputs() const { return *inputs_; }
    [[nodiscard]] const core::Ptr<CommandDefinitionObject>& definition() const {
        return definition_;
    }

    /// The tab that shows: the one that was activated, else the first; null without any.
    [[nodiscard]] InputState* activeTab() const;
    void activeTab(InputState* tab) { activeTab_ = tab; }

    [[nodiscard]] InputState& tabBar();

    /// The selection that picks go to: the one that was focused, else the first; null without any.
    [[nodiscard]] InputState* focus() const;
    void focus(InputState* selection);

    /// An input is being disposed of: it is no longer the active tab or the focused selection, and
    /// has no extras.
    void forget(const InputState& input);

    /// What an input has that few have; those of one that has any are made with the first change.
    [[nodiscard]] const InputState::Extras& extrasOf(const InputState& input) const {
        return extras_.at(&input);
    }
    InputState::Extras& changeExtrasOf(const InputState& input) { return extras_[&input]; }

    /// Reports that code changed the value of an input, or selected an item of its list.
    void changedByCode(InputState& input, CodeChange what);

    /// Ends the command, its inputs and its events.
    void dispose();

    /// @}

    /// @name The events, with the names that records show for what a handler threw
    /// @{
    const core::Ptr<CommandEventObject> executeEvent = make<CommandEventObject>("OnExecute", this);
    const core::Ptr<CommandEventObject> previewEvent =
        make<CommandEventObject>("OnExecutePreview", this);
    const core::Ptr<CommandEventObject> activateEvent =
        make<CommandEventObject>("OnActivate", this);
    const core::Ptr<CommandEventObject> deactivateEvent =
        make<CommandEventObject>("OnDeactivate", this);
    const core::Ptr<CommandEventObject> destroyEvent = make<CommandEventObject>("OnDestroy", this);
    const core::Ptr<InputChangedEventObject> changedEvent =
        make<InputChangedEventObject>("OnInputChanged", this);
    const core::Ptr<ValidateInputsEventObject> validateEvent =
        make<ValidateInputsEventObject>("OnValidateInputs", this);
    /// @}

private:
    core::Ptr<CommandDefinitionObject> definition_;
    CommandRunner* runner_;
    StringPool strings_;
    std::uint32_t newestSerial_ = 0;
    core::Ptr<CommandInputsObject> inputs_;
    core::Ptr<TabBar> tabBar_;
    InputState* activeTab_ = nullptr;
    InputState* focus_ = nullptr;
    bool focusChosen_ = false;
    std::unordered_map<const InputState*, InputState::Extras> extras_;
    CommandState state_;
};

}  // namespace host::ui
