#include "tarnix/helpdesk/execute_handler.h"

#include "tarnix/helpdesk/folder_packing.h"
#include "tarnix/helpdesk/screen_capture.h"
#include "tarnix/helpdesk/support_folder.h"
#include "tarnix/helpdesk/support_provider.h"
#include "tarnix/helpdesk/system_information.h"

#include <string>

namespace tarnix {

void OnExecuteEventHandler::notify(const adsk::core::Ptr<adsk::core::CommandEventArgs>& eventArgs) {
    const std::string id = eventArgs->command()->parentCommandDefinition()->id();
    if (id == "QM_HD_captureScreen") {
        captureWholeScreen();
    } else if (id == "QM_HD_captureFusion") {
        captureFusionWindow();
    } else if (id == "QM_HD_openHelpdesk") {
        openSupportProvider();
    } else if (id == "QM_HD_systemInfo") {
        writeSystemInfo();
    } else if (id == "QM_HD_compressFolder") {
        compressHelpdeskFolder();
    } else if (id == "QM_HD_openFolder") {
        openHelpdeskFolder();
    } else if (id == "QM_HD_clearFolder") {
        clearHelpdeskFolder();
    } else if (id == "QM_HD_openHelp") {
        openUserGuide();
    }
}

}  // namespace tarnix
