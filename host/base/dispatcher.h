#pragma once

#include <functional>
#include <string>
#include <vector>

/// Where the host enters a module, and where what a module throws ends.
///
/// Whatever leaves a handler is caught here, recorded, and forgotten: the next handler is called,
/// the dialog stays open. `run` and `stop` are entered through the same door.
namespace host {

/// Something that a module let out.
struct UncaughtException {
    std::string event;    ///< name of the event, or "run" or "stop"
    std::string inputId;  ///< the changed input, empty for other events
    std::string type;     ///< the class of what was thrown, such as "std::exception"
    std::string text;     ///< its `what`, empty where it has none

    bool operator==(const UncaughtException&) const = default;
};

/// Calls `enter` as a module's code. Returns false, with the exception recorded, when one left it.
bool enterModule(const std::string& event, const std::string& inputId,
                 const std::function<void()>& enter);

/// What was thrown since the last `clearUncaughtExceptions`, oldest first.
const std::vector<UncaughtException>& uncaughtExceptions();
void clearUncaughtExceptions();

}  // namespace host
