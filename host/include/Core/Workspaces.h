#pragma once

#include <Core/Collection.h>
#include <Core/Event.h>

#include <string>

namespace adsk::core {

class ToolbarPanels;
class ToolbarTabs;

/// A set of tools that are shown together, such as those for solid modelling.
class Workspace : public Base {
public:
    static const char* classType();  ///< "adsk::core::Workspace"

    /// Unique among all workspaces, such as "FusionSolidEnvironment".
    [[nodiscard]] virtual std::string id() const = 0;

    /// The name as the user sees it.
    [[nodiscard]] virtual std::string name() const = 0;

    /// The type of product that it works on, such as "DesignProductType".
    [[nodiscard]] virtual std::string productType() const = 0;

    /// The panels of this workspace, over all of its tabs; never null.
    [[nodiscard]] virtual Ptr<ToolbarPanels> toolbarPanels() const = 0;

    /// The tabs of this workspace; never null.
    [[nodiscard]] virtual Ptr<ToolbarTabs> toolbarTabs() const = 0;

    /// Whether it is the one that is shown.
    [[nodiscard]] virtual bool isActive() const = 0;

    /// Makes it the active workspace: cancels the running command and fires the workspace events of
    /// `UserInterface`. True without effect if it is active. False within an event of a command.
    virtual bool activate() = 0;
};

/// The workspaces of the host, in the host's order.
class Workspaces : public CollectionById<Workspace> {
public:
    static const char* classType();  ///< "adsk::core::Workspaces"
};

/// A workspace is or has been activated or deactivated.
class WorkspaceEventArgs : public EventArgs {
public:
    static const char* classType();  ///< "adsk::core::WorkspaceEventArgs"

    /// The workspace that the event is about; null if none was active before.
    [[nodiscard]] virtual Ptr<Workspace> workspace() const = 0;
};

/// Notified of changes of the active workspace.
class WorkspaceEventHandler : public EventHandlerOf<WorkspaceEventArgs> {};

/// The event of `UserInterface::workspaceActivated` and its like.
class WorkspaceEvent : public EventOf<WorkspaceEventHandler> {
public:
    static const char* classType();  ///< "adsk::core::WorkspaceEvent"
};

}  // namespace adsk::core
