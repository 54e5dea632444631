#pragma once

#include "workbench/commands/design_reading.h"

#include <string>
#include <vector>

namespace workbench {

struct BomOptions {
    std::string file;
    std::string tab = "structure";  ///< "structure" or "model"
    std::string out;                ///< folder for the exported file; empty: it stays where it is
    std::string format = "table";   ///< "table", "csv" or "json"
    std::vector<std::string> columns;  ///< "PROPERTY" or "PROPERTY=CAPTION"; none: as they were
    std::string sort;                  ///< "COLUMN", with ":desc" or ":asc"; empty: not at all
    std::string expand;                ///< "all" or a level; empty: only the first
    std::vector<std::string> cells;    ///< "ROW:COLUMN=VALUE"
    bool save = false;                 ///< whether the shown tab is written, and the design saved
    std::string saveFile;              ///< where to; empty: in its design file, else beside it
    std::string addin;                 ///< folder of the add-in; empty: the one beside the program
    bool open = false;                 ///< lets the shell open what the add-in asks it to
    bool verbose = false;              ///< shows what the add-in throws as a matter of course, too
    host::ReadingLimits limits;
};

/// Opens a design, has the add-in make its parts list and export it, and prints the list on stdout.
/// The columns are saved first; with `save`, the cells are then edited, and what is printed is the
/// saved design opened again. Throws a `Failure`, with nothing printed and nothing written, when
/// any of this fails.
void runBom(const BomOptions& options);

}  // namespace workbench
