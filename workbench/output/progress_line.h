#pragma once

#include <string>

namespace workbench {

/// One line on a terminal that is written over again and again, and is gone at the end. Where no
/// person reads stderr there is none.
class ProgressLine {
public:
    ProgressLine();
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;
    ~ProgressLine();

    /// Shows a line that is fit for a terminal; an empty one takes it away.
    void show(const std::string& line);

private:
    bool shown_;
    std::string last_;
};

}  // namespace workbench
