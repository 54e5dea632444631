#pragma once

#include "host/design/reading_limits.h"

#include <filesystem>
#include <memory>
#include <string>

namespace host {

/// A file that a design is read from: the one that the caller named, or a private copy of what
/// comes from a pipe or is packed.
struct ReadableFile {
    std::filesystem::path path;    ///< an ordinary file; a copy has the name without ".gz"
    std::string shown;             ///< what messages call it
    std::filesystem::path again;   ///< the file to read it from again; empty for a pipe
    std::filesystem::path folder;  ///< where the files are that it refers to by name
    std::shared_ptr<void> copy;    ///< removes the copy; null where there is none
};

/// Looks at what kind of file a path names, before opening it.
///
/// "-" is the standard input. What comes from there or from a pipe is copied into a private file,
/// and what gzip packed (.gz, .stpz) is unpacked into one, whatever its name. Both are bounded by a
/// quarter of the memory that may be used; all of a pipe has to come in the time that reading may
/// take.
/// Throws `ImportError` for a folder, a device, a terminal, a damaged or too large archive.
ReadableFile makeReadable(const std::filesystem::path& file, const ReadingLimits& limits);

}  // namespace host
