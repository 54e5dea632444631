#include "tests/tarnix/refusal/traces.h"

#include <Core/CoreAll.h>

#include <cstddef>

namespace {

using namespace adsk::core;

/// The add-in's ids begin so; its palettes are the host's only ones.
bool isAddins(const std::string& id) {
    return id.rfind("QM_", 0) == 0 || id.rfind("QEMA_", 0) == 0;
}

}  // namespace

std::vector<std::string> tracesOfAddin() {
    std::vector<std::string> traces;
    const Ptr<UserInterface> ui = Application::get()->userInterface();
    const Ptr<CommandDefinitions> definitions = ui->commandDefinitions();
    for (std::size_t i = 0; i < definitions->count(); ++i) {
        const std::string id = definitions->item(i)->id();
        if (isAddins(id)) traces.push_back("definition " + id);
    }
    const Ptr<ToolbarPanelList> panels = ui->allToolbarPanels();
    for (std::size_t i = 0; i < panels->count(); ++i) {
        const std::string id = panels->item(i)->id();
        if (isAddins(id)) traces.push_back("panel " + id);
    }
    const Ptr<Palettes> palettes = ui->palettes();
    for (std::size_t i = 0; i < palettes->count(); ++i) {
        traces.push_back("palette " + palettes->item(i)->id());
    }
    return traces;
}
