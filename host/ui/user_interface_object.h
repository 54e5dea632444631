#pragma once

#include "host/ui/active_model.h"
#include "host/ui/commands/command_definitions_object.h"
#include "host/ui/commands/command_runner.h"
#include "host/ui/commands/selections_object.h"
#include "host/ui/dialogs/palettes_object.h"
#include "host/ui/host_setup.h"
#include "host/ui/toolbar/marking_menu.h"
#include "host/ui/toolbar/toolbars_object.h"
#include "host/ui/toolbar/workspaces_object.h"

#include <Core/UserInterface.h>

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace host::ui {

/// How the host takes back what was done to the model, for previews and failed executions.
struct ModelHistory {
    /// Notes the changes from now on, in a record of the returned number.
    std::function<std::uint64_t()> begin;
    std::function<void(std::uint64_t)> end;       ///< notes no more of them in that record
    std::function<void(std::uint64_t)> takeBack;  ///< undoes them
    std::function<void(std::uint64_t)> keep;      ///< lets them stay
};

/// What the user interface consists of.
struct UserInterfaceState {
    core::Ptr<CommandDefinitionsObject> definitions;
    core::Ptr<WorkspacesObject> workspaces;
    core::Ptr<ToolbarPanelListObject> panels;
    core::Ptr<ToolbarsObject> toolbars;
    core::Ptr<PalettesObject> palettes;
    core::Ptr<SelectionsObject> selections;
};

class UserInterfaceObject final : public Object<core::UserInterface> {
public:
    /// The model has to live until `dispose`.
    UserInterfaceObject(const HostSetup& setup, const ActiveModel& model);

    [[nodiscard]] core::Ptr<core::Workspaces> workspaces() const override {
        return get<"workspaces">(state_.workspaces);
    }
    [[nodiscard]] core::Ptr<core::Workspace> activeWorkspace() const override;
    [[nodiscard]] core::Ptr<core::ToolbarPanelList> allToolbarPanels() const override {
        return get<"allToolbarPanels">(state_.panels);
    }
    [[nodiscard]] core::Ptr<core::ToolbarTabList> toolbarTabsByProductType(
        const std::string& productType) const override;
    [[nodiscard]] core::Ptr<core::Toolbars> toolbars() const override {
        return get<"toolbars">(state_.toolbars);
    }
    [[nodiscard]] core::Ptr<core::Palettes> palettes() const override {
        return get<"palettes">(state_.palettes);
    }
    [[nodiscard]] core::Ptr<core::CommandDefinitions> commandDefinitions() const override {
        return get<"commandDefinitions">(state_.definitions);
    }
    [[nodiscard]] core::Ptr<core::Selections> activeSelections() const override {
        return get<"activeSelections">(state_.selections);
    }
    [[nodiscard]] core::Ptr<core::ApplicationCommandEvent> commandStarting() const override {
        return get<"commandStarting">(startingEvent);
    }
    [[nodiscard]] core::Ptr<core::ApplicationCommandEvent> commandCreated() const override {
        return get<"commandCreated">(createdEvent);
    }
    [[nodiscard]] core::Ptr<core::ApplicationCommandEvent> commandTerminated() const override {
        return get<"commandTerminated">(terminatedEvent);
    }
    [[nodiscard]] core::Ptr<core::WorkspaceEvent> workspacePreActivate() const override {
        return get<"workspacePreActivate">(preActivateEvent);
    }
    [[nodiscard]] core::Ptr<core::WorkspaceEvent> workspaceActivated() const override {
        return get<"workspaceActivated">(activatedEvent);
    }
    [[nodiscard]] core::Ptr<core::WorkspaceEvent> workspacePreDeactivate() const override {
        return get<"workspacePreDeactivate">(preDeactivateEvent);
    }
    [[nodiscard]] core::Ptr<core::WorkspaceEvent> workspaceDeactivated() const override {
        return get<"workspaceDeactivated">(deactivatedEvent);
    }
    [[nodiscard]] core::Ptr<core::MarkingMenuEvent> markingMenuDisplaying() const override {
        return get<"markingMenuDisplaying">(menuEvent);
    }
    core::DialogResults messageBox(const std::string& text, const std::string& title,
                                   core::MessageBoxButtonTypes buttons,
                                   core::MessageBoxIconTypes icon) override;
    core::Ptr<core::FileDialog> createFileDialog() override;
    core::Ptr<core::FolderDialog> createFolderDialog() override;
    core::Ptr<core::ProgressDialog> createProgressDialog() override;
    bool terminateActiveCommand() override;
    [[nodiscard]] std::string activeCommand() const override;

    /// @name For the host itself
    /// @{
    [[nodiscard]] CommandRunner& runner() { return runner_; }
    [[nodiscard]] const UserInterfaceState& state() const { return state_; }

    /// Whether this is the root component of the active document's design.
    [[nodiscard]] bool isRootComponent(const core::Ptr<core::Base>& entity) const;

    /// How often the active document's model was changed; 0 once the host has ended.
    [[nodiscard]] std::uint64_t editsOfModel() const;

    /// The workspace is about to change: the running command is cancelled.
    void leaveWorkspace();

    void dispose();

    ModelHistory history;

    /// The sizes that the user gave to dialogs, by the ids of their commands.
    std::map<std::string, DialogSize> rememberedSizes;

    /// @}

    /// @name The events, with the names that records show for what a handler threw
    /// @{
    const core::Ptr<ApplicationCommandEventObject> startingEvent =
        make<ApplicationCommandEventObject>("OnCommandStarting", this);
    const core::Ptr<ApplicationCommandEventObject> createdEvent =
        make<ApplicationCommandEventObject>("OnApplicationCommandCreated", this);
    const core::Ptr<ApplicationCommandEventObject> terminatedEvent =
        make<ApplicationCommandEventObject>("OnCommandTerminated", this);
    const core::Ptr<WorkspaceEventObject> preActivateEvent =
        make<WorkspaceEventObject>("OnWorkspacePreActivate", this);
    const core::Ptr<WorkspaceEventObject> activatedEvent =
        make<WorkspaceEventObject>("OnWorkspaceActivated", this);
    const core::Ptr<WorkspaceEventObject> preDeactivateEvent =
        make<WorkspaceEventObject>("OnWorkspacePreDeactivate", this);
    const core::Ptr<WorkspaceEventObject> deactivatedEvent =
        make<WorkspaceEventObject>("OnWorkspaceDeactivated", this);
    const core::Ptr<MarkingMenuEventObject> menuEvent =
        make<MarkingMenuEventObject>("OnMarkingMenuDisplaying", this);
    /// @}

private:
    void createDefaultLayout(const HostSetup& setup);

    const ActiveModel* model_;  ///< null once the host has ended
    CommandRunner runner_;
    UserInterfaceState state_;
    mutable std::vector<core::Ptr<ToolbarTabListObject>> tabLists_;  ///< one per product type
};

}  // namespace host::ui
