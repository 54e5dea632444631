#pragma once

#include "workbench/commands/parts_options.h"

#include <cstddef>
#include <string>
#include <vector>

/// Lists of one design or of many, on several processors.
namespace workbench {

/// One list that is made of every design.
struct ListTask {
    parts::PartsRequest request;
    PartsFormat format;
    std::string output;           ///< its name, see output_names.h; empty for stdout
    bool comparesShapes = false;  ///< also where the request does not need it
};

struct PartsRun {
    std::vector<std::string> files;       ///< one at least
    std::vector<std::string> unreadable;  ///< of each folder that could not be searched, why
    std::vector<ListTask> tasks;
    ReadingOptions reading;
    std::size_t jobs = 1;  ///< designs that are read at once
};

/// Refuses outputs that would overwrite each other, and what cannot hold the lists of several
/// files. Nothing has been read then.
void checkOutputs(const PartsRun& run);

/// Reads the designs and writes their lists, those of a design all or none. A design that fails and
/// a folder that could not be searched are reported, and the others are listed all the same; then a
/// `Failure` is thrown with the worst status. What is printed is in the order of the files.
void listParts(const PartsRun& run);

}  // namespace workbench
