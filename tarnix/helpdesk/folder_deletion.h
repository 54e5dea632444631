#pragma once

#include <string>

namespace tarnix {

/// Deletes the files of a folder, its empty subfolders and then the folder; true if it is gone.
///
/// `path` ends in a backslash. A subfolder is removed only if it is empty, and no other entry's
/// name begins with its own; any other subfolder, like a file that will not go, ends the deletion
/// at that point, with what was deleted before gone. So does a full name of more than 259 units.
bool deleteDirectoryTree(const std::u16string& path);

}  // namespace tarnix
