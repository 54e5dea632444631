#include "workbench/commands/editing_commands.h"

#include "workbench/cli/common_options.h"

#include <CLI/CLI.hpp>

#include <string>

namespace workbench {

EditingCommands::EditingCommands(CLI::App& program, std::function<void()>& given) : given_(given) {
    addProperties(program);
    addUserProperties(program);
    addConfigure(program);
}

void EditingCommands::addProperties(CLI::App& program) {
    CLI::App* command = program.add_subcommand(
        "properties", "Print a component's properties, or edit them, in the add-in's dialog");
    addFile(*command, properties_.file);
    command
        ->add_option("--component", properties_.component,
                     "The component to pick, by the path of an occurrence, as in\n"
                     "\"Gearbox:1+Bolt:2\"; by default the root component")
        ->type_name("PATH");
    command
        ->add_option("--set", properties_.values,
                     "Put a value into a line of the dialog; may be repeated. NAME is what stands\n"
                     "in front of it, as in \"--set 'BOM Structure=Buy'\". Needs --save")
        ->type_name("NAME=VALUE")
        ->allow_extra_args(false);
    addSave(*command, properties_.save, properties_.saveFile,
            "Press OK, which writes every property of the dialog into the design, and save that\n"
            "as a design file; by default in the one that was opened, else beside FILE");
    command
        ->add_option("--data", properties_.data,
                     "A folder whose folders are projects; FILE in one of them has a full path")
        ->type_name("DIR");
    addAddin(*command, properties_.addin);
    addLimits(*command, properties_.limits);
    command->final_callback([this] { given_ = [this] { runProperties(properties_); }; });
}

void EditingCommands::addUserProperties(CLI::App& program) {
    using Action = UserPropertiesOptions::Action;
    CLI::App* command = program.add_subcommand(
        "user-properties", "Print or edit the list of custom properties that the add-in offers");
    command->require_subcommand(1);
    const auto addAction = [&](const char* name, const char* description, Action action) {
        CLI::App* sub = command->add_subcommand(name, description);
        if (action != Action::List) {
            sub->add_option("NAME", userProperties_.name, "The property's name")->required();
        }
        addAddin(*sub, userProperties_.addin);
        sub->final_callback([this, action] {
            userProperties_.action = action;
            given_ = [this] { runUserProperties(userProperties_); };
        });
    };
    addAction("list", "Print the list", Action::List);
    addAction("add", "Add a property, and print the list", Action::Add);
    addAction("remove", "Remove a property, and print the list", Action::Remove);
}

void EditingCommands::addConfigure(CLI::App& program) {
    CLI::App* command =
        program.add_subcommand("configure", "Print or choose the provider of the add-in's support");
    command
        ->add_option("--support-url", configure_.supportUrl,
                     "The web address of the provider, or \"default\"")
        ->type_name("URL|default");
    addAddin(*command, configure_.addin);
    command->final_callback([this] { given_ = [this] { runConfigure(configure_); }; });
}

}  // namespace workbench
