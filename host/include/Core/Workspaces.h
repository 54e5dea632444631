#pragma once

#include <Core/Collection.h>
#include <Core/Event.h>

#include <string>

namespace adsk::core {

class ToolbarPanels;
class ToolbarTabs;

/// A set of tools that is shown together, such as the one for solid modelling.
class Workspace : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string id() const = 0;
    [[nodiscard]] virtual std::string name() const = 0;

    /// The type of product that it works on, such as "DesignProductType".
    [[nodiscard]] virtual std::string productType() const = 0;

    /// The panels of this workspace, over all of its tabs.
    [[nodiscard]] virtual Ptr<ToolbarPanels> toolbarPanels() const = 0;
    [[nodiscard]] virtual Ptr<ToolbarTabs> toolbarTabs() const = 0;

    [[nodiscard]] virtual bool isActive() const = 0;

    /// Shows this workspace; fires the events of `UserInterface` unless it is shown already.
    virtual bool activate() = 0;
};

/// The workspaces of the host, in the host's order.
class Workspaces : public CollectionById<Workspace> {
public:
    static const char* classType();
};

/// What is told about a change of workspace.
class WorkspaceEventArgs : public EventArgs {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<Workspace> workspace() const = 0;
};

class WorkspaceEventHandler : public EventHandlerOf<WorkspaceEventArgs> {};

class WorkspaceEvent : public EventOf<WorkspaceEventHandler> {
public:
    static const char* classType();
};

}  // namespace adsk::core
