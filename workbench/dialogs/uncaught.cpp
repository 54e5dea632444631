#include "workbench/dialogs/uncaught.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"
#include "workbench/output/fault_lines.h"

#include <algorithm>

namespace workbench {

bool isExpected(const host::UncaughtException& thrown) {
    const std::string& id = thrown.inputId;
    const bool numberless = id == kExportButton || id == kSaveConfiguration || id == kSortOrder ||
                            id.starts_with(kCaptionField);
    return (numberless && thrown.text == "invalid stoi argument") ||
           (thrown.event == "stop" && thrown.type == "std::exception");
}

std::string describeUnexpected(const std::vector<host::UncaughtException>& thrown,
                               std::size_t since) {
    const auto begin = thrown.begin() + static_cast<std::ptrdiff_t>(since);
    const auto first = std::find_if_not(begin, thrown.end(), isExpected);
    return first != thrown.end() ? describe(*first) : "";
}

void refuseUnexpected(const std::vector<host::UncaughtException>& thrown, std::size_t since,
                      const std::string& what) {
    const std::string line = describeUnexpected(thrown, since);
    if (!line.empty()) {
        throw Failure(ExitCode::AddinFailed, what.empty() ? line : what + ": " + line);
    }
}

}  // namespace workbench
