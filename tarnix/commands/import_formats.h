#pragma once

#include <Core/CoreAll.h>

#include <string>

/// The file formats of "Open local file".
namespace tarnix {

/// What the file dialog offers, as the host takes it.
extern const char* const supportedFilesFilter;

/// Makes the host's options for importing a file; null where the host does not.
using ImportOptionsFactory = adsk::core::Ptr<adsk::core::ImportOptions> (*)(
    const adsk::core::Ptr<adsk::core::ImportManager>& manager, const std::string& fileName);

/// The factory for an extension, which is compared byte for byte; null for a format that the host
/// does not import.
ImportOptionsFactory importOptionsFactory(const std::string& extension);

/// What follows the last "." of a path; the whole path where it has none.
std::string extensionOf(const std::string& fileName);

}  // namespace tarnix
