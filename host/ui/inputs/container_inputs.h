#pragma once

#include "host/ui/inputs/command_inputs.h"

#include <string>

/// The inputs that hold others.
namespace host::ui {

/// What tabs and groups have in common: a collection of their own.
class ContainerState : public InputState {
public:
    ContainerState(const InputOrigin& origin, InputKind inputKind);

    void retire() override;
    [[nodiscard]] CommandInputsObject* inside() const override { return inside_.get(); }

private:
    core::Ptr<CommandInputsObject> inside_;
};

class TabCommandInputObject final
    : public CommandInputObject<core::TabCommandInput, ContainerState> {
public:
    TabCommandInputObject(const InputOrigin& origin, const std::string& resourceFolder)
        : CommandInputObject(origin, InputKind::Tab), resourceFolder_(resourceFolder) {}

    [[nodiscard]] core::Ptr<core::CommandInputs> children() const override;
    [[nodiscard]] bool isActive() const override;
    bool activate() override;
    [[nodiscard]] std::string resourceFolder() const override;

private:
    std::string resourceFolder_;
};

class GroupCommandInputObject final
    : public CommandInputObject<core::GroupCommandInput, ContainerState> {
public:
    explicit GroupCommandInputObject(const InputOrigin& origin)
        : CommandInputObject(origin, InputKind::Group) {}

    [[nodiscard]] core::Ptr<core::CommandInputs> children() const override;
    [[nodiscard]] bool isExpanded() const override;
    bool isExpanded(bool value) override;
    [[nodiscard]] bool isEnabledCheckBoxDisplayed() const override;
    bool isEnabledCheckBoxDisplayed(bool value) override;
    [[nodiscard]] bool isEnabledCheckBoxChecked() const override;
    bool isEnabledCheckBoxChecked(bool value) override;

    [[nodiscard]] bool expanded() const { return expanded_; }

    /// Clicks its heading as a person does.
    void toggle() { expanded_ = !expanded_; }

private:
    bool expanded_ = true;
    bool checkBox_ = false;
    bool checked_ = true;
};

}  // namespace host::ui
