#pragma once

#include "tarnix/bom/model/bom_row.h"

#include <Core/CoreAll.h>

#include <string>
#include <vector>

/// The reaction of the open BOM dialog to its drop-downs.
///
/// On the tab "BOM Configuration" the choice of a property marks its column as used and names it;
/// its button saves the choice of columns. On the tab "Structure" the choice of "Reference" takes a
/// row out of sight, with what lies under it. Everything else passes through without effect: what
/// is edited in a table stays there alone until the dialog is saved.
namespace tarnix {

/// Follows up a change of any input.
///
/// `rows` is the plain walk over the design; that the row exists is all that is asked of it. Each
/// id that comes here has to end in a number: one that does not throws "invalid stoi argument", as
/// the dialog's buttons and the choice of the sort order do each time, when their work is done.
void onBomSelectionChange(adsk::core::Ptr<adsk::core::InputChangedEventArgs> eventArgs,
                          const std::vector<BomRow>& rows);

/// Hides a row, and each later row whose position is longer and begins with the row's position.
///
/// Positions are compared character by character, regardless of the dots: under 1 go 10, 11 and 100
/// too. A row that is not there throws a plain `std::exception`, and nothing is hidden.
void hideRowWithChildren(adsk::core::Ptr<adsk::core::TableCommandInput> table, int row);

/// Replaces the columns in the settings document by those of the tab of `input`, its button. The
/// other tabs take them when the dialog is opened again.
///
/// A tab without the table empties the stored choice. When anything throws, the document stays as
/// it was; one that was missing has been made by then.
void saveBomConfiguration(adsk::core::Ptr<adsk::core::CommandInput> input);

/// The columns in which a property is chosen, from left to right, as items of the settings.
std::vector<std::string> readBomConfigTable(adsk::core::Ptr<adsk::core::CommandInput> input);

}  // namespace tarnix
