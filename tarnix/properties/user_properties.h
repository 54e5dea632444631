#pragma once

#include <Core/CoreAll.h>

#include <string>
#include <vector>

/// The list of custom properties, as the user edits it in the table of the tab "Settings".
///
/// A property is one string, the name in its row; ids and names of the rows' inputs do not matter.
namespace tarnix {

/// Adds an empty row, or deletes the selected one; shows the user a message when none is selected.
void onTableButton(const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& eventArgs);

/// Adds an empty row after the others.
void addUserPropertyRow(const adsk::core::Ptr<adsk::core::TableCommandInput>& table);

/// Answers a name being typed: with a character that no name may have the list cannot be saved, and
/// the message box says so. An empty name changes nothing.
void onUserPropertyEdited(const adsk::core::Ptr<adsk::core::CommandInput>& input);

/// Whether the name of a property may have this character: space, "-", "_", or a letter or digit of
/// ASCII.
bool isValidInPropertyName(char character);

/// The entries of the table's rows in their order, rows without a name left out: key, ";" and name.
/// Empty where the host has no table. Throws a plain `std::exception` for a row whose cell is no
/// line of text.
std::vector<std::string> collectUserProperties(
    const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& eventArgs);

/// Puts the table's entries in the place of those in the settings. Settings without the list get
/// none. The open dialog stays as it is.
void saveUserProperties(const adsk::core::Ptr<adsk::core::InputChangedEventArgs>& eventArgs);

}  // namespace tarnix
