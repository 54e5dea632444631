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
    [[nodiscard]] std::string resourceFolder() const override {
        return get<"TabCommandInput::resourceFolder">(resourceFolder_);
    }

private:
    std::string resourceFolder_;
};

class GroupCommandInputObject final
    : public CommandInputObject<core::GroupCommandInput, ContainerState> {
public:
    explicit GroupCommandInputObject(const InputOrigin& origin)
        : CommandInputObject(origin, InputKind::Group) {}

    [[nodiscard]] core::Ptr<core::CommandInputs> children() const override;
    [[nodiscard]] bool isExpanded() const override {
        return get<"GroupCommandInput::isExpanded">(expanded_);
    }
    bool isExpanded(bool value) override {
        return set<"GroupCommandInput::isExpanded">(expanded_, value);
    }
    [[nodiscard]] bool isEnabledCheckBoxDisplayed() const override {
        return get<"GroupCommandInput::isEnabledCheckBoxDisplayed">(checkBox_);
    }
    bool isEnabledCheckBoxDisplayed(bool value) override {
        return set<"GroupCommandInput::isEnabledCheckBoxDisplayed">(checkBox_, value);
    }
    [[nodiscard]] bool isEnabledCheckBoxChecked() const override {
        return get<"GroupCommandInput::isEnabledCheckBoxChecked">(checked_);
    }
    bool isEnabledCheckBoxChecked(bool value) override {
        return set<"GroupCommandInput::isEnabledCheckBoxChecked">(checked_, value);
    }

    [[nodiscard]] bool expanded() const { return expanded_; }

    /// Clicks its heading as a person does.
    void toggle() { expanded_ = !expanded_; }

private:
    bool expanded_ = true;
    bool checkBox_ = false;
    bool checked_ = true;
};

}  // namespace host::ui
