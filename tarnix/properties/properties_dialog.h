#pragma once

#include <Core/CoreAll.h>

#include <string>
#include <vector>

/// What the dialog "Edit custom properties" shows.
///
/// One tab edits the properties of the component that is picked, the other the list of custom
/// properties that the first one offers. That list is kept in the settings: its entries are strings
/// of a key, ";" and a display name. It is read at each opening, so a change of it takes effect at
/// the next one.
namespace tarnix {

/// Counts the rows that were made of the settings, over all openings.
extern int filledRowCounter;

/// Numbers the rows that the user adds. It is never reset, so that their ids do not repeat while
/// the add-in is loaded.
extern int addedRowCounter;

/// Makes all inputs of the dialog.
///
/// Ends early, and leaves what it has made, where the host returns no tab, no group, no button row
/// or none of their contents. Anything else that is missing throws a plain `std::exception`, and so
/// do the contents of the second group where there are custom properties for it.
void buildPropertiesDialog(adsk::core::Ptr<adsk::core::CommandInputs> inputs);

/// Has the selection accept occurrences and the root component, and shows the user which filter the
/// host refuses.
void setSelectionFilters(adsk::core::Ptr<adsk::core::SelectionCommandInput> selectionInput);

/// Adds a row for each entry of the settings' list after those that the table has.
void fillUserPropertyTable(adsk::core::Ptr<adsk::core::TableCommandInput> table,
                           std::vector<std::string> entries);

}  // namespace tarnix
