#pragma once

#include <Core/Commands.h>
#include <Core/Enums.h>
#include <Core/Toolbars.h>
#include <Core/Workspaces.h>

#include <string>

namespace adsk::core {

class CommandDefinitions;
class FileDialog;
class FolderDialog;
class Palettes;
class ProgressDialog;
class Selections;

/// What the user sees of the host: workspaces, toolbars, palettes, commands and messages.
class UserInterface : public Base {
public:
    static const char* classType();  ///< "adsk::core::UserInterface"

    /// All workspaces of the host, of every product type; never null.
    [[nodiscard]] virtual Ptr<Workspaces> workspaces() const = 0;

    /// The active workspace; null when there is no active product.
    [[nodiscard]] virtual Ptr<Workspace> activeWorkspace() const = 0;

    /// The panels of all workspaces; never null.
    [[nodiscard]] virtual Ptr<ToolbarPanelList> allToolbarPanels() const = 0;

    /// The tabs of all workspaces of a product type, such as "DesignProductType"; empty, not null,
    /// for an unknown type.
    [[nodiscard]] virtual Ptr<ToolbarTabList> toolbarTabsByProductType(
        const std::string& productType) const = 0;

    /// The bars around the window that belong to no workspace, such as "QAT"; never null.
    [[nodiscard]] virtual Ptr<Toolbars> toolbars() const = 0;

    /// The palettes of all modules; never null.
    [[nodiscard]] virtual Ptr<Palettes> palettes() const = 0;

    /// The command definitions of the host and of all modules; never null.
    [[nodiscard]] virtual Ptr<CommandDefinitions> commandDefinitions() const = 0;

    /// What the user has selected; never null. While a command's dialog is open, the entities of
    /// its selection inputs.
    [[nodiscard]] virtual Ptr<Selections> activeSelections() const = 0;

    /// Fired before a command starts; a handler may cancel the start.
    [[nodiscard]] virtual Ptr<ApplicationCommandEvent> commandStarting() const = 0;

    /// Fired when a command has been created, right after its own definition's event.
    [[nodiscard]] virtual Ptr<ApplicationCommandEvent> commandCreated() const = 0;

    /// Fired when a command has ended, after its `destroy`. A command started by a handler starts
    /// once all handlers have been notified.
    [[nodiscard]] virtual Ptr<ApplicationCommandEvent> commandTerminated() const = 0;

    /// Fired before another workspace becomes active.
    [[nodiscard]] virtual Ptr<WorkspaceEvent> workspacePreActivate() const = 0;

    /// Fired at the very end of a change of workspace, when the new one is active; not for the one
    /// that the host starts with.
    [[nodiscard]] virtual Ptr<WorkspaceEvent> workspaceActivated() const = 0;

    /// Fired first, before a workspace is deactivated.
    [[nodiscard]] virtual Ptr<WorkspaceEvent> workspacePreDeactivate() const = 0;

    /// Fired when a workspace has been deactivated and the new one is active.
    [[nodiscard]] virtual Ptr<WorkspaceEvent> workspaceDeactivated() const = 0;

    /// Fired each time before the context menu shows.
    [[nodiscard]] virtual Ptr<MarkingMenuEvent> markingMenuDisplaying() const = 0;

    /// Shows a message and waits for the user: the button pressed. With an empty title the name of
    /// the module is shown.
    virtual DialogResults messageBox(const std::string& text, const std::string& title = "",
                                     MessageBoxButtonTypes buttons = OKButtonType,
                                     MessageBoxIconTypes icon = NoIconIconType) = 0;

    /// A new file dialog, not shown yet.
    virtual Ptr<FileDialog> createFileDialog() = 0;

    /// A new dialog for a folder, not shown yet.
    virtual Ptr<FolderDialog> createFolderDialog() = 0;

    /// A new progress dialog, which shows until it is hidden or its last handle is gone.
    virtual Ptr<ProgressDialog> createProgressDialog() = 0;

    /// Cancels the running command; true also when none runs. False within any event of a command.
    virtual bool terminateActiveCommand() = 0;

    /// The id of the running command's definition; "SelectCommand", the host's own, when no other
    /// runs.
    [[nodiscard]] virtual std::string activeCommand() const = 0;
};

}  // namespace adsk::core
