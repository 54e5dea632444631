#pragma once

#include "host/ui/commands/command_definitions.h"
#include "host/ui/commands/command_events.h"
#include "host/ui/inputs/command_inputs.h"
#include "host/ui/inputs/text_pool.h"

#include <cstdint>
#include <string>

namespace host::ui {

class CommandRunner;
class SelectionCommandInputObject;
class TabCommandInputObject;
class UserInterfaceObject;

/// A size in pixels; nothing where it is 0 by 0.
struct DialogSize {
    int width = 0;
    int height = 0;

    bool operator==(const DialogSize&) const = default;
};

/// The row of tabs, which reports changes of tab.
class TabBar final : public CommandInputObject<core::CommandInput> {
public:
    explicit TabBar(const InputOrigin& origin) : CommandInputObject(origin, InputKind::TabBar) {}
};

/// One run of a command definition: what the module sees of it, and what its dialog shows.
///
/// `CommandRunner` leads it through its life.
class CommandObject final : public Object<core::Command> {
public:
    CommandObject(core::Ptr<CommandDefinitionObject> definition, CommandRunner* runner);

    [[nodiscard]] core::Ptr<core::CommandInputs> commandInputs() const override {
        return get<"Command::commandInputs">(inputs_);
    }
    [[nodiscard]] core::Ptr<core::CommandDefinition> parentCommandDefinition() const override {
        return get<"Command::parentCommandDefinition">(definition_);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> execute() const override {
        return get<"Command::execute">(executeEvent);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> executePreview() const override {
        return get<"Command::executePreview">(previewEvent);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> activate() const override {
        return get<"Command::activate">(activateEvent);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> deactivate() const override {
        return get<"Command::deactivate">(deactivateEvent);
    }
    [[nodiscard]] core::Ptr<core::CommandEvent> destroy() const override {
        return get<"Command::destroy">(destroyEvent);
    }
    [[nodiscard]] core::Ptr<core::InputChangedEvent> inputChanged() const override {
        return get<"Command::inputChanged">(changedEvent);
    }
    [[nodiscard]] core::Ptr<core::ValidateInputsEvent> validateInputs() const override {
        return get<"Command::validateInputs">(validateEvent);
    }
    [[nodiscard]] std::string okButtonText() const override {
        return get<"Command::okButtonText">(okText_);
    }
    bool okButtonText(const std::string& value) override;
    [[nodiscard]] std::string cancelButtonText() const override {
        return get<"Command::cancelButtonText">(cancelText_);
    }
    bool cancelButtonText(const std::string& value) override;
    [[nodiscard]] bool isOKButtonVisible() const override {
        return get<"Command::isOKButtonVisible">(okVisible_);
    }
    bool isOKButtonVisible(bool value) override {
        return set<"Command::isOKButtonVisible">(okVisible_, value);
    }
    [[nodiscard]] bool isAutoExecute() const override {
        return get<"Command::isAutoExecute">(autoExecute_);
    }
    bool isAutoExecute(bool value) override {
        return set<"Command::isAutoExecute">(autoExecute_, value);
    }
    [[nodiscard]] bool isExecutedWhenPreEmpted() const override {
        return get<"Command::isExecutedWhenPreEmpted">(executedWhenPreEmpted_);
    }
    bool isExecutedWhenPreEmpted(bool value) override {
        return set<"Command::isExecutedWhenPreEmpted">(executedWhenPreEmpted_, value);
    }
    [[nodiscard]] bool isRepeatable() const override {
        return get<"Command::isRepeatable">(repeatable_);
    }
    bool isRepeatable(bool value) override {
        return set<"Command::isRepeatable">(repeatable_, value);
    }
    bool setDialogInitialSize(int width, int height) override;
    bool setDialogMinimumSize(int width, int height) override;
    bool doExecute(bool terminate) override;

    /// @name For the host itself
    /// @{

    /// The user interface in which it runs; only until `dispose`.
    [[nodiscard]] UserInterfaceObject& ui() const;

    [[nodiscard]] StringPool& texts() { return texts_; }
    [[nodiscard]] std::uint32_t nextSerial() { return ++newestSerial_; }
    [[nodiscard]] std::uint32_t newestSerial() const { return newestSerial_; }
    [[nodiscard]] CommandInputsObject& inputs() const { return *inputs_; }
    [[nodiscard]] const core::Ptr<CommandDefinitionObject>& definition() const {
        return definition_;
    }

    /// The tab that shows: the one that was activated, else the first; null without any.
    [[nodiscard]] InputState* activeTab() const;
    void activeTab(InputState* tab) { activeTab_ = tab; }

    /// What a change of tab is told as; no collection holds it.
    [[nodiscard]] InputState& tabBar();

    /// The selection that picks go to: the one that was focused, else the first; null without any.
    [[nodiscard]] InputState* focus() const;
    void focus(InputState* selection);

    /// An input goes: it is neither the tab that shows nor the selection with the focus any more.
    void forget(const InputState& input);

    /// Whether its dialog stands on the screen.
    [[nodiscard]] bool isShown() const { return shown_; }
    void show() { shown_ = true; }

    /// Whether it is the command that runs and its dialog is on the screen.
    [[nodiscard]] bool isOpen() const;

    /// Whether handlers gave the dialog a size or a text, which an empty dialog shows too.
    [[nodiscard]] bool isDressed() const { return dressed_; }

    [[nodiscard]] DialogSize initialSize() const { return initialSize_; }
    [[nodiscard]] DialogSize minimumSize() const { return minimumSize_; }
    [[nodiscard]] bool okShown() const { return okVisible_; }
    [[nodiscard]] bool executesByItself() const { return autoExecute_; }
    [[nodiscard]] bool executesWhenPreEmpted() const { return executedWhenPreEmpted_; }

    /// Code changed the value of an input, or selected an item of its list.
    void changedByCode(InputState& input, CodeChange what);

    /// Ends it: handles find an invalid command, and its inputs are gone.
    void dispose();

    const core::Ptr<CommandEventObject> executeEvent;
    const core::Ptr<CommandEventObject> previewEvent;
    const core::Ptr<CommandEventObject> activateEvent;
    const core::Ptr<CommandEventObject> deactivateEvent;
    const core::Ptr<CommandEventObject> destroyEvent;
    const core::Ptr<InputChangedEventObject> changedEvent;
    const core::Ptr<ValidateInputsEventObject> validateEvent;
    /// @}

private:
    core::Ptr<CommandDefinitionObject> definition_;
    CommandRunner* runner_;
    StringPool texts_;
    std::uint32_t newestSerial_ = 0;
    core::Ptr<CommandInputsObject> inputs_;
    core::Ptr<TabBar> tabBar_;
    InputState* activeTab_ = nullptr;
    InputState* focus_ = nullptr;
    bool focusGiven_ = false;
    bool shown_ = false;
    bool dressed_ = false;
    DialogSize initialSize_;
    DialogSize minimumSize_;
    std::string okText_ = "OK";
    std::string cancelText_ = "Cancel";
    bool okVisible_ = true;
    bool autoExecute_ = true;
    bool executedWhenPreEmpted_ = true;
    bool repeatable_ = true;
};

}  // namespace host::ui
