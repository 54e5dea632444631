#pragma once

#include <fstream>
#include <string>
#include <string_view>

/// What the add-in does with files. Paths are in Windows terms on every system: backslashes, and
/// the system's 8-bit code page.
namespace tarnix::platform {

/// True if the file can be opened for reading.
bool canRead(const std::string& path);

/// Deletes a file. False when it was not there or would not go; callers that only want it out of
/// the way need not look.
bool deleteFile(const std::string& path);

/// A text file that is appended to.
///
/// Line ends come out as CR LF on every system, those inside a written text too. A file that could
/// not be opened discards what is written. Closed with the object.
class AppendingTextFile {
public:
    /// Opens the file, or makes it.
    explicit AppendingTextFile(const std::string& path);

    /// Writes a string unchanged, but for its line ends.
    void write(std::string_view text);

    /// Ends the line, and passes what was written to the system.
    void endLine();

private:
    std::ofstream stream_;
};

}  // namespace tarnix::platform
