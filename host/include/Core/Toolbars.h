#pragma once

#include <Core/Collection.h>
#include <Core/Event.h>

#include <cstddef>
#include <string>
#include <vector>

/// Tabs contain panels, and panels contain controls: the buttons of command definitions.
///
/// What a module adds here stays until it is deleted or the host ends, also after the module has
/// stopped. It is not saved from one run of the host to the next.
namespace adsk::core {

class CommandDefinition;

/// An entry of a panel or a menu.
class ToolbarControl : public Base {
public:
    static const char* classType();  ///< "adsk::core::ToolbarControl"

    /// For the control of a command, the id of the command's definition.
    [[nodiscard]] virtual std::string id() const = 0;

    /// Whether it shows, true at first.
    [[nodiscard]] virtual bool isVisible() const = 0;
    /// A hidden control keeps its place.
    virtual bool isVisible(bool value) = 0;

    /// The panel or menu that contains it; never null.
    [[nodiscard]] virtual Ptr<Base> parent() const = 0;

    /// Its place among the controls of its parent, counted from 0.
    [[nodiscard]] virtual std::size_t index() const = 0;

    /// Removes it; its definition stays. This object is not valid afterwards.
    virtual bool deleteMe() = 0;
};

/// The button of a command.
class CommandControl : public ToolbarControl {
public:
    static const char* classType();  ///< "adsk::core::CommandControl"

    /// The command that it starts; null once the definition has been deleted.
    [[nodiscard]] virtual Ptr<CommandDefinition> commandDefinition() const = 0;

    /// Whether the button shows in the panel itself rather than only in its drop-down list, false
    /// at first.
    [[nodiscard]] virtual bool isPromoted() const = 0;
    /// Has no effect outside panels, and returns true.
    virtual bool isPromoted(bool value) = 0;
};

/// The controls of a panel or a menu, in the order in which they are shown.
class ToolbarControls : public CollectionById<ToolbarControl> {
public:
    static const char* classType();  ///< "adsk::core::ToolbarControls"

    /// Adds a button for a command before or after the control `positionID`, or at the end when
    /// that is empty or unknown. A definition may have several controls, also in one panel. Null
    /// for a null or deleted definition.
    virtual Ptr<CommandControl> addCommand(const Ptr<CommandDefinition>& commandDefinition,
                                           const std::string& positionID = "",
                                           bool isBefore = true) = 0;
};

/// A titled group of controls.
class ToolbarPanel : public Base {
public:
    static const char* classType();  ///< "adsk::core::ToolbarPanel"

    /// Unique among all panels of the host; never empty.
    [[nodiscard]] virtual std::string id() const = 0;

    /// The caption of the panel.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Shown at once; the id stays.
    virtual bool name(const std::string& value) = 0;

    /// The controls of the panel; never null.
    [[nodiscard]] virtual Ptr<ToolbarControls> controls() const = 0;

    /// Removes the panel together with its controls; this object is not valid afterwards. False for
    /// a panel of the host's own.
    virtual bool deleteMe() = 0;
};

/// The panels of a workspace, over all of its tabs, or of one tab.
class ToolbarPanels : public CollectionById<ToolbarPanel> {
public:
    static const char* classType();  ///< "adsk::core::ToolbarPanels"

    /// Adds a panel before or after the panel `positionID`, or at the end when that is empty or
    /// unknown. A panel added to a workspace goes to its Tools tab, which is created if need be.
    /// Null for an empty id, and when any panel of the host has it.
    virtual Ptr<ToolbarPanel> add(const std::string& id, const std::string& name,
                                  const std::string& positionID = "", bool isBefore = true) = 0;
};

/// The panels of several workspaces; nothing can be added to it.
class ToolbarPanelList : public CollectionById<ToolbarPanel> {
public:
    static const char* classType();  ///< "adsk::core::ToolbarPanelList"
};

/// One tab of a workspace's toolbar.
class ToolbarTab : public Base {
public:
    static const char* classType();  ///< "adsk::core::ToolbarTab"

    /// Unique within its workspace, such as "ToolsTab".
    [[nodiscard]] virtual std::string id() const = 0;

    /// The caption of the tab.
    [[nodiscard]] virtual std::string name() const = 0;
    /// Shown at once; the id stays.
    virtual bool name(const std::string& value) = 0;

    /// The panels of the tab; never null.
    [[nodiscard]] virtual Ptr<ToolbarPanels> toolbarPanels() const = 0;
};

/// The tabs of one workspace.
class ToolbarTabs : public CollectionById<ToolbarTab> {
public:
    static const char* classType();  ///< "adsk::core::ToolbarTabs"
};

/// The tabs of several workspaces; nothing can be added to it.
class ToolbarTabList : public CollectionById<ToolbarTab> {
public:
    static const char* classType();  ///< "adsk::core::ToolbarTabList"
};

/// A bar of controls around the window that belongs to no workspace: "QAT", the quick access bar
/// above the tabs, or "NavToolbar", the navigation bar below the model.
class Toolbar : public Base {
public:
    static const char* classType();  ///< "adsk::core::Toolbar"

    /// Unique among the toolbars; never empty.
    [[nodiscard]] virtual std::string id() const = 0;

    /// The controls of the bar; never null.
    [[nodiscard]] virtual Ptr<ToolbarControls> controls() const = 0;

    /// Whether it shows, true at first.
    [[nodiscard]] virtual bool isVisible() const = 0;
    /// A hidden bar keeps its controls.
    virtual bool isVisible(bool value) = 0;
};

/// The toolbars of the host; modules cannot add any.
class Toolbars : public CollectionById<Toolbar> {
public:
    static const char* classType();  ///< "adsk::core::Toolbars"
};

/// The list part of the context menu.
class LinearMarkingMenu : public Base {
public:
    static const char* classType();  ///< "adsk::core::LinearMarkingMenu"

    /// Its entries; never null. Those added are gone when the menu closes.
    [[nodiscard]] virtual Ptr<ToolbarControls> controls() const = 0;
};

/// The round part of the context menu.
class RadialMarkingMenu : public Base {
public:
    static const char* classType();  ///< "adsk::core::RadialMarkingMenu"
};

/// The context menu is about to show. Changes apply to this one time.
class MarkingMenuEventArgs : public EventArgs {
public:
    static const char* classType();  ///< "adsk::core::MarkingMenuEventArgs"

    /// The list part; never null, and not valid after the notification.
    [[nodiscard]] virtual Ptr<LinearMarkingMenu> linearMarkingMenu() const = 0;

    /// The round part; never null, and not valid after the notification.
    [[nodiscard]] virtual Ptr<RadialMarkingMenu> radialMarkingMenu() const = 0;

    /// What the user has selected, in the order of selection; empty without a selection.
    [[nodiscard]] virtual std::vector<Ptr<Base>> selectedEntities() const = 0;
};

/// Notified each time before the context menu shows.
class MarkingMenuEventHandler : public EventHandlerOf<MarkingMenuEventArgs> {};

/// The event of `UserInterface::markingMenuDisplaying`.
class MarkingMenuEvent : public EventOf<MarkingMenuEventHandler> {
public:
    static const char* classType();  ///< "adsk::core::MarkingMenuEvent"
};

}  // namespace adsk::core
