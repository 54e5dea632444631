#pragma once

#include "workbench/commands/design_change.h"
#include "workbench/commands/open_local_command.h"

#include <functional>
#include <string>

namespace CLI {
class App;
}

namespace workbench {

/// The add-in's commands for modelling and for files, on the command line.
class ModellingCommands {
public:
    /// Adds them to the program, which is to be parsed while this lives. Parsing puts what is to be
    /// done for the one that was given into `given`.
    ModellingCommands(CLI::App& program, std::function<void()>& given);
    ModellingCommands(const ModellingCommands&) = delete;
    ModellingCommands& operator=(const ModellingCommands&) = delete;

private:
    CLI::App& addDesignCommand(CLI::App& program, const std::string& name,
                               const std::string& description);
    void addMoveToOrigin(CLI::App& program);
    void addProjectToConstruction(CLI::App& program);
    void addOpenLocal(CLI::App& program);

    DesignCommandOptions design_;
    bool save_ = true;  ///< these always do
    OpenLocalOptions openLocal_;
    std::function<void()>& given_;
};

}  // namespace workbench
