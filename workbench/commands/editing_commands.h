#pragma once

#include "workbench/commands/configure_command.h"
#include "workbench/commands/properties_command.h"
#include "workbench/commands/user_properties_command.h"

#include <functional>

namespace CLI {
class App;
}

namespace workbench {

/// The commands that edit through the add-in's smaller dialogs, on the command line.
class EditingCommands {
public:
    /// Adds them to the program, which is to be parsed while this lives. Parsing puts what is to be
    /// done for the one that was given into `given`.
    EditingCommands(CLI::App& program, std::function<void()>& given);

private:
    void addProperties(CLI::App& program);
    void addUserProperties(CLI::App& program);
    void addConfigure(CLI::App& program);

    PropertiesOptions properties_;
    UserPropertiesOptions userProperties_;
    ConfigureOptions configure_;
    std::function<void()>& given_;
};

}  // namespace workbench
