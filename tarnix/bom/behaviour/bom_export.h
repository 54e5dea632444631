#pragma once

#include <Core/CoreAll.h>

#include <string>

/// The export of a table of the BOM dialog: its visible rows as a text file beside the module,
/// which the workbook in the same folder reads when it is opened.
namespace tarnix {

/// Writes the table of the tab whose button was clicked, replacing an earlier export, and asks the
/// shell to open the workbook.
///
/// True when the export ran; false, with nothing done, where the tab has no such table or it holds
/// less than a header and one row.
bool exportBom(adsk::core::Ptr<adsk::core::InputChangedEventArgs> eventArgs);

/// Writes the visible rows of `table` after what the file at `path` holds: fields end in ";" and
/// nothing is quoted, lines end in CR LF, and the last line has the total mass.
///
/// Each line is passed to the system as it ends: what is thrown, and a process that dies, leave the
/// lines so far in the file.
void writeBomCsv(std::string path, adsk::core::Ptr<adsk::core::TableCommandInput> table);

}  // namespace tarnix
