#pragma once

#include <string>

namespace workbench {

/// One line on a terminal that is overwritten again and again, and erased at the end. Where stderr
/// is not a terminal, or one that cannot overwrite, and with "--quiet", nothing is written.
class ProgressLine {
public:
    ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine();

    /// Shows a printable line, as much of it as fits; an empty one erases it.
    void show(const std::string& line);

private:
    bool shown_;
    std::string last_;
};

}  // namespace workbench
