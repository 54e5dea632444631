#pragma once

#include <Core/CoreAll.h>

/// The handlers of events of the whole host, rather than of one of the add-in's commands.
///
/// One object of each class serves all subscriptions, for the life of the process. `run` attaches
/// them and nothing detaches them; they keep nothing between two notifications.
namespace tarnix {

/// Gives each workspace its helpdesk panel when it is activated.
class MyWorkspaceActivatedEventHandler final : public adsk::core::WorkspaceEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::WorkspaceEventArgs>& eventArgs) override;
};

/// Shows the button "Projected Entities As Construction" only while a sketch is being edited.
class MyCommandStartingEventHandler final : public adsk::core::ApplicationCommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::ApplicationCommandEventArgs>& eventArgs) override;
};

/// Brings the BOM dialog back, with fresh data, after it has completed.
class MyCommandEndingEventHandler final : public adsk::core::ApplicationCommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::ApplicationCommandEventArgs>& eventArgs) override;
};

/// Offers the custom properties command in the host's context menu.
class MyMarkingMenuHandler final : public adsk::core::MarkingMenuEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::MarkingMenuEventArgs>& eventArgs) override;
};

extern MyWorkspaceActivatedEventHandler workspaceActivatedEventHandler;
extern MyCommandStartingEventHandler commandStartingEventHandler;
extern MyCommandEndingEventHandler commandEndingEventHandler;
extern MyMarkingMenuHandler markingMenuHandler;

/// Attaches the four hooks to the events of `ui`.
///
/// False when an event is missing or the workspace hook is refused; other refusals are ignored.
bool attachHooks();

}  // namespace tarnix
