#pragma once

#include "host/design/design_file.h"

#include <filesystem>
#include <string>
#include <vector>

namespace workbench {

/// Saves designs as design files in a folder, each under its name, and tells of each on stdout. A
/// file that is there already stays: a number goes behind the name then. Throws a `Failure` for one
/// that cannot be saved.
void saveInFolder(const std::vector<host::DesignData>& designs,
                  const std::filesystem::path& folder);

/// A name that is one of a file on every system: what paths use, and control characters, become
/// "_", and so does a dot at the beginning.
std::string fileName(std::string name);

}  // namespace workbench
