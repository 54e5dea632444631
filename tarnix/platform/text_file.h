#pragma once

#include <fstream>
#include <string>
#include <string_view>

namespace tarnix::platform {

/// A text file that is written.
///
/// Paths are in Windows terms and in the system's 8-bit code page. Line ends come out as CR LF on
/// every system, those inside a written text too. As long as no file is open, because opening
/// failed or it was closed, what is written is discarded. Closed with the object.
class TextFile {
public:
    /// Opens a file and empties it.
    void open(const std::string& path);

    /// Opens a file, or makes it; what is written follows what is there.
    void openToAppend(const std::string& path);

    /// Writes a string unchanged, but for its line ends.
    void write(std::string_view text);

    /// Ends the line, and passes what was written to the system.
    void endLine();

    void close();

private:
    void open(const std::string& path, std::ios::openmode mode);

    std::ofstream stream_;
};

}  // namespace tarnix::platform
