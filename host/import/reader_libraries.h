#pragma once

#include <filesystem>
#include <string>
#include <vector>

/// Which Open CASCADE the reader would run with.
///
/// What a file's shapes are is worked out by its libraries, which a system updates without touching
/// the reader: what was found with others has to be found again.
namespace host {

/// The files that the reader would load now: those in `LD_LIBRARY_PATH`, else where they were when
/// it was built. One that is at neither place is left out.
std::vector<std::filesystem::path> readerLibraries();

/// Says of each file where it is, how large it is and when it was changed, in a line each.
std::string stampsOf(const std::vector<std::filesystem::path>& files);

}  // namespace host
