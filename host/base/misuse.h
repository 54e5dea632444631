#pragma once

#include <stdexcept>
#include <string>
#include <vector>

/// What a module, or the code that acts as the user, does wrong.
///
/// A module's misuse is what the host would punish or leave undefined: a call on a deleted object,
/// an id used twice for a tab, a call at a wrong time. The call fails as it would in the host, and
/// is listed here; a call that comes when no host lives is not. A user's misuse is an action that
/// the screen does not offer; it throws.
namespace host {

/// A call that a module should not have made.
struct Misuse {
    std::string operation;  ///< such as "CommandInputs::addTabCommandInput"
    std::string text;       ///< what was wrong with it

    /// The event whose handler made it, "run" or "stop", and the changed input; both empty for a
    /// call from elsewhere.
    std::string event = {};
    std::string inputId = {};

    bool operator==(const Misuse&) const = default;
};

/// What was misused since the host started or since `clearMisuses`, oldest first. Both throw a
/// `MisuseError` without a host.
const std::vector<Misuse>& misuses();
void clearMisuses();

/// Lists a misuse and makes it the last error; always false, for `return misuse(...)`.
bool misuse(const std::string& operation, const std::string& text);

/// Lists a call on a deleted object, with `UnderlyingObjectDeletedError` as the last error; always
/// true.
bool misuseOfDeleted(const char* operation, const char* type);

/// An action that the user cannot do with what is on the screen. The text names what prevents it.
class MisuseError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace host
