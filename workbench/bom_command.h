#pragma once

#include "workbench/reading.h"

#include <string>

namespace workbench {

struct BomOptions {
    std::string file;
    std::string tab = "structure";  ///< "structure" or "model"
    std::string out;                ///< folder for the exported file; empty: it stays where it is
    std::string format = "table";   ///< "table", "csv" or "json"
    std::string addin;              ///< folder of the add-in; empty: the one beside the program
    bool open = false;              ///< lets the shell open what the add-in asks it to
    bool verbose = false;           ///< shows what the add-in raises as a matter of course, too
    ReadingLimits limits;
};

/// Opens a design, has the add-in make its parts list and export it, and prints the list on stdout.
/// Raises a `Failure`, with nothing printed and nothing written, when any of this fails.
void runBom(const BomOptions& options);

}  // namespace workbench
