// The two ways into the add-in, as the module exports them.
//
// The host calls `run` once it has loaded the module and `stop` before it unloads it. In between
// the add-in runs inside the host's notifications alone. Neither looks at its argument nor
// shows the user anything, and what a null handle throws leaves them.

#include "tarnix/addin/helpdesk_commands.h"
#include "tarnix/addin/hooks.h"
#include "tarnix/addin/main_commands.h"
#include "tarnix/addin/panels.h"
#include "tarnix/addin/state.h"
#include "tarnix/commands/online_models.h"
#include "tarnix/commands/units_conversion.h"
#include "tarnix/helpdesk/one_click_commands.h"

#include <Core/CoreAll.h>

#include <cstddef>
#include <string>

namespace tarnix {

using namespace adsk::core;

namespace {

bool addFirstHelpdeskPanel() {
    return addHelpdeskPanel(ui->workspaces()->itemById(workspaceIds.front()));
}

void deletePalette(const Ptr<Palettes>& palettes, const char* id) {
    const Ptr<Palette> palette = palettes->itemById(id);
    if (palette) {
        palette->deleteMe();
    }
}

/// Deletes a panel of each workspace of the host: the helpdesk panel comes to all that are
/// activated.
void deletePanels(std::string (*panelId)(const std::string& workspaceId)) {
    const Ptr<ToolbarPanelList> panels = ui->allToolbarPanels();
    const Ptr<Workspaces> workspaces = ui->workspaces();
    if (!panels || !workspaces) {
        return;
    }
    for (std::size_t i = 0; i < workspaces->count(); ++i) {
        const Ptr<Workspace> workspace = workspaces->item(i);
        if (!workspace) {
            continue;
        }
        const Ptr<ToolbarPanel> panel = panels->itemById(panelId(workspace->id()));
        if (panel) {
            panel->deleteMe();
        }
    }
}

/// Looks up a control that is the host's own. One that is missing throws, and `stop` ends there.
void touchRepeatCommand() {
    const Ptr<ToolbarTabList> tabs = ui->toolbarTabsByProductType("DesignProductType");
    const Ptr<ToolbarTab> tab = tabs->itemById("ToolsTab");
    const Ptr<ToolbarPanels> panels = tab->toolbarPanels();
    if (!panels) {
        return;
    }
    const Ptr<ToolbarPanel> panel = panels->itemById("SolidScriptsAddinsPanel");
    const Ptr<CommandControl> control = panel->controls()->itemById("RepeatCommand");
    static_cast<void>(control->isVisible());
}

}  // namespace

/// Takes `app` and `ui`, registers all commands, places their buttons, attaches the hooks, and
/// keeps the module loaded. False at the first step that fails; what was done by then stays, and
/// `stop` copes with it.
extern "C" XI_EXPORT bool run(const char* /*context*/) {
    app = Application::get();
    if (!app) {
        return false;
    }
    ui = app->userInterface();
    if (!ui) {
        return false;
    }
    createCommands();
    if (!addToolsPanels()) {
        return false;
    }
    if (!createHelpdeskCommands()) {
        return false;
    }
    // The second call finds the panel filled and decides about the start alone.
    static_cast<void>(addFirstHelpdeskPanel());
    if (!addFirstHelpdeskPanel()) {
        return false;
    }
    if (!attachHooks()) {
        return false;
    }
    adsk::autoTerminate(false);
    return true;
}

/// Takes out of the host what `run` put in, except the hooks and Open local file. True when `app`
/// and `ui` are released.
///
/// A plain `std::exception` leaves it at its last look-up, with both still held, when the host has
/// no control "RepeatCommand" in its scripts panel; nothing of the add-in is left in the host's
/// user interface by then.
extern "C" XI_EXPORT bool stop(const char* /*context*/) {
    if (!ui) {
        app = nullptr;
        return true;
    }
    const Ptr<Palettes> palettes = ui->palettes();
    if (!palettes) {
        return false;
    }
    deletePalette(palettes, kUnitsConversionPaletteId);
    deletePalette(palettes, kOnlineModelsPaletteId);
    deletePanels(helpdeskPanelId);
    for (const Ptr<CommandDefinition>& definition : helpdeskCommandDefinitions) {
        definition->deleteMe();
    }
    deletePanels(toolsPanelId);
    destroyCommands();
    touchRepeatCommand();
    ui = nullptr;
    app = nullptr;
    return true;
}

}  // namespace tarnix
