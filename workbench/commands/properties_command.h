#pragma once

#include "workbench/commands/design_reading.h"

#include <string>
#include <vector>

namespace workbench {

struct PropertiesOptions {
    std::string file;
    std::string component;            ///< as the browser tree shows it; empty: the root component
    std::vector<std::string> values;  ///< "NAME=VALUE"
    bool save = false;                ///< whether the dialog is accepted, and the design saved
    std::string saveFile;             ///< where to; empty: in its design file, else beside it
    std::string data;                 ///< folder of the user's projects; empty: there are none
    std::string addin;                ///< folder of the add-in; empty: the one beside the program
    host::ReadingLimits limits;
};

/// Picks a component in the add-in's dialog and prints what the dialog shows of it. With `save`
/// the values are put in first, the dialog is accepted, and what is printed is what the design then
/// holds. Throws a `Failure`, with nothing printed and no design saved, when any of this fails, or
/// when the design then holds another value than one that was put in.
void runProperties(const PropertiesOptions& options);

}  // namespace workbench
