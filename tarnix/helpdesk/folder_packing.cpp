#include "tarnix/helpdesk/folder_packing.h"

#include "tarnix/helpdesk/support_folder.h"
#include "tarnix/platform/com.h"
#include "tarnix/platform/compressed_folder.h"
#include "tarnix/platform/folders.h"
#include "tarnix/platform/message_box.h"
#include "tarnix/platform/sleep.h"

namespace tarnix {
namespace {

/// The part of the packing for which the archive is open as a folder.
void fill(const std::string& archivePath, const std::string& folder) {
    const platform::CompressedFolder archive(archivePath);
    if (archive) {
        archive.copyHere(folder);
        // The only wait for the copying.
        constexpr int kWaitMilliseconds = 1000;
        platform::sleep(kWaitMilliseconds);
    }
}

}  // namespace

std::array<std::uint8_t, 22> emptyZipRecord() {
    // The signature 0x06054B50; the numbers after it are all zero.
    return {'P', 'K', 5, 6};
}

void createEmptyZip(std::string archivePath) {
    const auto record = emptyZipRecord();
    // Without the file there is no archive to be opened either.
    static_cast<void>(platform::writeBytes(archivePath, record));
}

void zipHelpdeskFolder(std::string folder, std::string archivePath) {
    createEmptyZip(archivePath);
    platform::initializeCom();
    fill(archivePath, folder);
    platform::uninitializeCom();
}

void compressHelpdeskFolder() {
    rememberedHelpdeskFolder = helpdeskFolderPath();
    if (platform::directoryExists(rememberedHelpdeskFolder)) {
        zipHelpdeskFolder(rememberedHelpdeskFolder, rememberedHelpdeskFolder + "helpdesk.zip");
    } else {
        platform::showMessageBox("Target directory does not exist.", "Information",
                                 platform::MessageStyle::Information);
    }
}

}  // namespace tarnix
