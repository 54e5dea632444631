#pragma once

#include "host/design/atomic_file.h"
#include "host/design/design_check.h"
#include "host/design/design_data.h"

#include <filesystem>
#include <functional>

/// The design file: a design with everything the host keeps of it, in JSON.
///
/// A design that came from a file of another format keeps a reference to that source and reads its
/// bodies from there again.
namespace host {

/// The ending of a design file's name.
inline constexpr const char* kDesignFileEnding = ".design.json";

/// The value of "format" in every design file.
inline constexpr const char* kDesignFileFormat = "standin-host-design";

/// Reads the source of a design again, with its `source` telling the fingerprint that it has now.
/// What it throws leaves `loadDesignFile` as it is.
using ReadSource = std::function<DesignData(const SourceFile&)>;

/// Writes a design. The file holds the old design or the new one, whole, whatever happens.
///
/// Bytes of a string that are not UTF-8 become U+FFFD. Throws `DesignError` that names the file and
/// the reason, for a design that does not fulfil `checkDesign` too; the old file is then kept.
void saveDesignFile(const std::filesystem::path& path, const DesignData& data);

/// The same up to the moment at which the file takes its name, which the caller decides.
AtomicFile stageDesignFile(const std::filesystem::path& path, const DesignData& data);

/// Reads a design that `saveDesignFile` wrote, or that was written by hand.
///
/// `readSource` is asked only where bodies are in a source; the source is looked for at its path
/// and then beside the design file. Throws `DesignError` that names the file, the place in it and
/// what would be right.
DesignData loadDesignFile(const std::filesystem::path& path, const ReadSource& readSource = {},
                          const ReadingLimits& limits = {});

}  // namespace host
