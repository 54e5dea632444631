#pragma once

#include <Core/Event.h>

#include <cstddef>
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
class Workspaces : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::size_t count() const = 0;

    /// Null for an index that does not exist.
    [[nodiscard]] virtual Ptr<Workspace> item(std::size_t index) const = 0;

    /// Null where none has this id.
    [[nodiscard]] virtual Ptr<Workspace> itemById(const std::string& id) const = 0;
};

/// What is told about a change of workspace.
class WorkspaceEventArgs : public EventArgs {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<Workspace> workspace() const = 0;
};

class WorkspaceEventHandler : public EventHandler {
public:
    virtual void notify(const Ptr<WorkspaceEventArgs>& eventArgs) = 0;
};

class WorkspaceEvent : public Event {
public:
    static const char* classType();

    /// False for null; one that is there already stays where it is.
    virtual bool add(WorkspaceEventHandler* handler) = 0;
    virtual bool remove(WorkspaceEventHandler* handler) = 0;
};

}  // namespace adsk::core
