#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace workbench {

/// The files that arguments name, in UTF-8: a file is itself; a folder stands for all designs in it
/// and below, by their endings; a pattern for the files that match. In a pattern * and ? match
/// within a name, and ** any number of folders. Files of a folder or a pattern are sorted, and each
/// is there once, however it is spelt. What starts with a dot is matched only by a pattern that
/// does so too.
///
/// A folder that cannot be read is noted in `unreadable`, by a line that says why, and left out.
/// Throws a `Failure` for a folder without designs and a pattern that nothing matches. A name that
/// is none of these is returned as it is: its reader says what is wrong.
std::vector<std::string> expandInputs(const std::vector<std::string>& arguments,
                                      std::vector<std::string>& unreadable);

/// One spelling for a file, whether it is there or not.
std::filesystem::path settled(const std::string& name);

/// Whether a name within a folder matches a pattern with * and ?.
bool matchesPattern(const std::string& name, const std::string& pattern);

/// Whether a file can be a design, by its ending.
bool hasDesignEnding(const std::string& name);

/// The name of a design's file without its folder and its ending, and without ".gz".
std::string stemOf(const std::string& file);

}  // namespace workbench
