#include "workbench/raised.h"

#include "workbench/addin_names.h"
#include "workbench/exit_code.h"

#include <algorithm>

namespace workbench {

bool isOrdinary(const host::Raised& raised) {
    const std::string& id = raised.inputId;
    const bool numberless = id == kExportButton || id == kSaveConfiguration || id == kSortOrder ||
                            id.starts_with(kCaptionField);
    return (numberless && raised.text == "invalid stoi argument") ||
           (raised.event == "stop" && raised.type == "std::exception");
}

std::string describe(const host::Raised& raised) {
    std::string line = "the add-in raised " + raised.type;
    line += raised.text.empty() ? "" : " (" + raised.text + ")";
    line += " in " + raised.event;
    return line + (raised.inputId.empty() ? "" : " of " + raised.inputId);
}

void refuseRaised(const host::Session& session, std::size_t since, const std::string& what) {
    const auto begin = session.raised().begin() + static_cast<std::ptrdiff_t>(since);
    const auto first = std::find_if_not(begin, session.raised().end(), isOrdinary);
    if (first != session.raised().end()) {
        throw Failure(ExitCode::AddinFailed, what + ": " + describe(*first));
    }
}

}  // namespace workbench
