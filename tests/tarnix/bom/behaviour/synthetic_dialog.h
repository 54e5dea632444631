#pragma once

#include <Core/CoreAll.h>

#include <functional>
#include <string>
#include <utility>

namespace test_support {

/// A dialog that a test makes, for tables that the add-in's dialog does not have.
class SyntheticDialog final : public adsk::core::CommandCreatedEventHandler {
public:
    using Build = std::function<void(const adsk::core::Ptr<adsk::core::CommandInputs>&)>;

    /// Registers a command of this id whose dialog is made by `build`.
    SyntheticDialog(const std::string& id, Build build) : build_(std::move(build)) {
        using adsk::core::Application;
        definition_ =
            Application::get()->userInterface()->commandDefinitions()->addButtonDefinition(id, id,
                                                                                           "");
        definition_->commandCreated()->add(this);
    }

    /// Starts the command.
    void open() { definition_->execute(); }

    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override {
        build_(eventArgs->command()->commandInputs());
    }

private:
    Build build_;
    adsk::core::Ptr<adsk::core::CommandDefinition> definition_;
};

}  // namespace test_support
