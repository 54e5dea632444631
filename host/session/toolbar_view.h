#pragma once

#include <string>
#include <vector>

/// The toolbars of the running host, as plain values.
namespace host {

/// A command, and its button where it has one.
struct ControlView {
    std::string command;  ///< the id of the command's definition, which the control has too
    std::string caption;
    std::string tooltip;
    std::string icons;       ///< the folder, as it was set
    bool visible = true;     ///< of the button
    bool promoted = false;   ///< the button shows in the panel itself
    bool isDeleted = false;  ///< the definition is gone; the button is without function

    bool operator==(const ControlView&) const = default;
};

struct PanelView {
    std::string id;
    std::string caption;
    bool native = false;  ///< the host's own
    std::vector<ControlView> controls;
};

struct ToolbarTabView {
    std::string id;
    std::string caption;
    std::vector<PanelView> panels;
};

/// A workspace; of the host's own panels those that a module has added a button to, and all of the
/// tab for tools.
struct WorkspaceView {
    std::string id;
    std::string caption;
    std::string productType;
    bool active = false;
    std::vector<ToolbarTabView> tabs;
};

struct ToolbarView {
    std::vector<WorkspaceView> workspaces;
    std::vector<ControlView> withoutButton;  ///< of modules, those that no panel has a button for
};

/// Reads the toolbars of all workspaces at this moment; throws a `MisuseError` where no host runs.
ToolbarView readToolbars();

/// A command as its button would show it; without function where no command has this id. Throws a
/// `MisuseError` where no host runs.
ControlView readCommand(const std::string& id);

/// The ids of the commands of all modules, in the order of their creation; throws a `MisuseError`
/// where no host runs.
std::vector<std::string> commandIds();

}  // namespace host
