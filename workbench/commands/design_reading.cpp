#include "workbench/commands/design_reading.h"

#include "workbench/cli/exit_code.h"
#include "workbench/output/display_text.h"
#include "workbench/output/progress_line.h"

#include "host/base/utf8_path.h"

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace workbench {

host::DesignData readDesign(const std::string& file, const host::ReadingLimits& limits) {
    std::vector<std::string> warnings;
    try {
        ProgressLine line;
        constexpr double kPercent = 100;
        const auto progress = [&](const std::string& stage, double fraction) {
            line.show(printable(stage) + " " + printable(file) + " " +
                      std::to_string(static_cast<int>(fraction * kPercent)) + " %");
        };
        host::DesignData design =
            host::readDesign(host::fromUtf8(file), limits, progress, warnings);
        line.show("");
        tellWarnings(warnings);
        return design;
    } catch (const std::exception& error) {
        throw Failure(ExitCode::BadInput, error.what());
    }
}

void tellWarnings(const std::vector<std::string>& warnings) {
    for (const std::string& warning : warnings) {
        std::cerr << "warning: " << printable(warning) << "\n";
    }
}

}  // namespace workbench
