#pragma once

#include <Core/Enums.h>

#include <string>

namespace host {

/// The last failure, as `Application::getLastError` returns it.
struct LastError {
    int code = 0;  ///< a value of `adsk::core::GenericErrors`
    std::string description;
};

/// The last failure since the host started; throws a `MisuseError` without a host.
const LastError& lastError();

/// Records a failing call; the description names what was wrong. Always false, for
/// `return fail(...)`.
bool fail(int code, const std::string& description);

/// Records a call of an operation that the stand-in does not have; always false.
bool notImplemented(const std::string& operation);

}  // namespace host
