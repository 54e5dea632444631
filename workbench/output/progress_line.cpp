#include "workbench/output/progress_line.h"

#include "workbench/cli/console.h"
#include "workbench/cli/quiet.h"
#include "workbench/output/display_text.h"

#include <iostream>

namespace workbench {

ProgressLine::ProgressLine()
    : shown_(console::errorIsTerminal() && console::canOverwrite() && !isQuiet()) {}

ProgressLine::~ProgressLine() { show(""); }

void ProgressLine::show(const std::string& line) {
    if (shown_ && line != last_) {
        constexpr const char* kEraseLine = "\r\x1B[K";
        // A line that wrapped could not be erased.
        std::cerr << kEraseLine << fitted(line, console::width() - 1) << std::flush;
        last_ = line;
    }
}

}  // namespace workbench
