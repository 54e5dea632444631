#pragma once

#include "workbench/design_commands.h"
#include "workbench/open_local_command.h"

#include <functional>
#include <string>

namespace CLI {
class App;
}

namespace workbench {

/// The add-in's commands for modelling and for files, on the command line.
class ModellingCommands {
public:
    /// Adds them to the program, which is to be parsed while this lives.
    explicit ModellingCommands(CLI::App& program);
    ModellingCommands(const ModellingCommands&) = delete;
    ModellingCommands& operator=(const ModellingCommands&) = delete;

    /// Runs the one that was given; false when it was none of them.
    bool run() const;

private:
    CLI::App& addDesignCommand(CLI::App& program, const std::string& name,
                               const std::string& description);
    void addMoveToOrigin(CLI::App& program);
    void addProjectToConstruction(CLI::App& program);
    void addOpenLocal(CLI::App& program);

    DesignCommandOptions design_;
    bool save_ = true;  ///< these always do
    OpenLocalOptions openLocal_;
    std::function<void()> given_;
};

}  // namespace workbench
