#pragma once

#include <Core/Collection.h>
#include <Core/Event.h>

#include <cstddef>
#include <string>
#include <vector>

/// Tabs hold panels, and panels hold controls: the buttons of command definitions.
///
/// What a module adds here lasts until it is deleted or the host ends.
namespace adsk::core {

class CommandDefinition;

/// An entry of a panel or a menu.
class ToolbarControl : public Base {
public:
    static const char* classType();

    /// For the control of a command this is the id of the command's definition.
    [[nodiscard]] virtual std::string id() const = 0;

    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual bool isVisible(bool value) = 0;

    /// The panel or menu that holds it.
    [[nodiscard]] virtual Ptr<Base> parent() const = 0;

    /// Its place among the controls of its parent.
    [[nodiscard]] virtual std::size_t index() const = 0;

    /// Takes it out; its definition stays.
    virtual bool deleteMe() = 0;
};

/// The button of a command.
class CommandControl : public ToolbarControl {
public:
    static const char* classType();

    /// Null once the definition has been deleted.
    [[nodiscard]] virtual Ptr<CommandDefinition> commandDefinition() const = 0;

    /// Whether the button stands in the panel itself rather than in the panel's list alone. Setting
    /// it has no effect outside panels.
    [[nodiscard]] virtual bool isPromoted() const = 0;
    virtual bool isPromoted(bool value) = 0;
};

/// The controls of a panel or a menu, in the order in which they are shown.
class ToolbarControls : public CollectionById<ToolbarControl> {
public:
    static const char* classType();

    /// Adds a button for a command before or behind the control `positionID`; at the end where that
    /// is empty or unknown. Null without a definition. A definition may have several controls.
    virtual Ptr<CommandControl> addCommand(const Ptr<CommandDefinition>& commandDefinition,
                                           const std::string& positionID = "",
                                           bool isBefore = true) = 0;
};

/// A titled group of controls.
class ToolbarPanel : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string id() const = 0;
    [[nodiscard]] virtual std::string name() const = 0;
    [[nodiscard]] virtual Ptr<ToolbarControls> controls() const = 0;

    /// Takes the panel out together with its controls; false for a panel of the host's own.
    virtual bool deleteMe() = 0;
};

/// The panels of a workspace or of a tab.
class ToolbarPanels : public CollectionById<ToolbarPanel> {
public:
    static const char* classType();

    /// Adds a panel before or behind the panel `positionID`; at the end where that is empty. A
    /// panel added to a workspace stands in its tools tab. Null where any panel of the host has
    /// this id.
    virtual Ptr<ToolbarPanel> add(const std::string& id, const std::string& name,
                                  const std::string& positionID = "", bool isBefore = true) = 0;
};

/// Panels of several workspaces or tabs; nothing can be added to it.
class ToolbarPanelList : public CollectionById<ToolbarPanel> {
public:
    static const char* classType();
};

/// One tab of a workspace's toolbar.
class ToolbarTab : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual std::string id() const = 0;
    [[nodiscard]] virtual std::string name() const = 0;
    [[nodiscard]] virtual Ptr<ToolbarPanels> toolbarPanels() const = 0;
};

/// The tabs of one workspace.
class ToolbarTabs : public CollectionById<ToolbarTab> {
public:
    static const char* classType();
};

/// Tabs of several workspaces; nothing can be added to it.
class ToolbarTabList : public CollectionById<ToolbarTab> {
public:
    static const char* classType();
};

/// The list part of the context menu.
class LinearMarkingMenu : public Base {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<ToolbarControls> controls() const = 0;
};

/// The round part of the context menu.
class RadialMarkingMenu : public Base {
public:
    static const char* classType();
};

/// The context menu that is about to show. Changes hold for this one showing.
class MarkingMenuEventArgs : public EventArgs {
public:
    static const char* classType();

    [[nodiscard]] virtual Ptr<LinearMarkingMenu> linearMarkingMenu() const = 0;
    [[nodiscard]] virtual Ptr<RadialMarkingMenu> radialMarkingMenu() const = 0;

    /// What the user has selected, in the order of selection.
    [[nodiscard]] virtual std::vector<Ptr<Base>> selectedEntities() const = 0;
};

class MarkingMenuEventHandler : public EventHandlerOf<MarkingMenuEventArgs> {};

class MarkingMenuEvent : public EventOf<MarkingMenuEventHandler> {
public:
    static const char* classType();
};

}  // namespace adsk::core
