#pragma once

#include <Core/Application/Application.h>
#include <Core/UserInterface/Command.h>

#include <string>

/// What add-ins ask most of a host besides its handles, each operation once.
namespace operations {

/// Fills the dialog of a command with inputs for numbers.
void addInputs(const adsk::core::Ptr<adsk::core::Command>& command);

/// Registers a custom event and adds a palette, both with handlers.
void subscribe(const adsk::core::Ptr<adsk::core::Application>& application);

/// Takes back what `subscribe` did, if it did.
void unsubscribe(const adsk::core::Ptr<adsk::core::Application>& application);

/// Calculates with vectors, units and collections, asks for files, opens a document, adds
/// components to it, and lets a thread report; a line that sums up the results.
std::string callAll(const adsk::core::Ptr<adsk::core::Application>& application);

}  // namespace operations
