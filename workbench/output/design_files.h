#pragma once

#include "workbench/output/staged_files.h"

#include "host/design/design_file.h"

#include <filesystem>
#include <string>
#include <vector>

/// Designs that are written, each into a design file.
namespace workbench {

/// Saves designs in a folder, each under its name, and reports each on stdout. A file that exists
/// stays: the name then gets a number. Throws a `Failure` for one that cannot be saved.
void saveInFolder(const std::vector<host::DesignData>& designs,
                  const std::filesystem::path& folder);

/// A name that every system takes for a file: what paths use, control characters, and a dot at the
/// beginning become "_".
std::string fileName(std::string name);

/// A design file to save in.
struct SaveTarget {
    std::filesystem::path path;  ///< absolute; empty where nothing is to be saved
    std::filesystem::path name;  ///< the same as the user spelt it
    Fingerprint before;          ///< what it holds before the design is read
};

/// The design file to save in, for the design of `file`: the one that is named, else `file` itself
/// where it is a design file, else a new one beside it, named without ".gz". Throws a `Failure` for
/// a name that is not one of a design file, where the new one exists already, and where the
/// standard input or a pipe has no name for it.
SaveTarget saveTarget(const std::string& file, const std::string& named);

}  // namespace workbench
