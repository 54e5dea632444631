#pragma once

#include "tarnix/platform/screen.h"
#include "tarnix/text/command_texts.h"

#include <string>

/// Pictures of the screen, saved as numbered PNG files in the support folder.
///
/// No questions, and no message but that there are too many pictures already.
namespace tarnix {

inline constexpr CommandTexts kCaptureScreenCommand = {
    .id = "QM_HD_captureScreen",
    .name = "Capture screen",
    .tooltip = "Capture all what is visible on screen and save it on disk to the Helpdesk folder",
    .resourceFolder = "Resources/CaptureScreen"};

inline constexpr CommandTexts kCaptureFusionCommand = {
    .id = "QM_HD_captureFusion",
    .name = "Capture Fusion",
    .tooltip =
        "Capture window of the Fusion application and save it on disk to the Helpdesk folder",
    .resourceFolder = "Resources/CaptureInventor"};

/// Saves a picture of all monitors. A console window of the process is hidden for it, and not shown
/// again.
void captureWholeScreen();

/// Saves a picture of the inside of the host's main window, which is found by its title.
void captureFusionWindow();

/// Full path of the first picture from "screen_001.png" to "screen_998.png" that is not there: one
/// that can be opened for reading is. When all are there the user is shown a message, and the
/// string is empty.
std::string nextScreenFileName();

/// Writes a picture as PNG; failures are not reported.
void saveBitmapAsPng(const platform::ScreenPicture& image, const std::string& path);

}  // namespace tarnix
