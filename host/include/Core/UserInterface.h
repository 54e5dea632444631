#pragma once

#include <Core/Commands.h>
#include <Core/Enums.h>
#include <Core/Toolbars.h>
#include <Core/Workspaces.h>

#include <string>

namespace adsk::core {

class CommandDefinitions;
class FileDialog;
class Palettes;
class ProgressDialog;
class Selections;

/// What the user sees of the host: workspaces, toolbars, palettes, commands and messages.
class UserInterface : public Base {
public:
    static const char* classType();

    /// All workspaces of the host, of every product type.
    [[nodiscard]] virtual Ptr<Workspaces> workspaces() const = 0;

    /// The workspace that is shown; null without an active product.
    [[nodiscard]] virtual Ptr<Workspace> activeWorkspace() const = 0;

    /// The panels of all workspaces.
    [[nodiscard]] virtual Ptr<ToolbarPanelList> allToolbarPanels() const = 0;

    /// The tabs of all workspaces of a product type, such as "DesignProductType". An unknown type
    /// has none.
    [[nodiscard]] virtual Ptr<ToolbarTabList> toolbarTabsByProductType(
        const std::string& productType) const = 0;

    [[nodiscard]] virtual Ptr<Palettes> palettes() const = 0;
    [[nodiscard]] virtual Ptr<CommandDefinitions> commandDefinitions() const = 0;

    /// What the user has selected. While a command's dialog is open they are the entities of its
    /// selection inputs.
    [[nodiscard]] virtual Ptr<Selections> activeSelections() const = 0;

    /// Fired before a command starts; a handler may cancel it.
    [[nodiscard]] virtual Ptr<ApplicationCommandEvent> commandStarting() const = 0;

    /// Fired when a command has been created, right after its own definition's event.
    [[nodiscard]] virtual Ptr<ApplicationCommandEvent> commandCreated() const = 0;

    /// Fired when a command is over, after its `destroy`.
    [[nodiscard]] virtual Ptr<ApplicationCommandEvent> commandTerminated() const = 0;

    /// Fired before another workspace is shown.
    [[nodiscard]] virtual Ptr<WorkspaceEvent> workspacePreActivate() const = 0;

    /// Fired at the very end of a change of workspace; not for the one that the host started with.
    [[nodiscard]] virtual Ptr<WorkspaceEvent> workspaceActivated() const = 0;

    /// Fired before a workspace is left.
    [[nodiscard]] virtual Ptr<WorkspaceEvent> workspacePreDeactivate() const = 0;

    /// Fired when a workspace has been left.
    [[nodiscard]] virtual Ptr<WorkspaceEvent> workspaceDeactivated() const = 0;

    /// Fired each time before the context menu shows.
    [[nodiscard]] virtual Ptr<MarkingMenuEvent> markingMenuDisplaying() const = 0;

    /// Shows a message and waits for the answer. With an empty title the module's name is shown.
    virtual DialogResults messageBox(const std::string& text, const std::string& title = "",
                                     MessageBoxButtonTypes buttons = OKButtonType,
                                     MessageBoxIconTypes icon = NoIconIconType) = 0;

    virtual Ptr<FileDialog> createFileDialog() = 0;
    virtual Ptr<ProgressDialog> createProgressDialog() = 0;

    /// Cancels the running command. Fails inside any event of a command.
    virtual bool terminateActiveCommand() = 0;

    /// The id of the running command, empty where none runs.
    [[nodiscard]] virtual std::string activeCommand() const = 0;
};

}  // namespace adsk::core
