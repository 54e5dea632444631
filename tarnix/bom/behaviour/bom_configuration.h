#pragma once

#include <Core/CoreAll.h>

#include <string>
#include <vector>

/// Saving the choice of columns that stands on the tab "BOM Configuration".
namespace tarnix {

/// Replaces the columns in the settings document by those of the tab of `input`, its button. The
/// other tabs take them when the dialog is opened again.
///
/// A tab without the table empties the stored choice. When anything throws, the document stays as
/// it was; one that was missing has been made by then.
void saveBomConfiguration(adsk::core::Ptr<adsk::core::CommandInput> input);

/// The columns in which a property is chosen, from left to right: the property's key, ";" and the
/// column's caption.
std::vector<std::string> readBomConfigTable(adsk::core::Ptr<adsk::core::CommandInput> input);

}  // namespace tarnix
