#include "workbench/dialogs/uncaught.h"

#include "workbench/cli/exit_code.h"
#include "workbench/dialogs/addin_ids.h"

#include <algorithm>

namespace workbench {

bool isOrdinary(const host::UncaughtException& thrown) {
    const std::string& id = thrown.inputId;
    const bool numberless = id == kExportButton || id == kSaveConfiguration || id == kSortOrder ||
                            id.starts_with(kCaptionField);
    return (numberless && thrown.text == "invalid stoi argument") ||
           (thrown.event == "stop" && thrown.type == "std::exception");
}

std::string describe(const host::UncaughtException& thrown) {
    std::string line = "the add-in threw " + thrown.type;
    line += thrown.text.empty() ? "" : " (" + thrown.text + ")";
    line += " in " + thrown.event;
    return line + (thrown.inputId.empty() ? "" : " of " + thrown.inputId);
}

void refuseThrown(const host::Session& session, std::size_t since, const std::string& what) {
    const auto begin = session.uncaughtExceptions().begin() + static_cast<std::ptrdiff_t>(since);
    const auto first = std::find_if_not(begin, session.uncaughtExceptions().end(), isOrdinary);
    if (first != session.uncaughtExceptions().end()) {
        throw Failure(ExitCode::AddinFailed, what + ": " + describe(*first));
    }
}

}  // namespace workbench
