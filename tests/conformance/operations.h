#pragma once

#include <Core/Application/Application.h>
#include <Core/UserInterface/Command.h>

#include <string>

/// What add-ins ask most of a host besides its handles, each operation once.
namespace operations {

/// Fills the dialog of a command with inputs for numbers.
void addInputs(const adsk::core::Ptr<adsk::core::Command>& command);

/// Calculates with vectors, units and collections, asks for files, and opens a document; a line
/// that sums up the results.
std::string callAll(const adsk::core::Ptr<adsk::core::Application>& application);

}  // namespace operations
