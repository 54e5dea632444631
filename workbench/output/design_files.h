#pragma once

#include "host/design/design_file.h"

#include <filesystem>
#include <string>
#include <vector>

/// Designs that are written, each into a design file.
namespace workbench {

/// Writes a design file, whole or not at all. Throws a `Failure` where that fails.
void saveDesign(const host::DesignData& design, const std::filesystem::path& file);

/// Saves designs in a folder, each under its name, and reports each on stdout. A file that exists
/// stays: the name then gets a number. Throws a `Failure` for one that cannot be saved.
void saveInFolder(const std::vector<host::DesignData>& designs,
                  const std::filesystem::path& folder);

/// A name that every system takes for a file: what paths use, control characters, and a dot at the
/// beginning become "_".
std::string fileName(std::string name);

/// The design file to save in, for the design of `file`: the one that is named, else `file` itself
/// where it is a design file, else a new one beside it. Throws a `Failure` for a name that is not
/// one of a design file, and where the new one exists already.
std::filesystem::path saveTarget(const std::string& file, const std::string& named);

}  // namespace workbench
