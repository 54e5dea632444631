#pragma once

#include <functional>
#include <string>
#include <vector>

/// Where the host enters a module, and where what a module raises ends.
///
/// Whatever leaves a handler is caught here, recorded, and forgotten: the next handler is called,
/// the dialog stays open. `run` and `stop` are entered through the same door.
namespace host {

/// Something that a module let out.
struct Raised {
    std::string event;    ///< name of the event, or "run" or "stop"
    std::string inputId;  ///< the changed input, empty for other events
    std::string type;     ///< the class of what was raised, such as "std::exception"
    std::string text;     ///< its `what`, empty where it has none

    bool operator==(const Raised&) const = default;
};

/// Calls `enter` as a module's code. Yields false, with the exception recorded, when one left it.
bool enterModule(const std::string& event, const std::string& inputId,
                 const std::function<void()>& enter);

/// What was raised since the last `clearRaised`, oldest first.
const std::vector<Raised>& raised();
void clearRaised();

}  // namespace host
