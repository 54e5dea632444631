#include "workbench/output/progress_line.h"

#include "workbench/cli/console.h"

#include <iostream>

namespace workbench {

ProgressLine::ProgressLine() : shown_(console::errorIsTerminal()) {}

ProgressLine::~ProgressLine() { show(""); }

void ProgressLine::show(const std::string& line) {
    if (shown_ && line != last_) {
        constexpr const char* kEraseLine = "\r\x1B[K";
        std::cerr << kEraseLine << line << std::flush;
        last_ = line;
    }
}

}  // namespace workbench
