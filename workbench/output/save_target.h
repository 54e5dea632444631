#pragma once

#include <filesystem>
#include <string>

namespace workbench {

/// The design file to save in, for the design of `file`: the one that is named, else `file` itself
/// where it is one, else one beside it, which must not be there yet. Throws a `Failure` for a name
/// that is none of a design file.
std::filesystem::path saveTarget(const std::string& file, const std::string& named);

}  // namespace workbench
