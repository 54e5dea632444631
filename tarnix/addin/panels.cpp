#include "tarnix/addin/panels.h"

#include "tarnix/addin/helpdesk_commands.h"
#include "tarnix/addin/main_commands.h"
#include "tarnix/addin/state.h"
#include "tarnix/helpdesk/one_click_commands.h"

namespace tarnix {

using namespace adsk::core;

const std::vector<std::string> workspaceIds = {"FusionSolidEnvironment", "CAMEnvironment"};

namespace {

Ptr<ToolbarPanel> findOrAddPanel(const Ptr<ToolbarPanels>& panels, const std::string& id,
                                 const char* caption) {
    Ptr<ToolbarPanel> panel = panels->itemById(id);
    if (!panel) {
        panel = panels->add(id, caption, "", /*isBefore=*/true);
    }
    return panel;
}

}  // namespace

std::string toolsPanelId(const std::string& workspaceId) { return "QM_Tarnix_Alfa" + workspaceId; }

Ptr<ToolbarPanel> toolsPanel(const Ptr<ToolbarPanels>& panels, const std::string& workspaceId) {
    return findOrAddPanel(panels, toolsPanelId(workspaceId), "QM Tarnix");
}

Ptr<ToolbarPanel> helpdeskPanel(const Ptr<ToolbarPanels>& panels, const std::string& workspaceId) {
    return findOrAddPanel(panels, helpdeskPanelId(workspaceId), "QM Helpdesk");
}

bool addToolsPanels() {
    for (const std::string& workspaceId : workspaceIds) {
        const Ptr<Workspace> workspace = ui->workspaces()->itemById(workspaceId);
        if (!workspace) {
            return false;
        }
        const Ptr<ToolbarPanels> panels = workspace->toolbarPanels();
        if (!panels) {
            return false;
        }
        toolsPanel(panels, workspaceId);
        addCommandControls(workspaceId);
    }
    return true;
}

bool addHelpdeskPanel(const Ptr<Workspace>& workspace) {
    if (!workspace) {
        return false;
    }
    const Ptr<ToolbarPanels> panels = workspace->toolbarPanels();
    if (!panels) {
        return false;
    }
    const Ptr<ToolbarControls> controls = helpdeskPanel(panels, workspace->id())->controls();
    // One control is the Configuration control alone. Any other count is a panel that is filled
    // already, or that of a workspace in which the add-in offers nothing.
    if (controls->count() == 1) {
        addHelpdeskControls(controls);
    }
    return true;
}

}  // namespace tarnix
