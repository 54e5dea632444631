#include "host/ui/toolbar/workspaces.h"

#include "host/ui/toolbar/entries.h"
#include "host/ui/user_interface.h"

#include <utility>

namespace host::ui {
namespace {

constexpr const char* kToolsTab = "ToolsTab";

}  // namespace

Workspace::Workspace(Workspaces* owner, WorkspaceSetup setup)
    : owner_(owner),
      setup_(std::move(setup)),
      panelsApi_(make<ToolbarPanels>(this, nullptr)),
      tabsApi_(make<ToolbarTabs>(this)) {}

std::string Workspace::id() const {
    if (closed<"Workspace::id">(*this)) return {};
    return setup_.id;
}

std::string Workspace::name() const {
    if (closed<"Workspace::name">(*this)) return {};
    return setup_.name;
}

std::string Workspace::productType() const {
    if (closed<"Workspace::productType">(*this)) return {};
    return setup_.productType;
}

core::Ptr<core::ToolbarPanels> Workspace::toolbarPanels() const {
    if (closed<"Workspace::toolbarPanels">(*this)) return {};
    return panelsApi_;
}

core::Ptr<core::ToolbarTabs> Workspace::toolbarTabs() const {
    if (closed<"Workspace::toolbarTabs">(*this)) return {};
    return tabsApi_;
}

bool Workspace::isActive() const {
    if (closed<"Workspace::isActive">(*this)) return {};
    return owner_->active().get() == this;
}

bool Workspace::activate() {
    if (closed<"Workspace::activate">(*this)) return {};
    if (owner_->active().get() != this && owner_->inCommandEvent()) {
        return misuse("Workspace::activate", "called inside an event of a command");
    }
    owner_->activate(core::Ptr<Workspace>(this));
    return true;
}

PanelList Workspace::panels() const {
    PanelList all;
    for (const core::Ptr<ToolbarTab>& each : tabs_) {
        all.insert(all.end(), each->panels().begin(), each->panels().end());
    }
    return all;
}

ToolbarTab& Workspace::toolsTab() {
    core::Ptr<ToolbarTab> tab = entryOf(tabs_, kToolsTab);
    if (!tab) {
        tab = make<ToolbarTab>(this, kToolsTab, "Tools");
        tabs_.push_back(tab);
    }
    return *tab;
}

void Workspace::dispose() {
    for (const core::Ptr<ToolbarTab>& each : tabs_) {
        each->dispose();
    }
    tabs_.clear();
    panelsApi_->dispose();
    tabsApi_->dispose();
    owner_ = nullptr;
    invalidate();
}

Workspaces::Workspaces(UserInterface* ui, const std::vector<WorkspaceSetup>& setups) : ui_(ui) {
    for (const WorkspaceSetup& each : setups) {
        all_.push_back(make<Workspace>(this, each));
    }
    active_ = all_.empty() ? nullptr : all_.front();
}

std::size_t Workspaces::count() const {
    if (closed<"Workspaces::count">(*this)) return {};
    return all_.size();
}

core::Ptr<core::Workspace> Workspaces::item(std::size_t index) const {
    if (closed<"Workspaces::item">(*this)) return {};
    return entryAt(all_, index);
}

core::Ptr<core::Workspace> Workspaces::itemById(const std::string& id) const {
    if (closed<"Workspaces::itemById">(*this)) return {};
    return find(id);
}

core::Ptr<Workspace> Workspaces::find(const std::string& id) const { return entryOf(all_, id); }

core::Ptr<ToolbarPanel> Workspaces::panel(const std::string& id) const {
    return entryOf(panels(), id);
}

PanelList Workspaces::panels() const {
    PanelList panels;
    for (const core::Ptr<Workspace>& each : all_) {
        const PanelList own = each->panels();
        panels.insert(panels.end(), own.begin(), own.end());
    }
    return panels;
}

TabList Workspaces::tabs(const std::string& productType) const {
    TabList tabs;
    for (const core::Ptr<Workspace>& each : all_) {
        if (each->product() == productType) {
            tabs.insert(tabs.end(), each->tabs().begin(), each->tabs().end());
        }
    }
    return tabs;
}

bool Workspaces::inCommandEvent() const { return ui_->runner().inCommandEvent(); }

void Workspaces::activate(const core::Ptr<Workspace>& workspace) {
    if (workspace == active_) return;
    ui_->leaveWorkspace();
    const auto fire = [](const core::Ptr<WorkspaceEvent>& event,
                         const core::Ptr<Workspace>& about) {
        event->fire(make<WorkspaceArguments>(event, about));
    };
    const core::Ptr<Workspace> before = active_;
    fire(ui_->preDeactivateEvent, before);
    fire(ui_->preActivateEvent, workspace);
    active_ = workspace;
    fire(ui_->deactivatedEvent, before);
    fire(ui_->activatedEvent, workspace);
}

void Workspaces::dispose() {
    for (const core::Ptr<Workspace>& each : all_) {
        each->dispose();
    }
    all_.clear();
    active_ = nullptr;
    ui_ = nullptr;
    invalidate();
}

core::Ptr<core::Workspace> WorkspaceArguments::workspace() const {
    if (refused<"WorkspaceEventArgs::workspace">()) return {};
    return workspace_;
}

}  // namespace host::ui
