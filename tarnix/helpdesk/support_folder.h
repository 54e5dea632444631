#pragma once

#include "tarnix/text/command_texts.h"

#include <string>

/// The support folder: where the helpdesk commands collect captures and system information, to be
/// packed, looked at and cleared.
///
/// It is one level deep, lies in the user's folder for temporary files, and is made by the command
/// that needs it first. The helpdesk commands never make folders in it.
namespace tarnix {

inline constexpr CommandTexts kOpenFolderCommand = {
    .id = "QM_HD_openFolder",
    .name = "Open Helpdesk Folder",
    .tooltip = "Open the Helpdesk folder in Explorer",
    .resourceFolder = "Resources/OpenFolder"};

inline constexpr CommandTexts kClearFolderCommand = {
    .id = "QM_HD_clearFolder",
    .name = "Delete Helpdesk Folder",
    .tooltip = "Delete all context in the Helpdesk folder",
    .resourceFolder = "Resources/DeleteFolder"};

/// The support folder with a backslash at its end; empty if the system names no folder for
/// temporary files.
///
/// Each 16-bit unit of the system's answer is cut down to its low byte, no code page being
/// involved: for a folder with a name that is not ASCII this is another folder.
std::string helpdeskFolderPath();

/// The support folder as it was when the module was loaded; for the system information alone.
extern const std::string helpdeskFolderAtLoad;

/// The support folder as Zip or Open Helpdesk Folder last saw it, empty until one of them has run;
/// for clearing alone.
extern std::string rememberedHelpdeskFolder;

/// Makes the support folder where it is missing; that it cannot be made shows in what follows.
void ensureHelpdeskFolder();

/// A 16-bit string with each unit cut down to its low byte.
std::string lowBytes(const std::u16string& text);

/// Opens the support folder, which is made if it is missing, with what the user has for folders.
void openHelpdeskFolder();

/// Deletes the remembered support folder and what it holds, without asking.
///
/// As long as none is remembered the path is empty, and what goes is the content of the process's
/// current directory. Throws `std::range_error` for a remembered folder that is not UTF-8.
void clearHelpdeskFolder();

}  // namespace tarnix
