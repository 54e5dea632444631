#include "workbench/commands/design_reading.h"

#include "workbench/cli/exit_code.h"
#include "workbench/output/display_text.h"
#include "workbench/output/progress_line.h"
#include "workbench/output/reports.h"

#include "host/base/utf8_path.h"

#include <exception>
#include <vector>

namespace workbench {

host::DesignData readDesign(const std::string& file, const host::ReadingLimits& limits) {
    std::vector<host::ReadingWarning> warnings;
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
        reportWarnings(warnings);
        return design;
    } catch (const std::exception& error) {
        throw Failure(ExitCode::BadInput, error.what());
    }
}

}  // namespace workbench
