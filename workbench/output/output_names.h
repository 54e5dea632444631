#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// The names of the files that lists are written into.
namespace workbench {

/// The name for the list of a file: in `pattern` "{stem}" stands for the file's name without its
/// ending, "{name}" for its name, "{dir}" for its folder. Throws a `Failure` for another word in
/// braces.
std::string outputName(const std::string& pattern, const std::string& file);

/// Whether a name is that of one file for each design.
bool hasPlaceholder(const std::string& pattern);

/// Refuses to replace a file that is a design by its content, whatever it is called.
void refuseToReplaceDesign(const std::string& name);

/// Refuses names of outputs that would overwrite each other, or one of the designs, or any other
/// design, or that are there and are no files. Names are in UTF-8; `sources` says for each what it
/// would hold.
void checkOutputNames(const std::vector<std::string>& names,
                      const std::vector<std::string>& sources,
                      const std::vector<std::string>& designs);

}  // namespace workbench
