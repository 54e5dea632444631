#pragma once

#include <fstream>
#include <string>
#include <string_view>

namespace tarnix::platform {

/// A text file that is written again each time it is opened.
///
/// Line ends come out as CR LF on every system. As long as no file is open, because opening failed
/// or it was closed, what is written is discarded.
class TextFile {
public:
    /// Opens a file, whose path is in Windows terms and in the system's 8-bit code page, and
    /// empties it.
    void open(const std::string& path);

    /// Writes a string unchanged, but for its line ends.
    void write(std::string_view text);

    void close();

private:
    std::ofstream stream_;
};

}  // namespace tarnix::platform
