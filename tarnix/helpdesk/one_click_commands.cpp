#include "tarnix/helpdesk/one_click_commands.h"

#include "tarnix/helpdesk/folder_packing.h"
#include "tarnix/helpdesk/screen_capture.h"
#include "tarnix/helpdesk/support_folder.h"
#include "tarnix/helpdesk/support_provider.h"
#include "tarnix/helpdesk/system_information.h"

#include <string>

namespace tarnix {

using namespace adsk::core;

OnExecuteEventHandler onExecuteEventHandler;
CommandCreatedEventHandler commandCreatedEventHandler;

void OnExecuteEventHandler::notify(const Ptr<CommandEventArgs>& eventArgs) {
    const std::string id = eventArgs->command()->parentCommandDefinition()->id();
    if (id == kCaptureScreenCommand.id) {
        captureWholeScreen();
    } else if (id == kCaptureFusionCommand.id) {
        captureFusionWindow();
    } else if (id == kOpenHelpdeskCommand.id) {
        openSupportProvider();
    } else if (id == kSystemInfoCommand.id) {
        writeSystemInfo();
    } else if (id == kCompressFolderCommand.id) {
        compressHelpdeskFolder();
    } else if (id == kOpenFolderCommand.id) {
        openHelpdeskFolder();
    } else if (id == kClearFolderCommand.id) {
        clearHelpdeskFolder();
    } else if (id == kOpenHelpCommand.id) {
        openUserGuide();
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
