#pragma once

#include "host/session/dialog_view.h"
#include "host/session/session.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// What the user of an add-in did, and what it led to.
namespace workbench {

/// One action of the user, or one call of the loader.
struct RunStep {
    std::string name;     ///< such as "press NumberParts"
    std::string outcome;  ///< what came of it, such as "returned true"; empty where nothing did
    bool failed = false;  ///< the add-in refused, without an exception
    std::vector<host::UncaughtException> thrown;
    std::vector<host::Misuse> misused;
    std::vector<host::Message> messages;
    std::vector<std::string> log;
    std::vector<std::string> opened;    ///< what the shell was asked to open
    std::vector<std::string> commands;  ///< that the add-in has registered
    std::vector<std::string> changes;   ///< of the design, see `changesBetween`

    /// The dialog that is open afterwards; only after the steps for which it is to be shown.
    std::optional<host::DialogView> dialog;
};

/// How often the add-in went wrong in a step.
std::size_t faultsIn(const RunStep& step);

/// The line about the first time it did; an empty string for none.
std::string firstFault(const RunStep& step);

/// What a step led to, a line for each thing, indented; then the dialog as an outline.
std::string asText(const RunStep& step);

/// All steps as one object.
std::string asJson(const std::vector<RunStep>& steps);

}  // namespace workbench
