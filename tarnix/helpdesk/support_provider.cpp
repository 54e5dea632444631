#include "tarnix/helpdesk/support_provider.h"

#include "tarnix/platform/module_path.h"
#include "tarnix/platform/shell.h"
#include "tarnix/settings/settings_document.h"

#include <Core/CoreAll.h>

#include <cstddef>
#include <stdexcept>
#include <string>

namespace tarnix {
namespace {

using adsk::core::Application;
using adsk::core::CommandControl;
using adsk::core::Ptr;
using adsk::core::ToolbarControls;
using adsk::core::ToolbarPanel;
using adsk::core::ToolbarPanels;
using adsk::core::UserInterface;
using adsk::core::Workspace;

/// The helpdesk panel of the active workspace; null if anything on the way is missing.
Ptr<ToolbarPanel> helpdeskPanel(const Ptr<UserInterface>& userInterface) {
    const Ptr<Workspace> workspace = userInterface ? userInterface->activeWorkspace() : nullptr;
    const Ptr<ToolbarPanels> panels = workspace ? workspace->toolbarPanels() : nullptr;
    return panels ? panels->itemById("QM_HD_panel" + workspace->id()) : nullptr;
}

/// The control of the Configuration command in that panel; null if it is not there.
Ptr<CommandControl> configurationControl(const Ptr<UserInterface>& userInterface) {
    const Ptr<ToolbarPanel> panel = helpdeskPanel(userInterface);
    const Ptr<ToolbarControls> controls = panel ? panel->controls() : nullptr;
    return controls ? controls->itemById("QM_TX_configuration") : nullptr;
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
    const std::string extension = ".dll";
    std::string path = platform::modulePath();
    const std::string suffix = guideSuffix();
    const std::size_t position = path.find(extension);
    if (position == std::string::npos) {
        throw std::out_of_range("invalid string position");
    }
    path.replace(position, extension.size(), suffix);
    if (!path.empty()) {
        // A missing guide is not told.
        static_cast<void>(platform::openWithShell(path));
    }
}

}  // namespace tarnix
