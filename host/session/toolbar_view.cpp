#include "host/session/toolbar_view.h"

#include "host/session/user_action.h"

#include <unordered_set>
#include <utility>

namespace host {
namespace {

using core::Ptr;

ControlView readCommand(const ui::CommandDefinitionObject& definition) {
    ControlView view;
    view.command = definition.state().id;
    view.caption = definition.state().name;
    view.tooltip = definition.state().tooltip;
    view.icons = definition.state().resourceFolder;
    return view;
}

ControlView readControl(const ui::CommandControlObject& control) {
    ControlView view;
    if (control.state().definition->isValid()) {
        view = readCommand(*control.state().definition);
    } else {
        view.command = control.state().id;
        view.isDeleted = true;
    }
    view.visible = control.state().visible;
    view.promoted = control.state().promoted;
    return view;
}

PanelView readPanel(const ui::ToolbarPanelObject& panel) {
    PanelView view{.id = panel.state().id,
                   .caption = panel.state().name,
                   .native = panel.state().native,
                   .controls = {}};
    for (const Ptr<ui::CommandControlObject>& each : panel.state().controls->all()) {
        view.controls.push_back(readControl(*each));
    }
    return view;
}

ToolbarTabView readTab(const ui::ToolbarTabObject& tab) {
    ToolbarTabView view{.id = tab.state().id, .caption = tab.state().name, .panels = {}};
    for (const Ptr<ui::ToolbarPanelObject>& each : tab.panels()) {
        // The host's own panels have no buttons here: they show once a module has added one.
        if (tab.state().id == "ToolsTab" || !each->state().native ||
            !each->state().controls->all().empty()) {
            view.panels.push_back(readPanel(*each));
        }
    }
    return view;
}

WorkspaceView readWorkspace(const ui::WorkspaceObject& workspace, bool active) {
    WorkspaceView view{.id = workspace.state().id,
                       .caption = workspace.state().name,
                       .productType = workspace.state().productType,
                       .active = active,
                       .tabs = {}};
    for (const Ptr<ui::ToolbarTabObject>& each : workspace.tabs()) {
        ToolbarTabView tab = readTab(*each);
        if (!tab.panels.empty() || each->panels().empty()) {
            view.tabs.push_back(std::move(tab));
        }
    }
    return view;
}

std::unordered_set<std::string> commandsIn(const PanelView& panel) {
    std::unordered_set<std::string> ids;
    for (const ControlView& each : panel.controls) {
        ids.insert(each.command);
    }
    return ids;
}

std::unordered_set<std::string> commandsWithButton(const std::vector<WorkspaceView>& workspaces) {
    std::unordered_set<std::string> ids;
    for (const WorkspaceView& workspace : workspaces) {
        for (const ToolbarTabView& tab : workspace.tabs) {
            for (const PanelView& panel : tab.panels) {
                ids.merge(commandsIn(panel));
            }
        }
    }
    return ids;
}

}  // namespace

ToolbarView readToolbars() {
    const ui::UserInterfaceState& state = runningApplication().ui().state();
    ToolbarView view;
    for (const Ptr<ui::WorkspaceObject>& each : state.workspaces->all()) {
        view.workspaces.push_back(
            readWorkspace(*each, each.get() == state.workspaces->active().get()));
    }
    const std::unordered_set<std::string> placed = commandsWithButton(view.workspaces);
    for (const Ptr<ui::CommandDefinitionObject>& each : state.definitions->all()) {
        if (!each->state().native && !placed.contains(each->state().id)) {
            view.withoutButton.push_back(readCommand(*each));
        }
    }
    return view;
}

ControlView readCommand(const std::string& id) {
    const Ptr<ui::CommandDefinitionObject> definition =
        runningApplication().ui().state().definitions->find(id);
    if (definition) return readCommand(*definition);
    ControlView view;
    view.command = id;
    view.isDeleted = true;
    return view;
}

std::vector<std::string> commandIds() {
    std::vector<std::string> ids;
    for (const auto& each : runningApplication().ui().state().definitions->all()) {
        if (!each->state().native) {
            ids.push_back(each->state().id);
        }
    }
    return ids;
}

}  // namespace host
