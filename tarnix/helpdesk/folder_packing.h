#pragma once

#include "tarnix/text/command_texts.h"

#include <array>
#include <cstdint>
#include <string>

namespace tarnix {

inline constexpr CommandTexts kCompressFolderCommand = {
    .id = "QM_HD_compressFolder",
    .name = "Zip",
    .tooltip = "Compress all context in the Helpdesk folder",
    .resourceFolder = "Resources/ZipFolder"};

/// Writes an archive without entries, in the place of an earlier file.
void createEmptyZip(std::string archivePath);

/// Packs what a folder holds into an archive, which may lie in that folder. Both are 8-bit strings.
///
/// The archive is made again, empty, and filled by the system's compressed folders without a
/// dialog. They copy on another thread: this waits a second, and does not check whether they are
/// done.
void zipHelpdeskFolder(std::string folder, std::string archivePath);

/// Packs the support folder into "helpdesk.zip" in it; shows the user a message where there is
/// none.
void compressHelpdeskFolder();

/// The end record of an archive with no entries, which is all that such an archive consists of.
std::array<std::uint8_t, 22> emptyZipRecord();

}  // namespace tarnix
