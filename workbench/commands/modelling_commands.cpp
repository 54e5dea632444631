#include "workbench/commands/modelling_commands.h"

#include "workbench/cli/common_options.h"

#include <CLI/CLI.hpp>

namespace workbench {

ModellingCommands::ModellingCommands(CLI::App& program, std::function<void()>& given)
    : given_(given) {
    addMoveToOrigin(program);
    addProjectToConstruction(program);
    addOpenLocal(program);
}

CLI::App& ModellingCommands::addDesignCommand(CLI::App& program, const std::string& name,
                                              const std::string& description) {
    CLI::App& command = *program.add_subcommand(name, description);
    addFile(command, design_.file);
    addSave(command, save_, design_.saveFile,
            "The design file to save in; by default the one that was opened, else a new one\n"
            "beside FILE");
    addAddin(command, design_.addin);
    addLimits(command, design_.limits);
    return command;
}

void ModellingCommands::addMoveToOrigin(CLI::App& program) {
    CLI::App& command =
        addDesignCommand(program, "move-to-origin",
                         "Place occurrences at the origin with \"Move To Origin\", and save");
    command
        .add_option("--occurrence", design_.occurrences,
                    "An occurrence, by its path as in \"Gearbox:1+Bolt:2\"; may be repeated.\n"
                    "Without it all that stand directly under the root")
        ->type_name("PATH")
        ->allow_extra_args(false);
    command.add_flag("--ground", design_.ground, "Ground them there");
    command.final_callback([this] { given_ = [this] { runMoveToOrigin(design_); }; });
}

void ModellingCommands::addProjectToConstruction(CLI::App& program) {
    CLI::App& command =
        addDesignCommand(program, "project-to-construction",
                         "Make projected curves construction geometry in all sketches, with\n"
                         "\"Projected Entities As Construction\", and save");
    command.final_callback([this] { given_ = [this] { runProjectToConstruction(design_); }; });
}

void ModellingCommands::addOpenLocal(CLI::App& program) {
    CLI::App& command = *program.add_subcommand(
        "open-local", "Bring files into the host with \"Open local file\", and save the designs");
    command
        .add_option("FILE", openLocal_.files,
                    "Files of any format. STEP, IGES and .f3d are imported; all others are\n"
                    "uploaded into the user's project and opened from there. Those that can be\n"
                    "opened are saved, whatever becomes of the others")
        ->required();
    command
        .add_option("--out", openLocal_.out,
                    "Save the design files into this folder; by default the current one")
        ->type_name("DIR");
    command
        .add_option("--data", openLocal_.data,
                    "A folder whose folders are projects, the first of which takes the uploads;\n"
                    "by default one of the program's own")
        ->type_name("DIR");
    command
        .add_option("--timeout", openLocal_.timeout,
                    "Cancel after so many seconds of waiting for one file, as Ctrl-C does at once")
        ->check(CLI::Range(1, 86400))
        ->capture_default_str();
    addAddin(command, openLocal_.addin);
    command.final_callback([this] { given_ = [this] { runOpenLocal(openLocal_); }; });
}

}  // namespace workbench
