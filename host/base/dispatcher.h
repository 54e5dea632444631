#pragma once

#include <functional>
#include <string>
#include <vector>

/// Where the host enters a module, and where what a module throws ends.
///
/// Whatever leaves a handler is caught here and recorded: the next handler is called, the dialog
/// stays open. `run` and `stop` are entered the same way.
namespace host {

/// An exception that left a module.
struct UncaughtException {
    std::string event;    ///< name of the event, or "run" or "stop"
    std::string inputId;  ///< the changed input, empty for other events
    std::string type;     ///< the class of what was thrown, such as "std::exception"
    std::string text;     ///< its `what`, empty where it has none

    bool operator==(const UncaughtException&) const = default;
};

/// What a module was entered for.
struct ModuleEntry {
    std::string event = {};
    std::string inputId = {};
};

/// Calls `enter` as a module's code. Returns false, with the exception recorded, when one left it;
/// without a host it is dropped.
bool enterModule(const std::string& event, const std::string& inputId,
                 const std::function<void()>& enter);

/// What was thrown since the host started or since `clearUncaughtExceptions`, oldest first. Both
/// throw a `MisuseError` without a host.
const std::vector<UncaughtException>& uncaughtExceptions();
void clearUncaughtExceptions();

}  // namespace host
