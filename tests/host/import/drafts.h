#pragma once

#include "host/import/step_import.h"

#include <string>
#include <vector>

/// STEP files for tests.
namespace drafts {

/// A STEP file around entities that may use #1 (application), #2 (product context), #3 (definition
/// context).
std::string step(const std::string& entities);

/// A product without geometry whose definition is `#number`; takes the two numbers after it too.
std::string product(int number, const std::string& id, const std::string& name);

/// A use of one product definition below another, without a placement.
std::string usage(int number, int parent, int child);

/// What refers from a product definition to the file that holds its content; takes the numbers from
/// `number` to `number` + 19.
std::string reference(int number, int definition, const std::string& file);

/// The design as a tree of names, each occurrence on a line of its own.
std::string tree(const host::DesignData& design);

/// The warnings as the user sees them.
std::vector<std::string> lines(const std::vector<host::ReadingWarning>& warnings);

/// Reads with default limits; what is warned of is dropped.
host::DesignData import(const std::string& path);

/// The line with which a file is refused; empty when it is read.
std::string refusal(const std::string& path, const host::ReadingLimits& limits = {});

}  // namespace drafts
