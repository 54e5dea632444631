#include "tests/tarnix/addin/addin_ui_fixture.h"

namespace test_support {

using namespace adsk::core;

namespace {

constexpr const char* kPanels[] = {"QM_Tarnix_AlfaFusionSolidEnvironment",
                                   "QM_Tarnix_AlfaCAMEnvironment",
                                   "QM_Tarnix_AlfaFusionRenderEnvironment",
                                   "QM_HD_panelFusionSolidEnvironment",
                                   "QM_HD_panelCAMEnvironment",
                                   "QM_HD_panelFusionRenderEnvironment",
                                   "QM_HD_panelFusionDocumentationEnvironment"};

void addLine(std::string& lines, const std::string& line) {
    lines += (lines.empty() ? "" : "\n") + line;
}

std::string lineOf(const std::string& id, bool isPromoted) {
    return id + (isPromoted ? " promoted" : "");
}

}  // namespace

Ptr<UserInterface> AddinUiTest::ui() { return Application::get()->userInterface(); }

Ptr<CommandDefinition> AddinUiTest::definition(const std::string& id) {
    return ui()->commandDefinitions()->itemById(id);
}

Ptr<ToolbarPanel> AddinUiTest::panel(const std::string& id) {
    return ui()->allToolbarPanels()->itemById(id);
}

std::string AddinUiTest::controls(const std::string& panelId) {
    const Ptr<ToolbarPanel> found = panel(panelId);
    if (!found) {
        return "no panel";
    }
    std::string lines;
    const Ptr<ToolbarControls> controls = found->controls();
    for (std::size_t i = 0; i < controls->count(); ++i) {
        const Ptr<CommandControl> control = controls->item(i);
        addLine(lines, lineOf(control->id(), control->isPromoted()));
    }
    return lines;
}

std::string AddinUiTest::controlsOf(std::span<const RegisteredCommand> commands, Place place) {
    std::string lines;
    for (const RegisteredCommand& command : commands) {
        if (command.place == place) addLine(lines, lineOf(command.id, command.isPromoted));
    }
    return lines;
}

std::string AddinUiTest::texts(const std::string& id) {
    const Ptr<CommandDefinition> found = definition(id);
    return found ? found->name() + "\n" + found->tooltip() + "\n" + found->resourceFolder()
                 : "none";
}

std::string AddinUiTest::present() {
    std::string lines;
    for (const char* id : kPanels) {
        if (panel(id)) addLine(lines, id);
    }
    for (const RegisteredCommand& command : kMainCommands) {
        if (definition(command.id)) addLine(lines, command.id);
    }
    for (const RegisteredCommand& command : kHelpdeskCommands) {
        if (definition(command.id)) addLine(lines, command.id);
    }
    return lines;
}

}  // namespace test_support
