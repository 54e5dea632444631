#pragma once

#include <memory>
#include <optional>
#include <string>

/// Folders, as the support folder needs them: finding the place, making it, going through it and
/// removing it.
///
/// Names are in Windows terms on every system: backslashes, 8-bit strings in the system's code page
/// and 16-bit strings as UTF-16. What a 16-bit name cannot say about this system's names (bytes
/// that are not text, a backslash that is part of a name) comes out as a unit of its own and is
/// understood on the way back.
namespace tarnix::platform {

/// The user's folder for temporary files with a backslash at its end; nothing if the system
/// names none. The system is asked for 260 units, the terminating zero included: a longer name does
/// not fit and returns an empty string.
std::optional<std::u16string> temporaryFolder();

/// True if there is a folder of this name.
bool directoryExists(const std::string& path);

/// Makes one folder, whose parent has to be there. False if it could not be made.
bool makeDirectory(const std::string& path);

/// Removes an empty folder, or a link to a folder, empty or not, and not what it refers to. False
/// if it is not empty, not there, or will not go.
bool removeDirectory(const std::u16string& path);

/// Deletes a file, or a link to a file and not what it refers to. False if it is not there, is
/// read-only, is a folder or a link to one, or will not go.
bool deleteFile(const std::u16string& path);

/// Makes a read-only file writable. Links are left alone.
void makeWritable(const std::string& path);

/// Something in a folder.
struct FoundFile {
    std::u16string name;
    bool isDirectory = false;  ///< or a link to one
    bool isReadOnly = false;   ///< of a file; what it says of a folder has no meaning
};

/// Goes through the entries of a folder whose names fit a pattern.
///
/// The pattern is a path whose last part may end in "*"; large and small letters are the same to
/// it. A folder's own "." comes first and ".." second, where they fit; the others come in the order
/// of their names in capitals, unit by unit, so "_" comes after the letters. (Windows leaves the
/// order to the file system: it is that of NTFS.) A link to a folder is gone through as the folder.
class FolderSearch {
public:
    /// Finds the first entry, which is not returned.
    explicit FolderSearch(const std::u16string& pattern);
    FolderSearch(const FolderSearch&) = delete;
    FolderSearch& operator=(const FolderSearch&) = delete;
    ~FolderSearch();

    /// True if there was a first entry.
    explicit operator bool() const { return state_ != nullptr; }

    /// The next entry after the first one; nothing at the end, or if the search failed. Only while
    /// there was a first entry.
    std::optional<FoundFile> next();

    /// After `next` had nothing: true if there were no more entries, false if the search failed.
    [[nodiscard]] bool isComplete() const;

private:
    struct State;

    std::unique_ptr<State> state_;
};

}  // namespace tarnix::platform
