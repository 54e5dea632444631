#include "tarnix/helpdesk/support_provider.h"

#include "tarnix/helpdesk/one_click_commands.h"
#include "tarnix/platform/module_path.h"
#include "tarnix/platform/shell.h"
#include "tarnix/settings/configuration_command.h"
#include "tarnix/settings/settings_document.h"
#include "tarnix/text/checked.h"

#include <Core/CoreAll.h>

#include <string>

namespace tarnix {
namespace {

using namespace adsk::core;

/// The helpdesk panel of the active workspace; null if anything on the way is missing.
Ptr<ToolbarPanel> helpdeskPanel(const Ptr<UserInterface>& userInterface) {
    const Ptr<Workspace> workspace = userInterface ? userInterface->activeWorkspace() : nullptr;
    const Ptr<ToolbarPanels> panels = workspace ? workspace->toolbarPanels() : nullptr;
    return panels ? panels->itemById(helpdeskPanelId(workspace->id())) : nullptr;
}

/// The control of the Configuration command in that panel; null if it is not there.
Ptr<CommandControl> configurationControl(const Ptr<UserInterface>& userInterface) {
    const Ptr<ToolbarPanel> panel = helpdeskPanel(userInterface);
    const Ptr<ToolbarControls> controls = panel ? panel->controls() : nullptr;
    return controls ? controls->itemById(kConfigurationCommand.id) : nullptr;
}

/// What the guide's path has in the place of the module's ".dll".
std::string guideSuffix() {
    constexpr int kCzech = 2;
    const int language = Application::get()->preferences()->generalPreferences()->userLanguage();
    return language == kCzech ? "_UzivatelskaPrirucka.pdf" : "_UsersGuide.pdf";
}

}  // namespace

void openSupportProvider() {
    const Ptr<Application> application = Application::get();
    const Ptr<UserInterface> userInterface = application ? application->userInterface() : nullptr;
    if (!configurationControl(userInterface)) {
        return;
    }
    if (!platform::openWithShell(readHelpdeskUrl(), platform::ShellTarget::Address)) {
        userInterface->messageBox("The URL you entered can not be opened", "Support provider");
    }
}

void openUserGuide() {
    const std::string modulePath = platform::modulePath();
    const std::string path = replaceFirst(modulePath, ".dll", guideSuffix());
    // A missing guide is not reported.
    static_cast<void>(platform::openWithShell(path));
}

}  // namespace tarnix
