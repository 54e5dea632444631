#include "host/session/user_actions.h"

#include "host/session/user_action.h"

#include <algorithm>
#include <utility>

namespace host {
namespace {

using core::Ptr;

std::vector<Ptr<ui::CommandControlObject>> controlsOf(const ui::CommandDefinitionObject& definition,
                                                      const ui::WorkspaceObject& workspace) {
    std::vector<Ptr<ui::CommandControlObject>> found;
    for (const Ptr<ui::ToolbarPanelObject>& panel : workspace.panels()) {
        for (const Ptr<ui::CommandControlObject>& each : panel->state().controls->all()) {
            if (each->state().definition.get() == &definition) {
                found.push_back(each);
            }
        }
    }
    return found;
}

void press(UserAction& acting, const Ptr<ui::CommandDefinitionObject>& definition) {
    const Ptr<ui::WorkspaceObject>& workspace = acting.ui().state().workspaces->active();
    if (workspace) {
        const auto controls = controlsOf(*definition, *workspace);
        const bool hidden = std::none_of(controls.begin(), controls.end(),
                                         [](const auto& each) { return each->state().visible; });
        if (!controls.empty() && hidden) {
            throw MisuseError("cannot press " + definition->state().id +
                              ": its button is not visible in " + workspace->state().id);
        }
    }
    acting.request(definition);
    acting.finish();
}

std::string knownIds(const ui::CommandDefinitionsObject& definitions) {
    std::string ids;
    for (const Ptr<ui::CommandDefinitionObject>& each : definitions.all()) {
        if (!each->state().native) {
            ids += (ids.empty() ? "" : ", ") + each->state().id;
        }
    }
    return ids.empty() ? "there are no definitions" : "the definitions are " + ids;
}

}  // namespace

void pressCommand(const Ptr<core::CommandDefinition>& definition) {
    UserAction acting;
    const Ptr<ui::CommandDefinitionObject> known = definition;
    if (!known || !known->isValid()) {
        throw MisuseError("cannot press a command that does not exist: " +
                          knownIds(*acting.ui().state().definitions));
    }
    press(acting, known);
}

void pressCommand(const std::string& id) {
    UserAction acting;
    const Ptr<ui::CommandDefinitionObject> known = acting.ui().state().definitions->find(id);
    if (!known) {
        throw MisuseError("cannot press " + id +
                          ", which does not exist: " + knownIds(*acting.ui().state().definitions));
    }
    press(acting, known);
}

Ptr<core::Command> openDialog() {
    const Ptr<ui::CommandObject>& active = runningApplication().ui().runner().active();
    return active && active->state().shown ? active : nullptr;
}

bool showsPreview() { return runningApplication().ui().runner().showsPreview(); }

ui::DialogSize dialogSize() {
    const ui::CommandObject& dialog = shownDialog();
    const auto& remembered = runningApplication().ui().rememberedSizes;
    const auto found = remembered.find(dialog.definition()->state().id);
    ui::DialogSize size = found == remembered.end() ? dialog.state().initialSize : found->second;
    size.width = std::max(size.width, dialog.state().minimumSize.width);
    size.height = std::max(size.height, dialog.state().minimumSize.height);
    return size;
}

void resizeDialog(int width, int height) {
    const UserAction acting;
    acting.ui().rememberedSizes[shownDialog().definition()->state().id] = {width, height};
}

void pressOk() {
    UserAction acting;
    const std::string why = acting.runner().whyOkRefused();
    if (!why.empty()) {
        throw MisuseError("cannot press OK: " + why);
    }
    acting.runner().accept();
    acting.finish();
}

void acceptAnyway() {
    UserAction acting;
    static_cast<void>(shownDialog());
    acting.runner().accept();
    acting.finish();
}

void pressCancel() {
    UserAction acting;
    if (!acting.runner().active()) {
        throw MisuseError("cannot press Cancel: no command runs");
    }
    acting.runner().end(core::CancelledTerminationReason);
    acting.finish();
}

void drainRequests() { runningApplication().ui().runner().drainRequests(); }

namespace {

Ptr<ui::PaletteObject> paletteWithPage(const ui::UserInterfaceObject& ui, const std::string& id) {
    const Ptr<ui::PaletteObject> palette = ui.state().palettes->find(id);
    if (!palette) {
        throw MisuseError("cannot use the page of the palette " + id + ": no palette has this id");
    }
    return palette;
}

}  // namespace

std::string sendFromPage(const std::string& paletteId, const std::string& action,
                         const std::string& data) {
    UserAction acting;
    const std::string answer =
        paletteWithPage(acting.ui(), paletteId)->sendFromPage({.action = action, .data = data});
    acting.finish();
    return answer;
}

void answerAsPage(const std::string& paletteId,
                  std::function<std::string(const ui::PageMessage&)> page) {
    paletteWithPage(runningApplication().ui(), paletteId)->page = std::move(page);
}

std::vector<ui::PageMessage> sentToPage(const std::string& paletteId) {
    return paletteWithPage(runningApplication().ui(), paletteId)->sentToPage;
}

void closePalette(const std::string& id) {
    const UserAction acting;
    const Ptr<ui::PaletteObject> palette = acting.ui().state().palettes->find(id);
    if (!palette || !palette->state().visible || !palette->state().closeButton) {
        throw MisuseError("cannot close the palette " + id + ": " +
                          (!palette                    ? "no palette has this id"
                           : !palette->state().visible ? "it is not visible"
                                                       : "it has no close button"));
    }
    palette->close();
}

void activateWorkspace(const std::string& id) {
    UserAction acting;
    const Ptr<ui::WorkspaceObject> workspace = acting.ui().state().workspaces->find(id);
    if (!workspace) {
        throw MisuseError("cannot show the workspace " + id + ": no workspace has this id");
    }
    acting.ui().state().workspaces->activate(workspace);
    acting.finish();
}

std::vector<std::string> showMarkingMenu() {
    UserAction acting;
    const Ptr<ui::MarkingMenuEventObject>& event = acting.ui().menuEvent;
    const Ptr<ui::LinearMarkingMenuObject> linear = make<ui::LinearMarkingMenuObject>();
    const Ptr<ui::RadialMarkingMenuObject> radial = make<ui::RadialMarkingMenuObject>();
    event->fire(make<ui::MarkingMenuEventArgsObject>(
        event, linear, radial, acting.ui().state().selections->list.entities()));
    std::vector<std::string> shown;
    for (const Ptr<ui::CommandControlObject>& each : linear->state().controls->all()) {
        if (each->state().visible && each->state().definition->isValid()) {
            shown.push_back(each->state().id);
        }
    }
    linear->dispose();
    radial->dispose();
    acting.finish();
    return shown;
}

}  // namespace host
