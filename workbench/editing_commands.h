#pragma once

#include "workbench/configure_command.h"
#include "workbench/properties_command.h"
#include "workbench/user_properties_command.h"

#include <functional>

namespace CLI {
class App;
}

namespace workbench {

/// The commands that edit through the add-in's smaller dialogs, on the command line.
class EditingCommands {
public:
    /// Adds them to the program, which is to be parsed while this lives.
    explicit EditingCommands(CLI::App& program);

    /// Runs the one that was given; false when it was none of them.
    bool run() const;

private:
    void addProperties(CLI::App& program);
    void addUserProperties(CLI::App& program);
    void addConfigure(CLI::App& program);

    PropertiesOptions properties_;
    UserPropertiesOptions userProperties_;
    ConfigureOptions configure_;
    std::function<void()> given_;
};

}  // namespace workbench
