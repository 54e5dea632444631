#pragma once

#include "host/base/object.h"

#include <stdexcept>
#include <string>
#include <vector>

/// What a module, or whoever plays the person, does wrong.
///
/// A module's misuse is what the host would punish or leave undefined: a call on a deleted object,
/// an id used twice for a tab, a call at a wrong time. The call fails as it would in the host, and
/// is listed here. A person's is an action that the screen does not offer; it throws.
namespace host {

/// A call that a module should not have made.
struct Misuse {
    std::string operation;  ///< such as "CommandInputs::addTabCommandInput"
    std::string text;       ///< what was wrong with it

    bool operator==(const Misuse&) const = default;
};

/// What was misused since the host started or since `clearMisuses`, oldest first.
const std::vector<Misuse>& misuses();
void clearMisuses();

/// Lists a misuse and makes it the last error; always false, for `return misuse(...)`.
bool misuse(const std::string& operation, const std::string& text);

/// Lists a call on a deleted object; always true.
bool misuseOfDeleted(const char* operation, const char* type);

/// An action that a person cannot do as the screen stands. The text names what is in the way.
class MisuseError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Passes the gate and looks whether the object still stands. True when the operation has to return
/// nothing: the call is refused, or the object was deleted.
template <CallName Name, class Interface>
bool closed(const Object<Interface>& object) {
    if (refused<Name>()) return true;
    return !object.Object<Interface>::isValid() && misuseOfDeleted(Name.text, object.objectType());
}

}  // namespace host
