#pragma once

#include <string>

/// The work on archives, done in another thread than the host's. Paths are as this system spells
/// them.
namespace tarnix::platform {

/// True if the file is an archive that files can be put into.
bool isArchive(const std::string& path);

/// Starts putting the files of a folder into an archive, those of its subfolders included. Links
/// are left out, and so is the archive itself. What was in the archive goes, unless there are no
/// files. Works are done one after the other; a module that is unloaded, or a process that ends,
/// waits for them. Until a work is done the archive is as it was, and it stays so if another work
/// for it is started before.
void fillArchiveBeside(const std::string& archive, const std::string& folder);

/// Waits until no work is left.
void finishArchives();

}  // namespace tarnix::platform
