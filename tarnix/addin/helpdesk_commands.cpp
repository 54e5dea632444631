#include "tarnix/addin/helpdesk_commands.h"

#include "tarnix/addin/state.h"
#include "tarnix/helpdesk/one_click_commands.h"

#include <cstddef>
#include <span>
#include <string>

namespace tarnix {

using namespace adsk::core;

std::vector<Ptr<CommandDefinition>> helpdeskCommandDefinitions;

namespace {

/// Where the definitions of this run begin; before it are the deleted ones of earlier runs.
std::size_t firstOfThisRun = 0;

std::span<const Ptr<CommandDefinition>> definitionsOfThisRun() {
    return std::span(helpdeskCommandDefinitions).subspan(firstOfThisRun);
}

Ptr<CommandDefinition> findOrAddDefinition(const Ptr<CommandDefinitions>& definitions,
                                           const CommandTexts& texts) {
    Ptr<CommandDefinition> definition = definitions->itemById(texts.id);
    if (!definition) {
        definition = definitions->addButtonDefinition(texts.id, texts.name, texts.tooltip,
                                                      texts.resourceFolder);
    }
    return definition;
}

}  // namespace

bool createHelpdeskCommands() {
    firstOfThisRun = helpdeskCommandDefinitions.size();
    const Ptr<CommandDefinitions> definitions = ui->commandDefinitions();
    if (!definitions) {
        return false;
    }
    for (const OneClickCommand& command : oneClickCommands()) {
        const Ptr<CommandDefinition> definition = findOrAddDefinition(definitions, command.texts);
        if (!checkReturn(definition)) {
            return false;
        }
        helpdeskCommandDefinitions.push_back(definition);
    }
    for (const Ptr<CommandDefinition>& definition : definitionsOfThisRun()) {
        if (!definition->commandCreated()->add(&commandCreatedEventHandler)) {
            return false;
        }
    }
    return true;
}

void addHelpdeskControls(const Ptr<ToolbarControls>& controls) {
    const std::span<const Ptr<CommandDefinition>> definitions = definitionsOfThisRun();
    for (std::size_t i = 0; i < definitions.size(); ++i) {
        // The position is the command's own id. No control of the panel has it yet, so each goes
        // after the others.
        const Ptr<CommandControl> control =
            controls->addCommand(definitions[i], oneClickCommands()[i].texts.id, /*isBefore=*/true);
        if (i == 0 || i + 1 == definitions.size()) {
            control->isPromoted(true);
        }
    }
}

bool checkReturn(const Ptr<Base>& handle) {
    if (handle) {
        return true;
    }
    std::string lastError;
    app->getLastError(&lastError);
    ui->messageBox(lastError, "");
    return false;
}

}  // namespace tarnix
