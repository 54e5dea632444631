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

/// Packs what a folder holds into an archive, which may lie in that folder. Both are 8-bit texts.
///
/// The archive is made again and empty; the system's compressed folders fill it, without a dialog.
/// That goes on beside the host's thread: this waits a second, and nobody asks whether it is done.
void zipHelpdeskFolder(std::string folder, std::string archivePath);

/// Packs the support folder into "helpdesk.zip" in it; tells the user where there is none.
void compressHelpdeskFolder();

/// The end record of an archive with no entries, which is all that such an archive consists of.
std::array<std::uint8_t, 22> emptyZipRecord();

}  // namespace tarnix
