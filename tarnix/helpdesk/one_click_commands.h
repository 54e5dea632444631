#pragma once

#include "tarnix/text/command_texts.h"

#include <Core/CoreAll.h>

#include <span>
#include <string>

/// What the eight helpdesk commands have in common: they have no dialog, and a press of the button
/// runs one operation at once.
///
/// The headers beside this one declare the commands and their operations, one header for each kind
/// of help. Two handlers serve all eight, one object of each for the life of the process.
namespace tarnix {

/// A command and what a press of its button does.
struct OneClickCommand {
    CommandTexts texts;
    void (*execute)() = nullptr;
};

/// The eight commands in the order of their buttons.
std::span<const OneClickCommand> oneClickCommands();

/// Executes the command whose definition's id the event carries; nothing for any other.
class OnExecuteEventHandler final : public adsk::core::CommandEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) override;
};

/// Connects each helpdesk command to the one handler that executes them all.
class CommandCreatedEventHandler final : public adsk::core::CommandCreatedEventHandler {
public:
    void notify(const adsk::core::Ptr<adsk::core::CommandCreatedEventArgs>& eventArgs) override;
};

extern OnExecuteEventHandler onExecuteEventHandler;
extern CommandCreatedEventHandler commandCreatedEventHandler;

/// The id of a workspace's helpdesk panel: a prefix, then the workspace's id.
std::string helpdeskPanelId(const std::string& workspaceId);

}  // namespace tarnix
