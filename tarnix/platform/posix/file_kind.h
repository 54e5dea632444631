#pragma once

#include <sys/types.h>

#include <string>

/// What a path of this system names, and removing it as Windows would. Links are not followed.
namespace tarnix::platform {

/// Kind and rights of what is there; 0 if nothing is.
mode_t modeOf(const std::string& nativePath);

/// Whether it is a link to a folder, which Windows treats as a folder.
bool isLinkToFolder(const std::string& nativePath);

/// Removes a file or a link to one. False if it is not there, is a folder, is read-only (the owner
/// may not write it), or will not go.
bool removeFile(const std::string& nativePath);

}  // namespace tarnix::platform
