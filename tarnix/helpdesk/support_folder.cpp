#include "tarnix/helpdesk/support_folder.h"

#include "tarnix/helpdesk/folder_deletion.h"
#include "tarnix/platform/folders.h"
#include "tarnix/platform/shell.h"
#include "tarnix/text/utf8.h"

namespace tarnix {

const std::string helpdeskFolderAtLoad = helpdeskFolderPath();
std::string rememberedHelpdeskFolder;

std::string helpdeskFolderPath() {
    const auto temporary = platform::temporaryFolder();
    return temporary ? lowBytes(*temporary + u"Helpdesk\\") : "";
}

void ensureHelpdeskFolder() {
    if (!platform::directoryExists(helpdeskFolderPath())) {
        platform::makeDirectory(helpdeskFolderPath());
    }
}

std::string lowBytes(const std::u16string& text) {
    std::string bytes;
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
    }
    return bytes;
}

void openHelpdeskFolder() {
    rememberedHelpdeskFolder = helpdeskFolderPath();
    if (!platform::directoryExists(rememberedHelpdeskFolder)) {
        platform::makeDirectory(rememberedHelpdeskFolder);
    }
    static_cast<void>(
        platform::openWithShell(rememberedHelpdeskFolder, platform::ShellTarget::Folder));
}

void clearHelpdeskFolder() {
    // The folder as it was remembered, and nothing asked: without one this clears the current
    // directory.
    static_cast<void>(deleteDirectoryTree(utf16FromUtf8(rememberedHelpdeskFolder)));
}

}  // namespace tarnix
