#pragma once

#include "host/session/design_files.h"

#include <filesystem>
#include <string>

namespace workbench {

/// The design file to save in, for the design of `file`: the one that is named, else `file` itself
/// where it is one, else one beside it, which must not be there yet. Raises a `Failure` for a name
/// that is none of a design file.
std::filesystem::path saveTarget(const std::string& file, const std::string& named);

/// Writes a design into a design file, whole or not at all. Raises a `Failure` where that cannot be
/// done.
void saveDesign(const host::DesignData& design, const std::filesystem::path& file);

}  // namespace workbench
