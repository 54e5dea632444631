#include "tarnix/addin/addin_command.h"

#include <utility>

namespace tarnix {

using namespace adsk::core;

AddinCommand::AddinCommand(const CommandTexts& texts,
                           std::unique_ptr<CommandCreatedEventHandler> handler)
    : id(texts.id),
      name(texts.name),
      tooltip(texts.tooltip),
      resourceFolder(texts.resourceFolder),
      createdHandler(std::move(handler)) {}

// Delegates, so that the destructor cleans up in the host when the subscription throws.
AddinCommand::AddinCommand(const Ptr<Application>& application, const CommandTexts& texts,
                           std::unique_ptr<CommandCreatedEventHandler> handler)
    : AddinCommand(texts, std::move(handler)) {
    app = application;
    ui = app->userInterface();
    if (ui) {
        createDefinition();
    }
}

void AddinCommand::createDefinition() {
    if (commandDefinition) {
        return;
    }
    const Ptr<CommandDefinitions> definitions = ui->commandDefinitions();
    if (!definitions) {
        return;
    }
    const Ptr<CommandDefinition> made =
        definitions->addButtonDefinition(id, name, tooltip, resourceFolder);
    if (!made) {
        return;
    }
    commandDefinition = made;
    if (createdHandler) {
        commandDefinition->commandCreated()->add(createdHandler.get());
    }
}

AddinCommand::~AddinCommand() {
    for (const Ptr<CommandControl>& control : controls) {
        control->deleteMe();
    }
    if (commandDefinition) {
        commandDefinition->deleteMe();
    }
    createdHandler.reset();
}

}  // namespace tarnix
