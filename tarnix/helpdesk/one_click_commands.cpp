#include "tarnix/helpdesk/one_click_commands.h"

#include "tarnix/helpdesk/folder_packing.h"
#include "tarnix/helpdesk/screen_capture.h"
#include "tarnix/helpdesk/support_folder.h"
#include "tarnix/helpdesk/support_provider.h"
#include "tarnix/helpdesk/system_information.h"

#include <algorithm>
#include <string>

namespace tarnix {

using namespace adsk::core;

OnExecuteEventHandler onExecuteEventHandler;
CommandCreatedEventHandler commandCreatedEventHandler;

std::span<const OneClickCommand> oneClickCommands() {
    static constexpr OneClickCommand kCommands[] = {
        {.texts = kOpenHelpdeskCommand, .execute = openSupportProvider},
        {.texts = kCaptureScreenCommand, .execute = captureWholeScreen},
        {.texts = kCaptureFusionCommand, .execute = captureFusionWindow},
        {.texts = kSystemInfoCommand, .execute = writeSystemInfo},
        {.texts = kCompressFolderCommand, .execute = compressHelpdeskFolder},
        {.texts = kOpenFolderCommand, .execute = openHelpdeskFolder},
        {.texts = kClearFolderCommand, .execute = clearHelpdeskFolder},
        {.texts = kOpenHelpCommand, .execute = openUserGuide}};
    return kCommands;
}

void OnExecuteEventHandler::notify(const Ptr<CommandEventArgs>& eventArgs) {
    const std::string id = eventArgs->command()->parentCommandDefinition()->id();
    const auto commands = oneClickCommands();
    const auto found =
        std::ranges::find_if(commands, [&](const auto& each) { return id == each.texts.id; });
    if (found != commands.end()) {
        found->execute();
    }
}

void CommandCreatedEventHandler::notify(const Ptr<CommandCreatedEventArgs>& eventArgs) {
    const Ptr<Command> command = eventArgs->command();
    if (command) {
        command->execute()->add(&onExecuteEventHandler);
    }
}

std::string helpdeskPanelId(const std::string& workspaceId) { return "QM_HD_panel" + workspaceId; }

}  // namespace tarnix
