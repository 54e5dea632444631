#include "workbench/output/fault_lines.h"

namespace workbench {
namespace {

/// The event that an add-in was entered for; empty for none.
std::string during(const std::string& event, const std::string& inputId) {
    if (event.empty()) {
        return "";
    }
    return " in " + event + (inputId.empty() ? "" : " of " + inputId);
}

}  // namespace

std::string describe(const host::UncaughtException& thrown) {
    return "the add-in threw " + thrown.type +
           (thrown.text.empty() ? "" : " (" + thrown.text + ")") +
           during(thrown.event, thrown.inputId);
}

std::string describe(const host::Misuse& misuse) {
    return "the add-in misused " + misuse.operation + " (" + misuse.text + ")" +
           during(misuse.event, misuse.inputId);
}

}  // namespace workbench
