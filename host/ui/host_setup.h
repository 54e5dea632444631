#pragma once

#include "host/base/clock.h"
#include "host/base/documented_points.h"

#include <string>
#include <vector>

/// What a host is started with.
namespace host {

/// A workspace of the host.
struct WorkspaceSetup {
    std::string id;
    std::string name;
    std::string productType = "DesignProductType";  ///< of any other type: it shows no design
};

/// A panel of the host's own, empty until a module adds controls to it.
struct PanelSetup {
    std::string workspace;
    std::string tab;
    std::string tabName;
    std::string id;
    std::string name;
};

/// A command of the host's own. In this host it does nothing.
struct CommandSetup {
    std::string id;
    std::string name;
};

/// Which changes that code makes to inputs of the open dialog are reported to its handlers, as if
/// the user had made them. They are reported after the running notification.
enum class CodeChanges {
    None,
    Lists,  ///< items selected in drop-downs that were in the dialog before that notification
    All,    ///< every changed value of inputs that were in it
};

struct HostSetup {
    std::vector<WorkspaceSetup> workspaces = {
        {"FusionSolidEnvironment", "Design", "DesignProductType"},
        {"CAMEnvironment", "Manufacture", "CAMProductType"},
        {"FusionRenderEnvironment", "Render", "DesignProductType"},
        {"FusionDocumentationEnvironment", "Drawing", "DrawingProductType"},
    };
    /// The panels that add-ins look for, by tabs; "ToolsTab" comes after these.
    std::vector<PanelSetup> panels = {
        {"FusionSolidEnvironment", "SolidTab", "Solid", "SolidCreatePanel", "Create"},
        {"FusionSolidEnvironment", "SolidTab", "Solid", "SolidModifyPanel", "Modify"},
        {"FusionSolidEnvironment", "SolidTab", "Solid", "InspectPanel", "Inspect"},
        {"FusionSolidEnvironment", "SketchTab", "Sketch", "SketchCreatePanel", "Create"},
        {"CAMEnvironment", "MillingTab", "Milling", "CAMManagePanel", "Manage"},
    };
    /// The commands of the host that add-ins look for, to start them or to add their buttons to a
    /// panel, besides "SelectCommand".
    std::vector<CommandSetup> commands = {
        {"SketchCreate", "Create Sketch"},
        {"SketchActivate", "Edit Sketch"},
        {"SketchStop", "Finish Sketch"},
        {"Extrude", "Extrude"},
        {"Revolve", "Revolve"},
        {"FusionMoveCommand", "Move/Copy"},
        {"FusionPressPullCommand", "Press Pull"},
        {"FusionCreateNewComponentCommand", "New Component"},
        {"ChangeParameterCommand", "Change Parameters"},
        {"MeasureCommand", "Measure"},
        {"ExportCommand", "Export"},
        {"PLM360SaveCommand", "Save"},
        {"UndoCommand", "Undo"},
        {"RedoCommand", "Redo"},
        {"FitCommand", "Fit"},
        {"FindInBrowser", "Find in Browser"},
        {"VisibilityToggleCmd", "Show/Hide"},
        {"ScriptsManagerCommand", "Scripts and Add-Ins"},
    };

    CodeChanges codeChanges = CodeChanges::Lists;

    /// Where the host does as the documentation says instead: `kAsDocumented` everywhere.
    DocumentedPoints documented;

    /// Whether waiting takes a module real time.
    clock::ClockMode clock = clock::ClockMode::Virtual;

    /// How many seconds a progress dialog may wait before the host presses its Cancel, so that a
    /// wait ends without a user too.
    double longestWait = 86400;

    /// The bars around the window that belong to no workspace.
    std::vector<std::string> toolbars = {"QAT", "NavToolbar"};

    /// Whether the host's own command "SelectCommand", which runs while no other does, is announced
    /// by `commandStarting` each time.
    bool selectCommand = false;

    /// Whether the panel for scripts and add-ins holds the control "RepeatCommand".
    bool repeatControl = false;
};

}  // namespace host
